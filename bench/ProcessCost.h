#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace tessivo {

/// What this process has had of the processor since its start.
inline double processMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

inline double residentMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const auto line = text.mid(text.indexOf("VmRSS:") + 6);
    return line.left(line.indexOf("kB")).trimmed().toDouble() / 1024;
}

/// Tells the process that measures this one, and ends.
[[noreturn]] inline void report(double milliseconds) {
    std::printf("%f %f\n", milliseconds, residentMegabytes());
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace tessivo
