#pragma once

#include "Reminders/WallAlarm.h"
#include "fakes/Timeline.h"

#include <map>
#include <memory>

namespace tessivo::fakes {

/// A wall alarm on the virtual time line. A change of the line's wall clock is announced by `clockWasSet`,
/// which stands for the machine's own notice, and for its resuming from a suspend.
class FakeWallAlarm final : public WallAlarm {
public:
    explicit FakeWallAlarm(Timeline& line) : line_(line) {}

    [[nodiscard]] Subscription wakeAt(Instant due, std::function<void()> wake) override {
        const auto number = next_++;
        auto timer = line_.once(due - line_.now(), [this, number] { ring(number); });
        alarms_.emplace(number, Alarm{std::move(wake), std::move(timer)});
        return Subscription([this, number] { alarms_.erase(number); });
    }

    void clockWasSet() {
        for (auto& [number, alarm] : alarms_)
            alarm.timer = line_.once(Seconds(0), [this, number = number] { ring(number); });
    }

    [[nodiscard]] int wakes() const { return wakes_; }

private:
    struct Alarm {
        std::function<void()> wake;
        Subscription timer;
    };

    void ring(int number) {
        const auto wake = std::move(alarms_.at(number).wake);
        alarms_.erase(number);
        ++wakes_;
        wake();
    }

    Timeline& line_;
    std::map<int, Alarm> alarms_;
    int next_ = 0;
    int wakes_ = 0;
};

} // namespace tessivo::fakes
