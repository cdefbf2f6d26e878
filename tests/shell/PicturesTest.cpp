#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/ReminderViewController.h"
#include "Event/CoreDataStack.h"
#include "Ports/DocumentFiles.h"
#include "bridge/BitmapImage.h"
#include "bridge/CardPaint.h"
#include "bridge/PictureFit.h"
#include "qtimage/QtImageCoding.h"
#include "shell/ControlWindow.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <QImage>
#include <QPainterPath>
#include <QQuickWindow>

#include <cmath>

namespace tessivo {
namespace {

double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(CardPicture, WhiteTextReadsOnAnyPictureWithoutAnOutlineAndTheRestKeepsItsColours) {
    const QSizeF size(358, 200);
    const QRectF upper(230, 24, 104, 50);
    const QRectF lower(24, 126, 150, 50);
    for (const QColor& ground : {QColor(Qt::white), QColor("#ffee58"), QColor("#7ec8e3"), QColor("#00ff00"),
                                 QColor("#9e9e9e"), QColor("#303f9f"), QColor(Qt::black)}) {
        QImage picture(100, 100, QImage::Format_RGBA8888);
        picture.fill(ground);
        const QImage card = shell::cardPicture(picture, size, 2, ui::ContentMode::AspectFill, {upper, lower});
        ASSERT_EQ(card.size(), QSize(716, 400));
        for (const QRectF& text : {upper, lower}) {
            for (const QPointF& point : {text.topLeft(), text.center(), text.bottomRight() - QPointF(1, 1)}) {
                const QColor under = card.pixelColor((point * 2).toPoint());
                EXPECT_GE(1.05 / (luminance(under) + 0.05), 4.45) << ground.name().toStdString();
                if (1.05 / (luminance(ground) + 0.05) > 4.5) {
                    EXPECT_EQ(under.rgb(), ground.rgb());
                }
            }
        }
        const double toBare = 1.05 / (luminance(card.pixelColor(16, 60)) + 0.05);
        const double toGround = 1.05 / (luminance(ground) + 0.05);
        EXPECT_NEAR(toBare, toGround, 0.01) << "no text stands here";
        EXPECT_EQ(card.pixelColor(600, 8).rgb(), card.pixelColor(600, 100).rgb()) << "shaded up to the edge";
        EXPECT_EQ(card.pixelColor(708, 100).rgb(), card.pixelColor(600, 100).rgb())
            << "on both sides of a corner";
        for (int y = 50; y < 350; ++y)
            EXPECT_NEAR(card.pixelColor(600, y).green(), card.pixelColor(600, y + 1).green(), 3)
                << "no outline is seen";
    }
}

TEST(CardPicture, FitsAsItsViewSays) {
    QImage picture(40, 10, QImage::Format_RGBA8888); // black, its ends red
    picture.fill(Qt::black);
    for (int y = 0; y < 10; ++y) {
        picture.setPixelColor(0, y, Qt::red);
        picture.setPixelColor(39, y, Qt::red);
    }
    const auto card = [&](ui::ContentMode mode) {
        return shell::cardPicture(picture, {80, 80}, 1, mode, {});
    };
    EXPECT_EQ(card(ui::ContentMode::AspectFill).pixelColor(1, 40), QColor(Qt::black)) << "cut at its sides";
    EXPECT_GT(card(ui::ContentMode::AspectFit).pixelColor(0, 40).red(), 80);
    EXPECT_EQ(card(ui::ContentMode::AspectFit).pixelColor(40, 5).alpha(), 0);
    EXPECT_EQ(card(ui::ContentMode::Center).pixelColor(10, 40).alpha(), 0) << "not enlarged";
    EXPECT_EQ(card(ui::ContentMode::Center).pixelColor(40, 40), QColor(Qt::black));
}

using DrawnCard = ControlWindow;

TEST_F(DrawnCard, IsOfOnePieceUpToItsRoundedEdgeWhereverItLies) {
    const QRectF place(20.3, 30.6, 200.7, 100.4);
    QQuickItem& drawing =
        draw(*screen, "Rectangle { anchors.fill: parent; color: 'white' }"
                      "CardPaint { x: 20.3; y: 30.6; width: 200.7; height: 100.4; radius: 24 }");
    auto* card = drawing.findChild<shell::CardPaint*>();
    ASSERT_TRUE(card);
    QPainterPath inside;
    inside.addRoundedRect(place.adjusted(2, 2, -2, -2), 22, 22);
    const QColor blue("#2040c0");
    const QColor red("#c02040");
    for (const shell::Fill& fill :
         {shell::Fill{.color = blue, .fades = false, .first = {}, .second = {}, .start = {}, .end = {}},
          shell::Fill{
              .color = blue, .fades = true, .first = blue, .second = blue, .start = {}, .end = {1, 1}},
          shell::Fill{
              .color = blue, .fades = true, .first = red, .second = blue, .start = {}, .end = {1, 1}}}) {
        card->setFill(fill);
        const QImage drawn = window.grabWindow();
        int steps = 0;
        for (int y = 32; y < 129; ++y) {
            for (int x = 22; x < 219; ++x) {
                const QColor pixel = drawn.pixelColor(x, y);
                for (const QPoint next : {QPoint(x + 1, y), QPoint(x, y + 1)})
                    steps += inside.contains(QPointF(x + 0.5, y + 0.5)) &&
                             inside.contains(next + QPointF(0.5, 0.5)) &&
                             std::abs(pixel.red() - drawn.pixelColor(next).red()) > 4;
            }
        }
        EXPECT_EQ(steps, 0) << "no seams";
        for (const QPoint corner : {QPoint(22, 32), QPoint(219, 32), QPoint(22, 129), QPoint(219, 129)})
            EXPECT_EQ(drawn.pixelColor(corner), QColor(Qt::white));
    }
}

TEST_F(DrawnCard, ItsShadowLiesAroundIt) {
    draw(*screen, "Rectangle { anchors.fill: parent; color: 'white' }"
                  "Item { x: 40; y: 40; width: 200; height: 100; SoftShadow { radius: 24; strength: 0.1 } }");
    const QImage drawn = window.grabWindow();
    const auto at = [&](int x, int y) { return drawn.pixelColor(x, y); };
    const QColor white(Qt::white);
    EXPECT_EQ(at(140, 90), white) << "nothing is drawn where the card will cover it";
    EXPECT_LT(at(140, 140).lightness(), at(140, 148).lightness()) << "it fades downwards";
    EXPECT_LT(at(140, 148).lightness(), white.lightness());
    EXPECT_EQ(at(39, 90), at(240, 90)) << "and is as dark on both sides";
    EXPECT_LT(at(39, 90).lightness(), white.lightness());
    EXPECT_EQ(at(140, 39), at(200, 39)) << "an edge is all alike";
    EXPECT_EQ(at(140, 152), white);
}

/// The whole program's screens with pictures on a window, under real touches and keys.
class PicturesTest : public ControlWindow {
protected:
    PicturesTest() {
        program.screen.resize({390, 700}, 1);
        window.resize(390, 700);
        openWizard(program).textField.editTo("Summer");
        next<EventDateAndTimeViewController>(program).datePicker.pick(program.timeline.now() +
                                                                      Seconds(10 * 86400));
        next<ReminderViewController>(program);
        chooser = &next<EventBackgroundViewController>(program);
    }
    ~PicturesTest() override { undraw(); }

    void drawTop() {
        draw(*program.stack().top(), "ScreenContent { anchors.fill: parent; screen: root.screen }");
    }
    /// A picture that is dark blue, but for its right half, which is dark green.
    static QImage halves(int width, int height) {
        QImage picture(width, height, QImage::Format_RGBA8888);
        picture.fill(QColor("#101060"));
        for (int y = 0; y < height; ++y) {
            for (int x = width / 2; x < width; ++x)
                picture.setPixelColor(x, y, QColor("#105010"));
        }
        return picture;
    }
    static std::string bytes(const QImage& picture) {
        return *QtImageCoding().png(*shell::toBitmap(picture));
    }
    [[nodiscard]] bool seen(QPoint place, const QColor& color) {
        return runUntil([&] {
            const QColor drawn = window.grabWindow().pixelColor(place);
            return std::abs(drawn.red() - color.red()) < 6 && std::abs(drawn.green() - color.green()) < 6 &&
                   std::abs(drawn.blue() - color.blue()) < 6;
        });
    }
    void openCrop() {
        unsplash::UnsplashPhoto photo;
        photo.urls.emplace(unsplash::URLKind::regular, *Url::parse("https://i.test/p"));
        photo.user.name = "Ada L";
        const auto picker =
            unsplash::UnsplashPicker::make(program.services().photoPicker(), program.services().window(), {});
        chooser->photoPickerDidSelect(*picker, {std::make_shared<const unsplash::UnsplashPhoto>(photo)});
        program.http.answer(200, bytes(halves(1200, 600)));
        program.settle();
        drawTop();
    }
    [[nodiscard]] QColor previewed(double share) const {
        const QImage shown = shell::toQImage(chooser->eventView.photoView.image().bitmap);
        return shown.pixelColor(static_cast<int>(share * (shown.width() - 1)), shown.height() / 2);
    }

    Program program;
    EventBackgroundViewController* chooser;
};

TEST_F(PicturesTest, WhatAFingerScrollsIntoViewIsSaved) {
    openCrop();
    EXPECT_TRUE(seen({200, 300}, QColor("#101060")));
    for (int drag = 0; drag < 4; ++drag)
        hand.drag({350, 300}, {30, 300});
    EXPECT_TRUE(seen({200, 300}, QColor("#105010")));
    hand.tap(QStringLiteral("Save"));
    program.settle();
    ASSERT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(previewed(0), QColor("#105010"));
    EXPECT_EQ(previewed(1), QColor("#105010"));
    drawTop();
    EXPECT_TRUE(seen({195, 264}, QColor("#105010"))) << "the middle of the preview card";
}

TEST_F(PicturesTest, KeysScrollSaveAndLeave) {
    openCrop();
    hand.press(Qt::Key_Left);
    hand.press(Qt::Key_Right);
    auto& preview = program.top<UnsplahImageView>();
    EXPECT_EQ(preview.scrollView.contentOffset().x, 48) << "nothing lies left of the picture";
    hand.press(Qt::Key_Escape);
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser);
    EXPECT_FALSE(chooser->eventView.photoView.image().isSet());
    openCrop();
    hand.press(Qt::Key_Return);
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(previewed(0), QColor("#101060"));
}

TEST_F(PicturesTest, APhotoIsMovedAndEnlargedUnderItsFrame) {
    drawTop();
    hand.tap(QStringLiteral("Photo Library"));
    program.photoLibrary.choose(std::optional(Url::ofFile("/p")));
    program.settle();
    auto& picker = program.top<ImagePickerController>();
    drawTop();
    program.http.answer(HttpResponse{std::nullopt, {}, bytes(halves(1200, 600))});
    program.settle();
    hand.drag({300, 350}, {200, 350});
    const double right = picker.cropView.contentSize().width - picker.cropView.bounds().width;
    EXPECT_EQ(picker.cropView.contentOffset().x, right) << "the photo covers the frame";
    hand.pinch({195, 350}, 80, 240);
    EXPECT_NEAR(picker.cropView.zoomScale(), 2.4, 0.6) << "less what a touch takes to be a pinch";
    hand.pinch({195, 350}, 300, 40);
    EXPECT_EQ(picker.cropView.zoomScale(), 1);
    hand.turnMouseWheel({195, 350}, 3);
    EXPECT_GT(picker.cropView.zoomScale(), 1.2);
    hand.press(Qt::Key_Minus);
    hand.press(Qt::Key_Minus);
    hand.press(Qt::Key_Minus);
    hand.press(Qt::Key_Minus);
    EXPECT_EQ(picker.cropView.zoomScale(), 1);
    hand.press(Qt::Key_Plus);
    for (int press = 0; press < 12; ++press)
        hand.press(Qt::Key_Right);
    hand.press(Qt::Key_Return);
    program.settle();
    ASSERT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(previewed(1), QColor("#105010"));
}

TEST_F(PicturesTest, ACardOfTheListShowsItsPictureUnderItsText) {
    ASSERT_TRUE(program.documents.write("p", bytes(halves(600, 400))));
    chooser->eventData->gradient = NO_VALUE;
    chooser->eventData->unsplashPath = "https://i.test/p";
    chooser->unsplashImage = {{}, shell::toBitmap(halves(600, 400))};
    chooser->nextButton.tap();
    program.settle();
    drawTop();
    hand.tap(QStringLiteral("Future"));
    QQuickItem* card = nullptr;
    ASSERT_TRUE(runUntil([&] {
        program.timeline.runPosted();
        for (auto* item : drawnItems(*window.contentItem())) {
            if (accessibleName(*item).startsWith(QLatin1String("Summer")))
                card = item;
        }
        return card != nullptr;
    }));
    const QPointF middle = middleOf(*card);
    EXPECT_TRUE(seen((middle - QPointF(40, 0)).toPoint(), QColor("#101060")));
    EXPECT_TRUE(seen((middle + QPointF(40, 0)).toPoint(), QColor("#105010")));
    hand.drag(middle + QPointF(60, 0), middle - QPointF(120, 0));
    program.settle();
    EXPECT_TRUE(seen(QPointF(40, middle.y()).toPoint(), QColor("#105010")) ||
                seen(QPointF(40, middle.y()).toPoint(), QColor("#101060")))
        << "it goes along with the swipe";
}

} // namespace
} // namespace tessivo
