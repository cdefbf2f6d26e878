#include "freedesktop/EventLoop.h"

#include "freedesktop/BusError.h"

#include <sys/epoll.h>

#include <csignal>
#include <cstdint>
#include <utility>

namespace tessivo::freedesktop {
namespace {

constexpr std::uint64_t pollInterval = 30'000'000; // microseconds

struct Watch {
    std::function<void()> ready;
    Owned<sd_event_source> source;
};

int descriptorIsReady(sd_event_source*, int, std::uint32_t, void* data) {
    // A copy: what it does may end the watch.
    const auto ready = static_cast<Watch*>(data)->ready;
    ready();
    return 0;
}

int signalCame(sd_event_source*, const signalfd_siginfo*, void* data) {
    (*static_cast<std::function<void()>*>(data))();
    return 0;
}

} // namespace

Result<EventLoop> EventLoop::make() {
    Owned<sd_event> event;
    if (const int status = take(event, [](auto made) { return sd_event_new(made); }); status < 0)
        return busError("The main loop cannot be made", status);
    return EventLoop(std::move(event));
}

Subscription EventLoop::watch(int descriptor, std::function<void()> ready) {
    auto watch = std::make_shared<Watch>();
    watch->ready = std::move(ready);
    take(watch->source, [&](auto made) {
        return sd_event_add_io(event_.get(), made, descriptor, EPOLLIN, descriptorIsReady, watch.get());
    });
    return Subscription([watch = std::move(watch)]() mutable { watch.reset(); });
}

Subscription EventLoop::poll(std::function<void()> work) {
    const auto number = polls_->next++;
    polls_->works.emplace(number, std::move(work));
    polls_->hasNew = true;
    return Subscription([polls = polls_, number] { polls->works.erase(number); });
}

Outcome EventLoop::onSignals(std::initializer_list<int> signals, std::function<void()> came) {
    auto* handler =
        signalHandlers_.emplace_back(std::make_unique<std::function<void()>>(std::move(came))).get();
    for (const int signal : signals) {
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, signal);
        pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
        // Without a handle of its own the source lives as long as the loop.
        if (const int status = sd_event_add_signal(event_.get(), nullptr, signal, signalCame, handler);
            status < 0)
            return busError("Signals cannot be watched", status);
    }
    return {};
}

int EventLoop::run() {
    while (sd_event_get_state(event_.get()) != SD_EVENT_FINISHED) {
        const auto longestWait = polls_->works.empty()                  ? UINT64_MAX
                                 : std::exchange(polls_->hasNew, false) ? 0
                                                                        : pollInterval;
        if (sd_event_run(event_.get(), longestWait) < 0)
            return 1;
        runPolls();
    }
    int code = 0;
    return sd_event_get_exit_code(event_.get(), &code) < 0 ? 1 : code;
}

void EventLoop::runPolls() {
    const auto works = polls_->works; // a copy: what they do may add and end some
    for (const auto& [number, work] : works) {
        if (polls_->works.contains(number))
            work();
    }
}

void EventLoop::quit(int exitCode) {
    sd_event_exit(event_.get(), exitCode);
}

} // namespace tessivo::freedesktop
