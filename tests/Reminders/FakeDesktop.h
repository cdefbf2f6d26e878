#pragma once

#include "Reminders/AppActivation.h"
#include "Reminders/NotificationDisplay.h"
#include "fakes/Timeline.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tessivo {

/// A desktop on the virtual time line, which outlives the processes that talk to it.
struct FakeDesktop {
    struct Shown {
        std::string token;
        Notice notice;
        Instant when;
    };

    bool isUp = true;
    std::vector<Shown> shown;
    std::function<void(int call)> onShow = [](int) {};
};

/// One process's connection to the desktop. Calls under way when it is dropped never arrive, or get no
/// answer.
class FakeDisplay final : public NotificationDisplay {
public:
    FakeDisplay(fakes::Timeline& line, FakeDesktop& desktop) : line_(line), desktop_(desktop) {}

    /// How long a notice takes to reach the desktop, and its answer to come back.
    void setLatency(Seconds there, Seconds back) {
        there_ = there;
        back_ = back;
    }

    Subscription listen(Events events) override {
        events_ = std::move(events);
        return Subscription([this] { events_ = {}; });
    }

    void show(const Notice& notice, std::function<void(const Result<std::string>&)> answer) override {
        const auto call = ++calls;
        onCall(call, notice);
        underWay_.push_back(
            line_.once(there_, [this, call, notice, answer] { arrive(call, notice, answer); }));
    }

    void comeUp() {
        desktop_.isUp = true;
        events_.available();
    }

    void open(const std::string& token, const std::string& activation) { events_.opened(token, activation); }

    int calls = 0;
    std::function<void(int call, const Notice&)> onCall = [](int, const Notice&) {};
    std::function<void(int call)> onFailure = [](int) {};

private:
    void arrive(int call, const Notice& notice,
                const std::function<void(const Result<std::string>&)>& answer) {
        if (!desktop_.isUp) {
            onFailure(call);
            answer(Error{"Desktop", 1, "Nobody shows notifications"});
            return;
        }
        const auto token = "shown-" + std::to_string(desktop_.shown.size());
        desktop_.shown.push_back({token, notice, line_.now()});
        desktop_.onShow(call);
        underWay_.push_back(line_.once(back_, [answer, token] { answer(token); }));
    }

    fakes::Timeline& line_;
    FakeDesktop& desktop_;
    Events events_;
    Seconds there_{0.01};
    Seconds back_{0.01};
    std::vector<Subscription> underWay_;
};

class FakeAppActivation final : public AppActivation {
public:
    void activate(const std::string& activation, const std::optional<std::string>& event) override {
        activations.emplace_back(activation, event);
    }

    std::vector<std::pair<std::string, std::optional<std::string>>> activations;
};

} // namespace tessivo
