#include "qtimage/QtImageCoding.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <gtest/gtest.h>

#include <array>

namespace tessivo {
namespace {

using Pixel = std::array<int, 4>;

Pixel pixelAt(const Bitmap& bitmap, int x, int y) {
    const auto at = (static_cast<std::size_t>(y) * bitmap.width + x) * 4;
    return {bitmap.pixels[at], bitmap.pixels[at + 1], bitmap.pixels[at + 2], bitmap.pixels[at + 3]};
}

/// Red on the left half, blue on the right.
QImage twoHalves(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < height; ++y) {
        for (int x = width / 2; x < width; ++x)
            image.setPixelColor(x, y, Qt::blue);
    }
    return image;
}

std::string written(const QImage& image, const char* format,
                    QImageIOHandler::Transformations transformation = QImageIOHandler::TransformationNone) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    writer.setTransformation(transformation);
    EXPECT_TRUE(writer.write(image)) << format;
    return buffer.data().toStdString();
}

bool isNear(Pixel one, Pixel other) {
    for (std::size_t part = 0; part < one.size(); ++part) {
        if (std::abs(one[part] - other[part]) > 8)
            return false;
    }
    return true;
}

constexpr Pixel red{255, 0, 0, 255};
constexpr Pixel blue{0, 0, 255, 255};
const QtImageCoding coding;

TEST(QtImageCoding, ReadsTheUsualFormats) {
    for (const char* format : {"JPG", "PNG", "WEBP"}) {
        const auto bitmap = coding.decode(written(twoHalves(32, 16), format), {});
        ASSERT_NE(bitmap, nullptr) << format;
        EXPECT_EQ(bitmap->width, 32);
        EXPECT_EQ(bitmap->height, 16);
        EXPECT_TRUE(isNear(pixelAt(*bitmap, 4, 8), red)) << format;
        EXPECT_TRUE(isNear(pixelAt(*bitmap, 28, 8), blue)) << format;
    }
    const std::string gif("GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\0\xff,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
    ASSERT_NE(coding.decode(gif, {}), nullptr);
    EXPECT_EQ(pixelAt(*coding.decode(gif, {}), 0, 0), red);
}

TEST(QtImageCoding, RefusesWhatIsNoPicture) {
    const std::string whole = written(twoHalves(64, 64), "PNG");
    for (const std::string& data :
         {std::string(), std::string("<html>"), written(twoHalves(8, 8), "BMP"),
          std::string("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>"), whole.substr(0, 20),
          std::string("\x89PNG\r\n\x1a\n")})
        EXPECT_EQ(coding.decode(data, {}), nullptr);
}

TEST(QtImageCoding, TurnsPicturesUpright) {
    const auto data = written(twoHalves(32, 16), "JPG", QImageIOHandler::TransformationRotate90);
    const auto bitmap = coding.decode(data, {});
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->width, 16);
    EXPECT_EQ(bitmap->height, 32);
    EXPECT_TRUE(isNear(pixelAt(*bitmap, 8, 2), red));
    EXPECT_TRUE(isNear(pixelAt(*bitmap, 8, 30), blue));
    const auto small = coding.decode(data, PixelSize{8, 8});
    EXPECT_EQ(small->width, 8);
    EXPECT_EQ(small->height, 16);
}

TEST(QtImageCoding, ReducesAPictureToWhatIsDrawn) {
    struct Case {
        PixelSize covering;
        PixelSize expected;
    };
    for (const char* format : {"JPG", "PNG"}) {
        const auto data = written(twoHalves(400, 200), format);
        for (const auto& [covering, expected] :
             {Case{{100, 100}, {200, 100}}, Case{{100, 10}, {100, 50}}, Case{{400, 200}, {400, 200}},
              Case{{4000, 10}, {400, 200}}, Case{{0, 0}, {1, 1}}}) {
            const auto bitmap = coding.decode(data, covering);
            ASSERT_NE(bitmap, nullptr);
            EXPECT_EQ((PixelSize{bitmap->width, bitmap->height}), expected) << format;
        }
    }
}

TEST(QtImageCoding, RefusesAPictureTooLargeByItsHeader) {
    std::string data = written(twoHalves(8, 8), "JPG");
    const auto sizes = data.find("\xFF\xC0") + 5; // after the frame's mark, length and depth
    const auto claim = [&](int width, int height) {
        for (const auto& [at, side] : {std::pair(sizes, height), std::pair(sizes + 2, width)}) {
            data[at] = static_cast<char>(side / 256);
            data[at + 1] = static_cast<char>(side % 256);
        }
        return coding.decode(data, PixelSize{10, 10});
    };
    EXPECT_NE(claim(8, 8), nullptr);
    EXPECT_EQ(claim(10'000, 10'000), nullptr);
    EXPECT_EQ(claim(60'000, 60'000), nullptr);
}

TEST(QtImageCoding, WritesWhatItReads) {
    const auto bitmap = coding.decode(written(twoHalves(32, 16), "PNG"), {});
    const auto again = coding.decode(*coding.png(*bitmap), {});
    EXPECT_EQ(*again, *bitmap);
    const auto jpeg = coding.jpeg(*bitmap, 1);
    ASSERT_TRUE(jpeg);
    EXPECT_TRUE(jpeg->starts_with("\xff\xd8"));
    EXPECT_TRUE(isNear(pixelAt(*coding.decode(*jpeg, {}), 4, 8), red));
    EXPECT_LT(coding.jpeg(*bitmap, 0.1)->size(), jpeg->size());
    EXPECT_EQ(coding.jpeg({}, 1), std::nullopt);
    EXPECT_EQ(coding.png({2, 2, {1, 2, 3}}), std::nullopt);
}

} // namespace
} // namespace tessivo
