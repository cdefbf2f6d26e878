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
class PictureLoader;
} // namespace ui

/// The pictures behind events. A picture of the photo service is kept in the program's own documents, under
/// the last name of its address: events with the same picture share one file. A photo of the user's is read
/// from the address that the photo library gave. Failures go to the console only. Main thread.
class EventImages {
public:
    /// All of these outlive the images.
    EventImages(const Platform& platform, const ui::MainScreen& screen, ui::PictureLoader& loader)
        : platform_(platform), screen_(screen), loader_(loader) {}

    /// Writes the picture as the document `fileName`, in place of an older one, and returns its path; empty
    /// if it cannot be encoded or written.
    [[nodiscard]] std::optional<std::string> saveImage(const ui::Image& image, const std::string& fileName);

    /// Saves the chosen picture of that address, and logs the outcome.
    void keepUnsplashImage(const ui::Image& image, const std::string& urlText);

    /// The saved picture of that address, for an area of `drawn` points; unset if there is none.
    [[nodiscard]] ui::Image loadUnsplashImage(const std::string& urlText, ui::Size drawn) const;

    /// The same; logs a picture that is missing.
    [[nodiscard]] ui::Image showUnsplashImage(const std::string& urlText, ui::Size drawn) const;

    /// Reads the photo at `photoPath` off the main thread and hands it to `read` on it: unset if the file
    /// cannot be read, which is logged, or holds no picture.
    void loadPhoto(const std::string& photoPath, ui::Size drawn, std::function<void(ui::Image)> read) const;

private:
    const Platform& platform_;
    const ui::MainScreen& screen_;
    ui::PictureLoader& loader_;
};

} // namespace tessivo
