#include "Reminders/ReminderEngine.h"

#include "Reminders/Notices.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessivo {
namespace {

constexpr Seconds oldAge{24 * 60 * 60};
constexpr std::size_t mostAtOnce = 5;
constexpr Seconds firstRetryDelay{60};
constexpr Seconds longestRetryDelay{60 * 60};

std::vector<std::int64_t> sequencesOf(const QueuedRequests& requests) {
    std::vector<std::int64_t> sequences;
    for (const auto& queued : requests)
        sequences.push_back(queued.sequence);
    return sequences;
}

QueuedRequests joined(QueuedRequests first, const QueuedRequests& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

ReminderEngine::ReminderEngine(Machine machine)
    : machine_(machine),
      retryDelay_(firstRetryDelay),
      displayEvents_(machine_.display.listen(
          {[this] {
               retryDelay_ = firstRetryDelay;
               processDue();
           },
           [this](const std::string& token, const std::string& activation) { opened(token, activation); }})) {
}

void ReminderEngine::processDue() {
    if (finished_)
        return;
    retryAt_.reset();
    next_.reset();
    writeLedger();
    const auto pending = machine_.queue.pending();
    const auto authorization = machine_.queue.authorization();
    if (!pending || !authorization) {
        retryLater(!pending ? pending.error() : authorization.error());
        return;
    }
    auto due = takeDue(*pending.value());
    if (authorization.value() == AuthorizationStatus::Denied)
        passUnseen(due);
    else
        showDue(std::move(due));
    setAlarm();
}

void ReminderEngine::opened(const std::string& token, const std::string& activation) {
    const auto shown = machine_.queue.shownIn(token);
    if (!shown.empty())
        machine_.app.activate(activation, shown.size() == 1 ? std::optional(shown.front()) : std::nullopt);
}

void ReminderEngine::finish(std::function<void()> done) {
    finished_ = std::move(done);
    alarm_.end();
    finishIfIdle();
}

ReminderEngine::Due ReminderEngine::takeDue(const QueuedRequests& pending) {
    const auto now = machine_.clock.now();
    std::vector<std::pair<Instant, const QueuedRequest*>> moments;
    for (const auto& queued : pending) {
        if (isTaken(queued.sequence))
            continue;
        const auto moment = machine_.calendar.date(queued.request.trigger.dateComponents);
        if (moment <= now)
            moments.emplace_back(moment, &queued);
        else
            next_ = std::min(next_.value_or(moment), moment);
    }
    std::ranges::stable_sort(moments, {}, &std::pair<Instant, const QueuedRequest*>::first);
    Due due;
    for (const auto& [moment, queued] : moments)
        (now - moment > oldAge ? due.old : due.fresh).push_back(*queued);
    return due;
}

bool ReminderEngine::isTaken(std::int64_t sequence) const {
    return underWay_.contains(sequence) || std::ranges::any_of(unwritten_, [&](const Shown& shown) {
               return std::ranges::find(shown.sequences, sequence) != shown.sequences.end();
           });
}

void ReminderEngine::showDue(Due due) {
    if (due.old.size() + due.fresh.size() > mostAtOnce)
        due = {joined(std::move(due.old), due.fresh), {}};
    if (!due.old.empty())
        show(groupedNotice(due.old), due.old);
    for (const auto& queued : due.fresh)
        show(noticeOf(queued.request.content), {queued});
}

void ReminderEngine::show(const Notice& notice, const QueuedRequests& requests) {
    auto sequences = sequencesOf(requests);
    underWay_.insert(sequences.begin(), sequences.end());
    machine_.display.show(notice, [this, sequences = std::move(sequences)](const Result<std::string>& token) {
        answered(sequences, token);
    });
}

void ReminderEngine::answered(std::vector<std::int64_t> sequences, const Result<std::string>& token) {
    for (const auto sequence : sequences)
        underWay_.erase(sequence);
    if (token) {
        retryDelay_ = firstRetryDelay;
        unwritten_.push_back({std::move(sequences), token.value(), machine_.clock.now()});
        writeLedger();
    } else {
        retryLater(token.error());
    }
    finishIfIdle();
}

// The user wants none of these; kept, they would all come up on the day on which the answer changes.
void ReminderEngine::passUnseen(const Due& due) {
    const auto sequences = sequencesOf(joined(due.old, due.fresh));
    if (sequences.empty())
        return;
    unwritten_.push_back({sequences, "", machine_.clock.now()});
    writeLedger();
}

void ReminderEngine::writeLedger() {
    while (!unwritten_.empty()) {
        const auto& shown = unwritten_.front();
        if (const auto error = machine_.queue.retire(shown.sequences, shown.token, shown.when)) {
            retryLater(*error);
            return;
        }
        unwritten_.erase(unwritten_.begin());
    }
}

void ReminderEngine::retryLater(const Error& error) {
    machine_.console.print("Reminders: " + error.description);
    if (!retryAt_) {
        retryAt_ = machine_.clock.now() + retryDelay_;
        retryDelay_ = std::min(2 * retryDelay_, longestRetryDelay);
    }
    setAlarm();
}

void ReminderEngine::setAlarm() {
    alarm_.end();
    if (finished_ || (!next_ && !retryAt_))
        return;
    const auto due = std::min(next_.value_or(Instant::max()), retryAt_.value_or(Instant::max()));
    alarm_ = machine_.alarm.wakeAt(due, [this] { processDue(); });
}

void ReminderEngine::finishIfIdle() {
    if (!finished_ || !underWay_.empty())
        return;
    writeLedger();
    std::exchange(finished_, [] {})();
}

} // namespace tessivo
