#include "qtdesktop/QtMailComposing.h"

#include <QTextDocument>
#include <QUrl>

#include <utility>

namespace tessivo {
namespace {

QString plainText(const std::string& html) {
    QTextDocument document;
    document.setHtml(QString::fromStdString(html));
    return document.toPlainText();
}

} // namespace

bool QtMailComposing::canSendMail() const {
    // A sandbox cannot see which programs there are: the portal looks for one, and asks the user.
    return desktop::DesktopPortal::isSandboxed()
               ? portal_.canComposeMail()
               : desktop::DesktopPrograms::handles(QStringLiteral("mailto"));
}

void QtMailComposing::compose(const MailMessage& message, Finished finished) {
    desktop::DesktopPortal::Mail mail{.recipient = QString::fromStdString(message.recipient),
                                      .subject = QString::fromStdString(message.subject),
                                      .body = plainText(message.htmlBody)};
    if (message.attachment)
        mail.attachment = QUrl(QString::fromStdString(message.attachment->address)).toLocalFile();
    QStringList arguments{QStringLiteral("--utf8"), QStringLiteral("--subject"), mail.subject,
                          QStringLiteral("--body"), mail.body};
    if (!mail.attachment.isEmpty())
        arguments << QStringLiteral("--attach") << mail.attachment;
    if (!mail.recipient.isEmpty())
        arguments << mail.recipient;
    portal_.composeMail(
        mail, [this, arguments, finished = std::move(finished)](desktop::DesktopPortal::Answer answer) {
            if (answer == desktop::DesktopPortal::Answer::Done)
                finished(std::nullopt);
            else
                programs_.run(QStringLiteral("xdg-email"), arguments, "No mail program took the message.",
                              finished);
        });
}

} // namespace tessivo
