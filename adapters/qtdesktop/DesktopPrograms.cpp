#include "qtdesktop/DesktopPrograms.h"

#include <QProcess>

#include <utility>

namespace tessivo::desktop {
namespace {

constexpr int patience = 2000; // milliseconds

Error failure(std::string description) {
    return {"Desktop", 1, std::move(description)};
}

} // namespace

void DesktopPrograms::run(const QString& program, const QStringList& arguments, const char* failed,
                          Done done) {
    auto* process = new QProcess(&running_);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QObject::connect(process, &QProcess::finished, &running_,
                     [process, failed, done](int code, QProcess::ExitStatus status) {
                         process->deleteLater();
                         done(code == 0 && status == QProcess::NormalExit ? Outcome()
                                                                          : Outcome(failure(failed)));
                     });
    QObject::connect(process, &QProcess::errorOccurred, &running_,
                     [process, program, done](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return; // `finished` follows
                         process->deleteLater();
                         done(failure("The program “" + program.toStdString() + "” cannot be started."));
                     });
    process->start(program, arguments);
}

bool DesktopPrograms::handles(const QString& scheme) {
    QProcess process;
    process.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                               QStringLiteral("x-scheme-handler/%1").arg(scheme)});
    return process.waitForFinished(patience) && !process.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace tessivo::desktop
