#include "qtdesktop/QtPhotoLibrary.h"

#include "qtdesktop/PictureFiles.h"

#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <array>
#include <utility>

namespace tessivo {
namespace {

const QString title = QStringLiteral("Photo Library");
const QString pictureKind = QStringLiteral("Pictures");

using Choice = PhotoLibrary::Choice;

constexpr int cancelledExitCode = 1; // what both programs end with when the user chooses nothing

Error failure(std::string description) {
    return {"PhotoLibrary", 1, std::move(description)};
}

/// The kinds that the program shows; which of them this machine reads, its plugins decide.
bool isPhoto(const QByteArray& format) {
    constexpr std::array kinds{"jpg", "jpeg", "png", "webp", "gif", "heic", "heif", "avif"};
    const QByteArray kind = format.split('/').back();
    return std::ranges::any_of(kinds, [&](const char* known) { return kind == known; });
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
                          pictureKind + QStringLiteral(" | ") + namePatterns().join(u' ')}};
    const bool kde = qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("KDE"));
    const Chooser& first = kde ? kdialog : zenity;
    return first.program.isEmpty() ? kde ? zenity : kdialog : first;
}

/// A portal's address in the program's own spelling: portals differ in what they escape.
Choice choiceOf(const QString& address) {
    if (const auto url = Url::parse(address.toStdString()); url && url->filePath())
        return std::optional(*url);
    const QUrl url(address);
    if (!url.isLocalFile())
        return failure("This photo is not a file on this computer.");
    return std::optional(Url::ofFile(QFile::encodeName(url.toLocalFile()).toStdString()));
}

/// What a chooser that has ended says.
Choice choiceOf(QProcess& chooser, int code, QProcess::ExitStatus status) {
    if (status == QProcess::NormalExit && code == cancelledExitCode)
        return std::optional<Url>();
    QByteArray path = chooser.readAllStandardOutput();
    if (path.endsWith('\n'))
        path.chop(1);
    if (status != QProcess::NormalExit || code != 0 || path.isEmpty())
        return failure("The window to choose a photo in has failed.");
    return std::optional(Url::ofFile(path.toStdString()));
}

} // namespace

void QtPhotoLibrary::choosePhoto(Chosen chosen) {
    if (open_) {
        open_->disconnect(&programs_); // a program that is stopped has chosen nothing
        delete open_;
    }
    open_ = portal_.chooseFile(
        title, pictureKind, mediaTypes(),
        [this, chosen = std::move(chosen)](desktop::DesktopPortal::Answer answer, const QStringList& files) {
            if (answer == desktop::DesktopPortal::Answer::Absent)
                runChooser(chosen);
            else if (files.isEmpty())
                chosen(std::optional<Url>());
            else
                chosen(choiceOf(files.front()));
        });
}

Result<Url> QtPhotoLibrary::keep(std::string_view data) {
    const std::string name = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + ".jpg";
    const auto path = desktop::keepPrivately(folder_, name, data);
    if (!path)
        return path.error();
    return Url::ofFile(path.value().string());
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
