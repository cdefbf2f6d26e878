#include "Support/EventImages.h"

#include "Interface/MainScreen.h"
#include "Interface/PictureLoader.h"
#include "Ports/Console.h"
#include "Ports/DocumentFiles.h"
#include "Ports/ImageCoding.h"
#include "Ports/Url.h"

namespace tessivo {
namespace {

constexpr double quality = 1;

PixelSize pixelsFor(ui::Size drawn, const ui::MainScreen& screen) {
    return ui::pixelsCovering(drawn.width > 0 && drawn.height > 0 ? drawn : screen.size(), screen.scale());
}

} // namespace

std::optional<std::string> EventImages::saveImage(const ui::Image& image, const std::string& fileName) {
    if (!image.bitmap)
        return std::nullopt;
    auto data = platform_.images.jpeg(*image.bitmap, quality);
    if (!data)
        data = platform_.images.png(*image.bitmap);
    if (!data)
        return std::nullopt;
    const auto path = platform_.documentFiles.write(fileName, *data);
    if (!path) {
        platform_.console.print("Ошибка при сохранении изображения: " + path.error().description);
        return std::nullopt;
    }
    return path.value();
}

void EventImages::keepUnsplashImage(const ui::Image& image, const std::string& urlText) {
    const auto url = Url::parse(urlText);
    if (!url)
        return platform_.console.print("Некорректный URL-адрес изображения.");
    if (const auto path = saveImage(image, url->lastPathComponent()))
        platform_.console.print("Изображение сохранено по пути: " + *path);
    else
        platform_.console.print("Не удалось сохранить изображение.");
}

ui::Image EventImages::loadUnsplashImage(const std::string& urlText, ui::Size drawn) const {
    const auto url = Url::parse(urlText);
    const auto data = url ? platform_.documentFiles.read(url->lastPathComponent()) : std::nullopt;
    return {{}, data ? platform_.images.decode(*data, pixelsFor(drawn, screen_)) : nullptr};
}

ui::Image EventImages::showUnsplashImage(const std::string& urlText, ui::Size drawn) const {
    ui::Image image = loadUnsplashImage(urlText, drawn);
    if (!image.isSet())
        platform_.console.print("Не удалось загрузить изображение.");
    return image;
}

void EventImages::loadPhoto(const std::string& photoPath, ui::Size drawn,
                            std::function<void(ui::Image)> read) const {
    loader_.load({.http = {.url = photoPath, .kind = AddressKind::File},
                  .covering = pixelsFor(drawn, screen_),
                  .cache = nullptr,
                  .failureLine = "Ошибка загрузки изображения: "},
                 [read = std::move(read)](const std::shared_ptr<const Bitmap>& picture, bool) {
                     read({{}, picture});
                 });
}

} // namespace tessivo
