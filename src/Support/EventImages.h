#pragma once

#include "Interface/Geometry.h"
#include "Interface/ImageView.h"
#include "Support/Platform.h"

#include <functional>
#include <optional>
#include <string>

namespace tessivo {

namespace ui {
class MainScreen;
}

/// The pictures behind events. A picture of the photo service is kept in the program's own documents, under
/// the last name of its address: events with the same picture share one file. A photo of the user's stays
/// where it lies. What goes wrong is said on the console only. Main thread.
class EventImages {
public:
    EventImages(const Platform& platform, const ui::MainScreen& screen)
        : platform_(platform), screen_(screen) {}

    /// Writes the picture as the document `fileName`, in place of an older one; gives its path. Empty where
    /// it cannot be coded or written.
    [[nodiscard]] std::optional<std::string> saveImage(const ui::Image& image, const std::string& fileName);

    /// Keeps the chosen picture of that address, and says on the console how that went.
    void keepUnsplashImage(const ui::Image& image, const std::string& urlText);

    /// The kept picture of that address, for an area of `drawn` points; no picture where there is none.
    [[nodiscard]] ui::Image loadUnsplashImage(const std::string& urlText, ui::Size drawn) const;

    /// The kept picture of that address; an absent one is said on the console.
    [[nodiscard]] ui::Image showUnsplashImage(const std::string& urlText, ui::Size drawn) const;

    /// Reads the picture at an address off the main thread, and hands it to `show` on it. Nothing comes of an
    /// address that gives no picture.
    void loadPhoto(const std::string& photoPath, ui::Size drawn, std::function<void(ui::Image)> show) const;

    /// The same, but `read` always hears how it ended: of an address that gives no picture, without one.
    void readPhoto(const std::string& photoPath, ui::Size drawn, std::function<void(ui::Image)> read) const;

private:
    const Platform& platform_;
    const ui::MainScreen& screen_;
};

} // namespace tessivo
