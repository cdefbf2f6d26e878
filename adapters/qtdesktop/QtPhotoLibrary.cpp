#include "qtdesktop/QtPhotoLibrary.h"

#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace tessivo {
namespace {

const QString title = QStringLiteral("Photo Library");
const QString kind = QStringLiteral("Pictures");

constexpr int turnedAway = 1; // what both programs end with when the user chooses nothing

Error failure(std::string description) {
    return {"PhotoLibrary", 1, std::move(description)};
}

/// Photos are pixels: drawings are left out.
bool isPhoto(const QByteArray& format) {
    return !format.contains("svg") && !format.contains("pdf");
}

QStringList mediaTypes() {
    QStringList types;
    for (const auto& type : QImageReader::supportedMimeTypes()) {
        if (isPhoto(type))
            types.push_back(QString::fromLatin1(type));
    }
    return types;
}

QStringList namePatterns() {
    QStringList patterns;
    for (const auto& format : QImageReader::supportedImageFormats()) {
        if (isPhoto(format))
            patterns.push_back(QStringLiteral("*.") + QString::fromLatin1(format));
    }
    return patterns;
}

struct Chooser {
    QString program; ///< empty where none is installed
    QStringList arguments;
};

Chooser installedChooser() {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const Chooser kdialog{QStandardPaths::findExecutable(QStringLiteral("kdialog")),
                          {QStringLiteral("--title"), title, QStringLiteral("--getopenfilename"), pictures,
                           mediaTypes().join(u' ')}};
    const Chooser zenity{QStandardPaths::findExecutable(QStringLiteral("zenity")),
                         {QStringLiteral("--file-selection"), QStringLiteral("--title"), title,
                          QStringLiteral("--filename"), pictures + u'/', QStringLiteral("--file-filter"),
                          kind + QStringLiteral(" | ") + namePatterns().join(u' ')}};
    const bool kde = qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("KDE"));
    const Chooser& first = kde ? kdialog : zenity;
    return first.program.isEmpty() ? kde ? zenity : kdialog : first;
}

/// What a chooser that has ended says.
PhotoLibrary::Choice choiceOf(QProcess& chooser, int code, QProcess::ExitStatus status) {
    if (status == QProcess::NormalExit && code == turnedAway)
        return std::optional<std::string>();
    QByteArray path = chooser.readAllStandardOutput();
    if (path.endsWith('\n'))
        path.chop(1);
    if (status != QProcess::NormalExit || code != 0 || path.isEmpty())
        return failure("The window to choose a photo in has failed.");
    return std::optional(QUrl::fromLocalFile(QString::fromLocal8Bit(path)).toEncoded().toStdString());
}

} // namespace

void QtPhotoLibrary::choosePhoto(Chosen chosen) {
    if (open_) {
        open_->disconnect(&programs_); // a program that is stopped has chosen nothing
        delete open_;
    }
    open_ = portal_.chooseFile(
        title, kind, mediaTypes(),
        [this, chosen = std::move(chosen)](desktop::DesktopPortal::Answer answer, const QStringList& files) {
            if (answer == desktop::DesktopPortal::Answer::Absent)
                runChooser(chosen);
            else if (files.isEmpty())
                chosen(std::optional<std::string>());
            else
                chosen(std::optional(files.front().toStdString()));
        });
}

void QtPhotoLibrary::runChooser(Chosen chosen) {
    const auto [program, arguments] = installedChooser();
    if (program.isEmpty())
        return chosen(failure("This desktop has no window to choose a photo in."));
    auto* process = new QProcess(&programs_);
    open_ = process;
    QObject::connect(process, &QProcess::finished, &programs_,
                     [process, chosen](int code, QProcess::ExitStatus status) {
                         process->deleteLater();
                         chosen(choiceOf(*process, code, status));
                     });
    QObject::connect(process, &QProcess::errorOccurred, &programs_,
                     [process, chosen](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return; // what started ends
                         process->deleteLater();
                         chosen(failure("The window to choose a photo in cannot be opened."));
                     });
    process->start(program, arguments);
}

} // namespace tessivo
