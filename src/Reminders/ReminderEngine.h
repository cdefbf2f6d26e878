#pragma once

#include "Ports/Calendar.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Ports/NotificationQueue.h"
#include "Reminders/AppActivation.h"
#include "Reminders/NotificationDisplay.h"
#include "Reminders/WallAlarm.h"

#include <optional>
#include <set>
#include <vector>

namespace tessivo {

/// Shows each request of the queue when the calendar and the time zone, as they stand at that moment, have
/// reached its components.
///
/// A request is *pending* in the queue, *due* once its moment has come, *under way* from the call of the
/// display to its answer, and *retired* when it is in the ledger. Nothing is kept elsewhere, so the engine
/// may be killed at any time: what was not retired is shown by the next one. A request leaves the queue only
/// after the display has answered; a kill between the answer and the ledger is the one case in which a
/// notification comes twice.
///
/// The engine sleeps on one alarm, set to the next moment at which there is something to do; with nothing
/// pending there is none.
class ReminderEngine final {
public:
    /// What the engine stands on; all of it must outlive the engine.
    struct Machine {
        NotificationQueue& queue;
        NotificationDisplay& display;
        WallAlarm& alarm;
        AppActivation& app;
        const Clock& clock;
        const Calendar& calendar;
        Console& console;
    };

    explicit ReminderEngine(Machine machine);

    /// Shows what is due and sets the alarm anew. To be called at the start, when the queue has changed and
    /// when the time zone has changed; superfluous calls do no harm.
    void processDue();

    /// Begins nothing more. Calls `done` once nothing is under way and the ledger is written, inline where
    /// that is so already: then another engine may take over.
    void finish(std::function<void()> done);

private:
    struct Shown {
        std::vector<std::int64_t> sequences;
        std::string token;
        Instant when;
    };
    struct Due {
        QueuedRequests old; ///< more than a day ago
        QueuedRequests fresh;
    };

    [[nodiscard]] Due takeDue(const QueuedRequests& pending);
    [[nodiscard]] bool isTaken(std::int64_t sequence) const;
    void showDue(Due due);
    void show(const Notice& notice, const QueuedRequests& requests);
    void opened(const std::string& token, const std::string& activation);
    void answered(std::vector<std::int64_t> sequences, const Result<std::string>& token);
    void passUnseen(const Due& due);
    void writeLedger();
    void retryLater(const Error& error);
    void setAlarm();
    void finishIfIdle();

    Machine machine_;
    std::set<std::int64_t> underWay_;
    std::vector<Shown> unwritten_;   ///< shown, and not yet in the ledger because it cannot be written
    std::optional<Instant> next_;    ///< the earliest moment still ahead
    std::optional<Instant> retryAt_; ///< when to try again what has failed
    Seconds retryDelay_;
    std::function<void()> finished_;
    Subscription alarm_;
    Subscription displayEvents_;
};

} // namespace tessivo
