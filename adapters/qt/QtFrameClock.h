#pragma once

#include "Ports/FrameClock.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

class QQuickWindow;

namespace tessivo {

/// The frames of a window. Asks the window for pictures only while somebody listens; without a window it is
/// silent until it gets one.
class QtFrameClock final : public FrameClock {
public:
    QtFrameClock();

    void setWindow(QQuickWindow* window);

    Subscription listen(std::function<void(Seconds timestamp)> frame) override;

private:
    void frame();
    void askForFrame();

    std::map<std::uint64_t, std::shared_ptr<std::function<void(Seconds)>>> listeners_;
    std::uint64_t last_ = 0;
    QElapsedTimer time_;
    QPointer<QQuickWindow> window_;
    QObject context_;                                            ///< ends the connections with the clock
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< handles may outlive the clock
};

} // namespace tessivo
