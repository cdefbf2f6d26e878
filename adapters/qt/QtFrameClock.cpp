#include "qt/QtFrameClock.h"

#include <QQuickWindow>

#include <vector>

namespace tessivo {

QtFrameClock::QtFrameClock() {
    time_.start();
}

void QtFrameClock::setWindow(QQuickWindow* window) {
    if (window_)
        window_->disconnect(&context_);
    window_ = window;
    if (!window)
        return;
    // Animations are stepped on the main thread right before the scene is handed to the renderer.
    QObject::connect(window, &QQuickWindow::afterAnimating, &context_, [this] { frame(); });
    askForFrame();
}

Subscription QtFrameClock::listen(std::function<void(Seconds timestamp)> frame) {
    const auto identifier = ++last_;
    listeners_.emplace(identifier, std::make_shared<std::function<void(Seconds)>>(std::move(frame)));
    askForFrame();
    return Subscription([this, identifier, alive = std::weak_ptr(alive_)] {
        if (!alive.expired())
            listeners_.erase(identifier);
    });
}

void QtFrameClock::frame() {
    const Seconds timestamp(static_cast<double>(time_.nsecsElapsed()) * 1e-9);
    std::vector<std::uint64_t> listening;
    for (const auto& [identifier, call] : listeners_)
        listening.push_back(identifier);
    for (const auto identifier : listening) {
        if (const auto found = listeners_.find(identifier); found != listeners_.end()) {
            const auto call = found->second;
            (*call)(timestamp);
        }
    }
    askForFrame();
}

void QtFrameClock::askForFrame() {
    if (window_ && !listeners_.empty())
        window_->update();
}

} // namespace tessivo
