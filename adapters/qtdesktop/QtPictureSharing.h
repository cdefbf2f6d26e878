#pragma once

#include "Ports/PictureSharing.h"
#include "qtdesktop/DesktopPortal.h"
#include "qtdesktop/DesktopPrograms.h"

#include <filesystem>
#include <string>

namespace tessivo {

class ImageCoding;
class MainQueue;
class WorkQueue;

/// Sharing as a Linux desktop does it: files in the user's Pictures folder, the clipboard, and other programs
/// through the desktop's portal or, where none answers, through xdg-open and xdg-email. Pictures are encoded
/// off the main thread. Needs a running QGuiApplication.
class QtPictureSharing final : public PictureSharing {
public:
    struct Folders {
        std::filesystem::path pictures; ///< the user's own
        std::filesystem::path lent;     ///< for what other programs open, of this program alone
    };

    /// The ports outlive this object and, like `images`, work that it has posted.
    QtPictureSharing(Folders folders, const QDBusConnection& bus, const ImageCoding& images,
                     WorkQueue& background, MainQueue& mainQueue);

    void save(std::shared_ptr<const Bitmap> picture, Saved saved) override;
    void copy(std::shared_ptr<const Bitmap> picture, Done done) override;
    void open(std::shared_ptr<const Bitmap> picture, Done done) override;
    void mail(std::shared_ptr<const Bitmap> picture, Done done) override;

private:
    using Written = Result<std::filesystem::path>;
    using Writer = Written (*)(const std::filesystem::path& folder, std::string_view bytes);

    /// Encodes and writes it in the background.
    void write(Writer writer, const std::filesystem::path& folder, std::shared_ptr<const Bitmap> picture,
               std::function<void(Written)> written);
    /// Writes it for another program; goes on with `next`, or fails.
    void lend(std::shared_ptr<const Bitmap> picture, Done done,
              std::function<void(const QString& path)> next);

    Folders folders_;
    const ImageCoding& images_;
    WorkQueue& background_;
    MainQueue& mainQueue_;
    desktop::DesktopPrograms programs_;
    desktop::DesktopPortal portal_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< work may end after this object
};

} // namespace tessivo
