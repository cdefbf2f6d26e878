#include "qtdesktop/QtPictureSharing.h"
#include "adapters/qtdesktop/OnPortal.h"
#include "adapters/qtdesktop/StandInPrograms.h"
#include "qt/QtMainQueue.h"
#include "qtimage/QtImageCoding.h"
#include "standard/ThreadWorkQueue.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <chrono>

namespace tessivo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0;
}

std::size_t filesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

/// Sharing with programs of the test's own on the search path, and no bus.
class Sharing : public testing::Test {
protected:
    Sharing() : Sharing(QDBusConnection(QStringLiteral("there is none"))) {}
    explicit Sharing(const QDBusConnection& bus)
        : sharing({folder / "Pictures", folder / "lent"}, bus, images, background, mainQueue) {}

    using Act = void (PictureSharing::*)(std::shared_ptr<const Bitmap>, PictureSharing::Done);

    Outcome share(Act act) {
        return await<Outcome>(
            [&](auto answer) { (static_cast<PictureSharing&>(sharing).*act)(picture, std::move(answer)); },
            Error{"Test", 0, "Nobody answered."});
    }
    Result<std::string> save() {
        return await<Result<std::string>>([&](auto answer) { sharing.save(picture, std::move(answer)); },
                                          Error{"Test", 0, "Nobody answered."});
    }

    TemporaryFolder folder;
    StandInPrograms programs;
    std::shared_ptr<const Bitmap> picture =
        std::make_shared<Bitmap>(Bitmap{2, 1, {250, 10, 20, 255, 0, 0, 0, 0}});
    QtImageCoding images;
    QtMainQueue mainQueue;
    ThreadWorkQueue background;
    QtPictureSharing sharing;
};

TEST_F(Sharing, EachPictureIsSavedBesideTheOthersAndReplacesNone) {
    fs::create_directories(folder / "Pictures");
    std::ofstream(folder / "Pictures" / "Tessivo 2.png") << "the user's own";
    for (const auto* name : {"Tessivo.png", "Tessivo 3.png"}) {
        const auto saved = save();
        ASSERT_TRUE(saved) << saved.error().description;
        EXPECT_EQ(saved.value(), (folder / "Pictures" / name).string());
        EXPECT_EQ(*images.decode(contentsOf(folder / "Pictures" / name), {}), *picture) << name;
    }
    EXPECT_EQ(contentsOf(folder / "Pictures" / "Tessivo 2.png"), "the user's own");
}

TEST_F(Sharing, APictureThatCannotBeSavedIsAnErrorThatNamesThePlace) {
    std::ofstream(folder / "Pictures") << "a file where the folder should be";
    const auto saved = save();
    ASSERT_FALSE(saved);
    EXPECT_THAT(saved.error().description, HasSubstr((folder / "Pictures").string()));
}

TEST_F(Sharing, ABrokenPictureIsAnErrorAndLeavesNoFile) {
    picture = std::make_shared<Bitmap>(Bitmap{2, 2, {1, 2, 3}});
    EXPECT_FALSE(save());
    for (const Act act : {&PictureSharing::copy, &PictureSharing::open})
        EXPECT_TRUE(share(act));
    EXPECT_FALSE(fs::exists(folder / "Pictures"));
}

TEST_F(Sharing, TheClipboardGetsThePicture) {
    EXPECT_EQ(share(&PictureSharing::copy), std::nullopt);
    const QImage pasted = QGuiApplication::clipboard()->image();
    ASSERT_EQ(pasted.size(), QSize(2, 1));
    EXPECT_EQ(pasted.pixelColor(0, 0), QColor(250, 10, 20));
    EXPECT_EQ(pasted.pixelColor(1, 0).alpha(), 0);
}

TEST_F(Sharing, WithoutAPortalProgramsGetAFileThatOthersCannotRead) {
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    const auto lent = folder / "lent" / "Tessivo.png";
    EXPECT_EQ(programs.called(), lent.string() + "\n");
    EXPECT_EQ(*images.decode(contentsOf(lent), {}), *picture);
    EXPECT_EQ(modeOf(lent), 0600U);
    EXPECT_EQ(modeOf(folder / "lent"), 0700U);

    EXPECT_EQ(share(&PictureSharing::mail), std::nullopt);
    EXPECT_EQ(programs.called(), "--attach\n" + (folder / "lent" / "Tessivo 2.png").string() + "\n");
}

TEST_F(Sharing, WhatWasLentLongAgoIsTakenBack) {
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    fs::last_write_time(folder / "lent" / "Tessivo.png",
                        fs::file_time_type::clock::now() - std::chrono::hours(25));
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    EXPECT_EQ(filesIn(folder / "lent"), 2U);
}

TEST_F(Sharing, AProgramThatFailsOrIsMissingIsAnError) {
    programs.install("xdg-open", 3);
    const auto failed = share(&PictureSharing::open);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->description, "No program opened the picture.");

    programs.removeAll();
    const auto missing = share(&PictureSharing::mail);
    ASSERT_TRUE(missing);
    EXPECT_THAT(missing->description, HasSubstr("xdg-email"));
}

/// The same with a portal on a bus of the test's own.
using SharingByPortal = OnPortal<Sharing>;

TEST_F(SharingByPortal, ThePortalGetsThePictureAndAsksTheUserWhoOpensIt) {
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    EXPECT_EQ(share(&PictureSharing::mail), std::nullopt);
    ASSERT_EQ(portal.asked.size(), 2U);
    EXPECT_EQ(portal.asked[0].interface, "org.freedesktop.portal.OpenURI");
    EXPECT_EQ(portal.asked[0].method, "OpenFile");
    EXPECT_TRUE(portal.asked[0].ask);
    EXPECT_EQ(portal.asked[1].interface, "org.freedesktop.portal.Email");
    EXPECT_EQ(portal.asked[1].method, "ComposeEmail");
    for (const auto& asked : portal.asked) {
        const auto handedOver = images.decode(asked.contents, {});
        ASSERT_TRUE(handedOver) << asked.method;
        EXPECT_EQ(*handedOver, *picture) << asked.method;
    }
    EXPECT_EQ(programs.called(), "") << "no other program is needed";
}

TEST_F(SharingByPortal, AUserWhoTurnsAwayIsNotAskedAgain) {
    portal.response = 1;
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    EXPECT_EQ(programs.called(), "");
}

TEST_F(SharingByPortal, APortalThatCannotLeavesItToTheDesktopsPrograms) {
    portal.response = 2;
    EXPECT_EQ(share(&PictureSharing::open), std::nullopt);
    EXPECT_THAT(programs.called(), HasSubstr("Tessivo.png"));
    portal.refuses = true;
    EXPECT_EQ(share(&PictureSharing::mail), std::nullopt);
    EXPECT_THAT(programs.called(), HasSubstr("--attach"));
}

} // namespace
} // namespace tessivo
