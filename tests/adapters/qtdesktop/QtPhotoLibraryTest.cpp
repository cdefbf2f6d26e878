#include "qtdesktop/QtPhotoLibrary.h"

#include "adapters/qtdesktop/OnPortal.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace tessivo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

/// Runs the main loop until `done`, or for as long as only a fault takes.
void runUntil(const std::function<bool()>& done) {
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
}

/// The library on a desktop with programs of the test's own and no portal.
class PhotoChooser : public testing::Test {
protected:
    PhotoChooser() : PhotoChooser(QDBusConnection(QStringLiteral("there is none"))) {}
    explicit PhotoChooser(const QDBusConnection& bus) : library(bus) {
        ::setenv("PATH", folder.path().c_str(), 1);
        ::unsetenv("XDG_CURRENT_DESKTOP");
    }
    ~PhotoChooser() override { ::setenv("PATH", path.c_str(), 1); }

    /// A program that writes down what it was asked, says `answer` and ends with that code.
    void install(const std::string& name, const std::string& answer, int code) const {
        std::ofstream(folder.path() / name)
            << "#!/bin/sh\nprintf '%s\\n' " << name << " \"$@\" > '" << (folder / "called").string()
            << "'\nprintf '%s\\n' '" << answer << "'\nexit " << code << '\n';
        fs::permissions(folder.path() / name, fs::perms::owner_all);
    }
    [[nodiscard]] std::string called() const {
        std::ifstream file(folder / "called");
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Opens the library and waits for the answer, which must not come inline.
    PhotoLibrary::Choice choose() {
        std::optional<PhotoLibrary::Choice> answer;
        library.choosePhoto([&](PhotoLibrary::Choice choice) { answer = std::move(choice); });
        EXPECT_FALSE(answer);
        runUntil([&] { return answer.has_value(); });
        EXPECT_TRUE(answer) << "nobody answered";
        return answer.value_or(Error{});
    }

    std::string path = ::getenv("PATH");
    TemporaryFolder folder;
    QtPhotoLibrary library;
};

TEST_F(PhotoChooser, AProgramOfTheDesktopGivesTheFileAsAnAddress) {
    install("zenity", "/home/ada/50% sea & süd.jpg", 0);
    const auto choice = choose();
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice.value(), "file:///home/ada/50%25%20sea%20&%20s%C3%BCd.jpg");
    EXPECT_THAT(called(), HasSubstr("*.jpg"));
    EXPECT_THAT(called(), Not(HasSubstr("svg")));
}

TEST_F(PhotoChooser, EachDesktopGetsItsOwnProgramWhereBothAreInstalled) {
    install("zenity", "/a.jpg", 0);
    install("kdialog", "/b.jpg", 0);
    EXPECT_EQ(choose().value(), "file:///a.jpg");
    ::setenv("XDG_CURRENT_DESKTOP", "KDE", 1);
    EXPECT_EQ(choose().value(), "file:///b.jpg");
    EXPECT_THAT(called(), HasSubstr("image/jpeg"));
    fs::remove(folder / "kdialog");
    EXPECT_EQ(choose().value(), "file:///a.jpg");
}

TEST_F(PhotoChooser, TurningAwayIsNoErrorAndAFailingOrMissingProgramIs) {
    install("zenity", "", 1);
    const auto turnedAway = choose();
    ASSERT_TRUE(turnedAway);
    EXPECT_EQ(turnedAway.value(), std::nullopt);
    install("zenity", "", 5);
    EXPECT_EQ(choose().error().description, "The window to choose a photo in has failed.");
    fs::remove(folder / "zenity");
    EXPECT_EQ(choose().error().description, "This desktop has no window to choose a photo in.");
}

/// The same with a portal on a bus of the test's own.
using PhotoPortal = OnPortal<PhotoChooser>;

TEST_F(PhotoPortal, ThePortalOffersPicturesAndItsAddressIsHandedOnAsItComes) {
    portal.uris = {QStringLiteral("file:///run/user/1000/doc/a%20b.jpg")};
    EXPECT_EQ(choose().value(), "file:///run/user/1000/doc/a%20b.jpg");
    ASSERT_EQ(portal.asked.size(), 1U);
    EXPECT_EQ(portal.asked[0].interface, "org.freedesktop.portal.FileChooser");
    EXPECT_EQ(portal.asked[0].method, "OpenFile");
    for (const auto* type : {"image/jpeg", "image/png", "image/webp", "image/gif"})
        EXPECT_TRUE(portal.asked[0].mediaTypes.contains(QLatin1String(type))) << type;
}

TEST_F(PhotoPortal, ACancelIsNotAskedAgainAndAFailedPortalLeavesItToAProgram) {
    install("zenity", "/a.jpg", 0);
    portal.response = 1;
    EXPECT_EQ(choose().value(), std::nullopt);
    portal.response = 2;
    EXPECT_EQ(choose().value(), "file:///a.jpg");
    portal.refuses = true;
    EXPECT_EQ(choose().value(), "file:///a.jpg");
}

TEST_F(PhotoPortal, ANewChoiceTakesTheOpenOneAwayUnanswered) {
    portal.answers = false;
    library.choosePhoto([](const PhotoLibrary::Choice&) { ADD_FAILURE() << "the first was taken away"; });
    runUntil([&] { return portal.asked.size() == 1; });
    portal.answers = true;
    portal.uris = {QStringLiteral("file:///b.jpg")};
    EXPECT_EQ(choose().value(), "file:///b.jpg");
    runUntil([&] { return portal.closed > 0; });
    EXPECT_EQ(portal.closed, 1);
}

} // namespace
} // namespace tessivo
