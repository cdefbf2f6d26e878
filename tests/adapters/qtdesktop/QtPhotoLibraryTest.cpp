#include "qtdesktop/QtPhotoLibrary.h"

#include "adapters/qtdesktop/OnPortal.h"
#include "qtnetwork/QtHttpClient.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <atomic>
#include <fstream>
#include <iterator>

namespace tessivo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

/// Runs the main loop until `done`, or until only a fault can explain the delay.
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
    explicit PhotoChooser(const QDBusConnection& bus) : library(bus, folder / "photos") {
        ::setenv("PATH", folder.path().c_str(), 1);
        ::unsetenv("XDG_CURRENT_DESKTOP");
    }
    ~PhotoChooser() override { ::setenv("PATH", path.c_str(), 1); }

    /// A program that records its arguments, prints `answer` and exits with that code.
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

    static std::string addressOf(const PhotoLibrary::Choice& choice) {
        return choice && choice.value() ? choice.value()->absoluteString() : "none";
    }
    /// What the program reads at an address that the desktop gave.
    static std::string contentAt(const std::string& address) {
        QtHttpClient client;
        std::atomic<bool> ended = false;
        std::string content;
        const auto task = client.start(
            {.url = address, .kind = AddressKind::File}, [&](const Result<HttpResponse>& answer) {
                content = answer ? answer.value().body : answer.error().description;
                ended = true;
            });
        runUntil([&] { return ended.load(); });
        return content;
    }

    std::string path = ::getenv("PATH");
    TemporaryFolder folder;
    QtPhotoLibrary library;
};

TEST_F(PhotoChooser, AProgramOfTheDesktopGivesTheFileAsAnAddress) {
    install("zenity", "/home/ada/50% sea & süd.jpg", 0);
    const auto choice = choose();
    ASSERT_TRUE(choice);
    EXPECT_EQ(addressOf(choice), "file:///home/ada/50%25%20sea%20&%20s%C3%BCd.jpg");
    EXPECT_THAT(called(), HasSubstr("*.jpg"));
    EXPECT_THAT(called(), Not(HasSubstr("svg")));
}

TEST_F(PhotoChooser, EachDesktopGetsItsOwnProgramWhereBothAreInstalled) {
    install("zenity", "/a.jpg", 0);
    install("kdialog", "/b.jpg", 0);
    EXPECT_EQ(addressOf(choose()), "file:///a.jpg");
    ::setenv("XDG_CURRENT_DESKTOP", "KDE", 1);
    EXPECT_EQ(addressOf(choose()), "file:///b.jpg");
    EXPECT_THAT(called(), HasSubstr("image/jpeg"));
    fs::remove(folder / "kdialog");
    EXPECT_EQ(addressOf(choose()), "file:///a.jpg");
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

/// Names with characters that an address must escape, or that mean something in one.
const std::vector<std::string> oddNames{"IMG[1].jpg", "a b (2).jpg",     "100% #1?.jpg",
                                        "%41.jpg",    "a;b=c&d+e.jpg",   "отпуск.jpg",
                                        "😀.jpg",      "back\\slash.jpg", "latin\xE9.jpg"};

TEST_F(PhotoChooser, EveryNameMakesAnAddressThatTheProgramReads) {
    for (const auto& name : oddNames) {
        std::ofstream(folder.path() / name) << "photo " << name;
        install("zenity", (folder.path() / name).string(), 0);
        const std::string address = addressOf(choose());
        EXPECT_TRUE(Url::parse(address)) << address;
        EXPECT_EQ(contentAt(address), "photo " + name);
    }
}

TEST_F(PhotoChooser, WhatIsKeptIsANewPrivateFileThatOutlivesTheOriginal) {
    const auto one = library.keep("one");
    const auto other = library.keep("other");
    ASSERT_TRUE(one && other);
    EXPECT_EQ(contentAt(one.value().absoluteString()), "one");
    EXPECT_EQ(contentAt(other.value().absoluteString()), "other");
    const fs::path file = *one.value().filePath();
    EXPECT_EQ(file.parent_path(), folder / "photos");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder / "photos").permissions(), fs::perms(0700));
    fs::remove_all(folder / "photos");
    std::ofstream(folder / "photos") << "in the way";
    EXPECT_THAT(library.keep("third").error().description, HasSubstr("cannot be written"));
}

/// The same with a portal on a bus of the test's own.
using PhotoPortal = OnPortal<PhotoChooser>;

TEST_F(PhotoPortal, ThePortalOffersPicturesAndItsAddressIsHandedOnAsItComes) {
    portal.uris = {QStringLiteral("file:///run/user/1000/doc/a%20b.jpg")};
    EXPECT_EQ(addressOf(choose()), "file:///run/user/1000/doc/a%20b.jpg");
    ASSERT_EQ(portal.asked.size(), 1U);
    EXPECT_EQ(portal.asked[0].interface, "org.freedesktop.portal.FileChooser");
    EXPECT_EQ(portal.asked[0].method, "OpenFile");
    for (const auto* type : {"image/jpeg", "image/png", "image/webp", "image/gif"})
        EXPECT_TRUE(portal.asked[0].mediaTypes.contains(QLatin1String(type))) << type;
}

TEST_F(PhotoPortal, AnAddressThatAPortalHalfEscapesIsSpeltAsTheProgramDoes) {
    for (const auto& [given, address] :
         {std::pair("file:///tmp/IMG[1].jpg", "file:///tmp/IMG%5B1%5D.jpg"),
          std::pair("file:///tmp/от пуск%23.jpg",
                    "file:///tmp/%D0%BE%D1%82%20%D0%BF%D1%83%D1%81%D0%BA%23.jpg"),
          std::pair("file:///tmp/latin%E9.jpg", "file:///tmp/latin%E9.jpg")}) {
        portal.uris = {QString::fromUtf8(given)};
        EXPECT_EQ(addressOf(choose()), address);
    }
    portal.uris = {QStringLiteral("https://x.test/a.jpg")};
    EXPECT_EQ(choose().error().description, "This photo is not a file on this computer.");
}

TEST_F(PhotoPortal, ACancelIsNotAskedAgainAndAFailedPortalLeavesItToAProgram) {
    install("zenity", "/a.jpg", 0);
    portal.response = 1;
    EXPECT_EQ(choose().value(), std::nullopt);
    portal.response = 2;
    EXPECT_EQ(addressOf(choose()), "file:///a.jpg");
    portal.refuses = true;
    EXPECT_EQ(addressOf(choose()), "file:///a.jpg");
}

TEST_F(PhotoPortal, ANewChoiceTakesTheOpenOneAwayUnanswered) {
    portal.answers = false;
    library.choosePhoto([](const PhotoLibrary::Choice&) { ADD_FAILURE() << "the first was taken away"; });
    runUntil([&] { return portal.asked.size() == 1; });
    portal.answers = true;
    portal.uris = {QStringLiteral("file:///b.jpg")};
    EXPECT_EQ(addressOf(choose()), "file:///b.jpg");
    runUntil([&] { return portal.closed > 0; });
    EXPECT_EQ(portal.closed, 1);
}

} // namespace
} // namespace tessivo
