#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace tessivo::desktop {

/// The desktop's portal, through which a program reaches others even from a sandbox. Main thread of a running
/// Qt application; answers come in later turns of its loop, each question once, while this object lives.
class DesktopPortal final : public QObject {
public:
    enum class Answer {
        Done,  ///< handed over, or rejected by the user in the portal's own dialog
        Absent ///< no portal answers, or it cannot do this: there may be another way
    };
    using Answered = std::function<void(Answer)>;
    /// The addresses of the files; none where the user has chosen none.
    using Chosen = std::function<void(Answer, const QStringList& addresses)>;

    explicit DesktopPortal(const QDBusConnection& bus) : bus_(bus) {}

    /// Whether this process runs in a sandbox, where the portal is the only way out.
    [[nodiscard]] static bool isSandboxed();

    /// Lets the user choose the program that opens the file.
    void openFile(const QString& path, Answered answered);
    /// Asks that `command`, a program of this sandbox, be started at each login, and gives the user `reason`
    /// for it. Outside a sandbox an autostart entry does that.
    void startAtLogin(const QString& reason, const QStringList& command, Answered answered);
    /// What a mail begins with; what is empty is left to the user.
    struct Mail {
        QString recipient{};
        QString subject{};
        QString body{};       ///< plain text
        QString attachment{}; ///< path of a file
    };
    /// Begins a mail in the user's mail program.
    void composeMail(const Mail& mail, Answered answered);
    /// Whether a portal answers that begins mails. Waits for its answer.
    [[nodiscard]] bool canComposeMail() const;
    /// Lets the user choose a file of these media types. The question is closed, unanswered, when what comes
    /// back is deleted; it deletes itself once it is answered.
    QObject* chooseFile(const QString& title, const QString& kind, const QStringList& mediaTypes,
                        Chosen chosen);

private:
    using Responded = std::function<void(Answer, const QVariantMap& results)>;

    QObject* call(const char* interface, const char* method, QList<QVariant> arguments, QVariantMap options,
                  Responded responded);

    QDBusConnection bus_;
    int requests_ = 0; ///< made so far: each has a token of its own
};

} // namespace tessivo::desktop
