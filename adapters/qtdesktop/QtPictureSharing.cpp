#include "qtdesktop/QtPictureSharing.h"

#include "Ports/ImageCoding.h"
#include "Ports/MainQueue.h"
#include "Ports/WorkQueue.h"
#include "qtdesktop/PictureFiles.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <utility>

namespace tessivo {
namespace {

Error failure(std::string description) {
    return {"PictureSharing", 1, std::move(description)};
}

} // namespace

QtPictureSharing::QtPictureSharing(Folders folders, const QDBusConnection& bus, const ImageCoding& images,
                                   WorkQueue& background, MainQueue& mainQueue)
    : folders_(std::move(folders)),
      images_(images),
      background_(background),
      mainQueue_(mainQueue),
      portal_(bus) {}

void QtPictureSharing::save(std::shared_ptr<const Bitmap> picture, Saved saved) {
    write(desktop::keepPicture, folders_.pictures, std::move(picture),
          [saved = std::move(saved)](const Written& written) {
              if (written)
                  saved(written.value().string());
              else
                  saved(written.error());
          });
}

void QtPictureSharing::copy(std::shared_ptr<const Bitmap> picture, Done done) {
    const auto rowLength = static_cast<qsizetype>(picture->width) * 4;
    Outcome outcome;
    if (std::cmp_equal(picture->pixels.size(), rowLength * picture->height)) {
        const QImage view(picture->pixels.data(), picture->width, picture->height, rowLength,
                          QImage::Format_RGBA8888);
        QGuiApplication::clipboard()->setImage(view.copy());
    } else {
        outcome = failure("The picture is broken.");
    }
    mainQueue_.post([done = std::move(done), outcome = std::move(outcome)] { done(outcome); });
}

void QtPictureSharing::open(std::shared_ptr<const Bitmap> picture, Done done) {
    lend(std::move(picture), done, [this, done](const QString& path) {
        portal_.openFile(path, [this, path, done](desktop::DesktopPortal::Answer answer) {
            if (answer == desktop::DesktopPortal::Answer::Done)
                done(std::nullopt);
            else
                programs_.run(QStringLiteral("xdg-open"), {path}, "No program opened the picture.", done);
        });
    });
}

void QtPictureSharing::mail(std::shared_ptr<const Bitmap> picture, Done done) {
    lend(std::move(picture), done, [this, done](const QString& path) {
        portal_.composeMail({.attachment = path}, [this, path, done](desktop::DesktopPortal::Answer answer) {
            if (answer == desktop::DesktopPortal::Answer::Done)
                done(std::nullopt);
            else
                programs_.run(QStringLiteral("xdg-email"), {QStringLiteral("--attach"), path},
                              "No mail program took the picture.", done);
        });
    });
}

void QtPictureSharing::write(Writer writer, const std::filesystem::path& folder,
                             std::shared_ptr<const Bitmap> picture, std::function<void(Written)> written) {
    background_.post([writer, folder, picture = std::move(picture), written = std::move(written),
                      &images = images_, &mainQueue = mainQueue_, alive = std::weak_ptr(alive_)] {
        const auto bytes = images.png(*picture);
        Written result = bytes ? writer(folder, *bytes) : failure("The picture cannot be encoded.");
        mainQueue.post([result = std::move(result), written, alive] {
            if (!alive.expired())
                written(result);
        });
    });
}

void QtPictureSharing::lend(std::shared_ptr<const Bitmap> picture, Done done,
                            std::function<void(const QString& path)> next) {
    write(desktop::lendPicture, folders_.lent, std::move(picture),
          [done = std::move(done), next = std::move(next)](const Written& written) {
              if (written)
                  next(QString::fromStdString(written.value().string()));
              else
                  done(written.error());
          });
}

} // namespace tessivo
