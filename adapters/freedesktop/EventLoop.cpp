#include "freedesktop/EventLoop.h"

#include "freedesktop/BusError.h"

#include <sys/epoll.h>

#include <csignal>
#include <utility>

namespace tessivo::freedesktop {
namespace {

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

Outcome EventLoop::onTermination(std::function<void()> ended) {
    ended_ = std::make_unique<std::function<void()>>(std::move(ended));
    for (const int signal : {SIGTERM, SIGINT}) {
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, signal);
        pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
        // Without a handle of its own the source lives as long as the loop.
        if (const int status = sd_event_add_signal(event_.get(), nullptr, signal, signalCame, ended_.get());
            status < 0)
            return busError("Signals cannot be watched", status);
    }
    return {};
}

int EventLoop::run() {
    const int status = sd_event_loop(event_.get());
    return status < 0 ? 1 : status;
}

void EventLoop::quit(int exitCode) {
    sd_event_exit(event_.get(), exitCode);
}

} // namespace tessivo::freedesktop
