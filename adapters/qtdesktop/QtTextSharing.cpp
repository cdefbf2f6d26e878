#include "qtdesktop/QtTextSharing.h"

#include "Ports/MainQueue.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QUrl>

#include <utility>

namespace tessivo {
namespace {

QString sms() {
    return QStringLiteral("sms");
}

} // namespace

void QtTextSharing::copy(const std::string& text, Done done) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    mainQueue_.post([done = std::move(done)] { done(std::nullopt); });
}

void QtTextSharing::mail(const std::string& text, Done done) {
    const QString body = QString::fromStdString(text);
    portal_.composeMail({.body = body},
                        [this, body, done = std::move(done)](desktop::DesktopPortal::Answer answer) {
                            if (answer == desktop::DesktopPortal::Answer::Done)
                                done(std::nullopt);
                            else
                                programs_.run(QStringLiteral("xdg-email"),
                                              {QStringLiteral("--utf8"), QStringLiteral("--body"), body},
                                              "No mail program took the text.", done);
                        });
}

bool QtTextSharing::canMessage() const {
    return desktop::DesktopPrograms::handles(sms());
}

void QtTextSharing::message(const std::string& text, Done done) {
    const QString body = QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(text)));
    programs_.run(QStringLiteral("xdg-open"), {sms() + QStringLiteral(":?body=") + body},
                  "No messenger took the text.", std::move(done));
}

} // namespace tessivo
