#include "Support/EventImages.h"

#include "Interface/MainScreen.h"
#include "Ports/Console.h"
#include "Ports/DocumentFiles.h"
#include "Ports/HttpClient.h"
#include "Ports/ImageCoding.h"
#include "Ports/MainQueue.h"
#include "Ports/Url.h"

#include <cmath>

namespace tessivo {
namespace {

constexpr double quality = 1;

/// What must be read of a picture to draw it without blur.
PixelSize pixelsFor(ui::Size drawn, const ui::MainScreen& screen) {
    const ui::Size size = drawn.width > 0 && drawn.height > 0 ? drawn : screen.size();
    return {static_cast<int>(std::ceil(size.width * screen.scale())),
            static_cast<int>(std::ceil(size.height * screen.scale()))};
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
                            std::function<void(ui::Image)> show) const {
    readPhoto(photoPath, drawn, [show = std::move(show)](ui::Image image) {
        if (image.isSet())
            show(std::move(image));
    });
}

void EventImages::readPhoto(const std::string& photoPath, ui::Size drawn,
                            std::function<void(ui::Image)> read) const {
    const auto received = [platform = platform_, pixels = pixelsFor(drawn, screen_),
                           read = std::move(read)](const Result<HttpResponse>& answer) {
        ui::Image image;
        if (answer)
            image.bitmap = platform.images.decode(answer.value().body, pixels);
        else
            platform.console.print("Ошибка загрузки изображения: " + answer.error().description);
        platform.mainQueue.post([read, image] { read(image); });
    };
    platform_.http.start({.url = photoPath}, received);
}

} // namespace tessivo
