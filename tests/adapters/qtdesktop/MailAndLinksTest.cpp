#include "adapters/qtdesktop/OnPortal.h"
#include "adapters/qtdesktop/StandInPrograms.h"
#include "qt/QtMainQueue.h"
#include "qtdesktop/QtLinkOpener.h"
#include "qtdesktop/QtMailComposing.h"
#include "qtdesktop/QtTextSharing.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gmock/gmock.h>

namespace tessivo {
namespace {

/// Texts on their way to other programs of the desktop, without a bus.
class Handover : public testing::Test {
protected:
    Handover() : Handover(QDBusConnection(QStringLiteral("there is none"))) {}
    explicit Handover(const QDBusConnection& bus) : mail(bus), texts(bus, mainQueue) {
        std::ofstream(folder / "log file.txt") << "what was attached";
        message.attachment =
            MailAttachment{"file://" + (folder / "log%20file.txt").string(), "text/plain", ""};
    }

    Outcome compose() {
        return await<Outcome>([&](auto answer) { mail.compose(message, std::move(answer)); }, nobody);
    }
    using Act = void (TextSharing::*)(const std::string&, TextSharing::Done);
    Outcome share(Act act) {
        return await<Outcome>(
            [&](auto answer) {
                (static_cast<TextSharing&>(texts).*act)("In 3 days: “Zoë & Co” 🎂", std::move(answer));
            },
            nobody);
    }

    const Outcome nobody = Error{"Test", 0, "Nobody answered."};
    TemporaryFolder folder;
    StandInPrograms programs;
    MailMessage message{"help@example.org", "A Question", "<p>Device: Laptop <p>App: 1.0 &lt;3&gt;</p>"};
    QtMainQueue mainQueue;
    QtMailComposing mail;
    QtTextSharing texts;
};

TEST_F(Handover, WithoutAPortalTheDesktopsProgramsTakeTexts) {
    EXPECT_EQ(compose(), std::nullopt);
    EXPECT_EQ(programs.called(),
              "--utf8\n--subject\nA Question\n--body\nDevice: Laptop \nApp: 1.0 <3>\n--attach\n" +
                  (folder / "log file.txt").string() + "\nhelp@example.org\n");
    EXPECT_EQ(share(&TextSharing::mail), std::nullopt);
    EXPECT_EQ(programs.called(), "--utf8\n--body\nIn 3 days: “Zoë & Co” 🎂\n");
    EXPECT_EQ(share(&TextSharing::message), std::nullopt);
    EXPECT_EQ(programs.called(),
              "sms:?body=In%203%20days%3A%20%E2%80%9CZo%C3%AB%20%26%20Co%E2%80%9D%20%F0%9F%8E%82\n");
    EXPECT_EQ(share(&TextSharing::copy), std::nullopt);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("In 3 days: “Zoë & Co” 🎂"));
}

TEST_F(Handover, AProgramThatFailsIsToldInASentence) {
    programs.install("xdg-email", 4);
    programs.install("xdg-open", 3);
    EXPECT_EQ(compose()->description, "No mail program took the message.");
    EXPECT_EQ(share(&TextSharing::mail)->description, "No mail program took the text.");
    EXPECT_EQ(share(&TextSharing::message)->description, "No messenger took the text.");
    programs.removeAll();
    EXPECT_THAT(compose()->description, testing::HasSubstr("xdg-email"));
}

TEST_F(Handover, WhatTheDesktopHasNoProgramForIsNotOffered) {
    const QtLinkOpener links;
    for (const bool handled : {false, true}) {
        programs.handle(handled ? "*" : "none");
        EXPECT_EQ(mail.canSendMail(), handled);
        EXPECT_EQ(texts.canMessage(), handled);
        EXPECT_EQ(links.canOpen("appstream://org.tessivo.Tessivo"), handled);
        for (const auto* always : {"https://example.org/a?b#c", "http://example.org", "mailto:a@example.org"})
            EXPECT_TRUE(links.canOpen(always)) << always;
        for (const auto* never :
             {"", "file:///etc/passwd", "javascript:alert(1)", "vnc://example.org", "no link"})
            EXPECT_FALSE(links.canOpen(never)) << never;
    }
}

using HandoverByPortal = OnPortal<Handover>;

TEST_F(HandoverByPortal, ThePortalBeginsTheMail) {
    EXPECT_EQ(compose(), std::nullopt);
    EXPECT_EQ(share(&TextSharing::mail), std::nullopt);
    ASSERT_EQ(portal.asked.size(), 2U);
    const auto& asked = portal.asked.front();
    EXPECT_EQ(asked.method, "ComposeEmail");
    EXPECT_EQ(asked.contents, "what was attached");
    EXPECT_EQ(asked.options.value(QStringLiteral("subject")), QStringLiteral("A Question"));
    EXPECT_EQ(asked.options.value(QStringLiteral("body")), QStringLiteral("Device: Laptop \nApp: 1.0 <3>"));
    EXPECT_EQ(asked.options.value(QStringLiteral("addresses")),
              QStringList(QStringLiteral("help@example.org")));
    EXPECT_EQ(programs.called(), "") << "no other program is needed";

    portal.refuses = true;
    EXPECT_EQ(compose(), std::nullopt);
    EXPECT_THAT(programs.called(), testing::HasSubstr("A Question"));
}

} // namespace
} // namespace tessivo
