#include "DemoPhotos.h"

#include <QStringList>

#include <csignal>
#include <sys/prctl.h>

namespace tessivo {
namespace {

constexpr int patience = 20'000; // ms

} // namespace

DemoPhotos::DemoPhotos(int photos) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The service must not outlive a program that crashes.
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(QStringLiteral("python3"),
                   {QStringLiteral(TESSIVO_DEMO_PHOTOS), QStringLiteral("--port"), QStringLiteral("0"),
                    QStringLiteral("--photos"), QString::number(photos), QStringLiteral("--tell")});
    while (!process_.canReadLine() && process_.waitForReadyRead(patience)) {
    }
    const QByteArray port = process_.readLine().trimmed();
    if (port.isEmpty())
        qFatal("The demo photo service does not start: %s", qPrintable(process_.errorString()));
    address_ = "http://127.0.0.1:" + port.toStdString();
}

void DemoPhotos::end() {
    process_.kill();
    process_.waitForFinished();
}

const std::vector<std::string>& DemoPhotos::told() {
    process_.waitForReadyRead(0);
    while (process_.canReadLine())
        told_.push_back(process_.readLine().trimmed().toStdString());
    return told_;
}

} // namespace tessivo
