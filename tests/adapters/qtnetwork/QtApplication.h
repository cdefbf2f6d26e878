#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <functional>

namespace tessivo {

/// The application that Qt's parts need, one for the test program.
inline QCoreApplication& qtApplication() {
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    return application;
}

/// Runs the main loop until `done`; false if that takes longer than only a fault can explain.
inline bool runUntil(const std::function<bool()>& done) {
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 5'000)
        qtApplication().processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    return done();
}

} // namespace tessivo
