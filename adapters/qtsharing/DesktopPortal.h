#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace tessivo::sharing {

/// The desktop's portal, through which a program reaches others even from a sandbox. Main thread of a running
/// Qt application; answers come in later turns of its loop, each question once, while this object lives.
class DesktopPortal final : public QObject {
public:
    enum class Answer {
        Done,  ///< handed over, or turned away by the user in the portal's own dialog
        Absent ///< no portal answers, or it cannot do this: there may be another way
    };
    using Answered = std::function<void(Answer)>;

    explicit DesktopPortal(const QDBusConnection& bus) : bus_(bus) {}

    /// Lets the user choose the program that opens the file.
    void openFile(const QString& path, Answered answered);
    /// Begins a mail with the file attached.
    void composeMail(const QString& attachment, Answered answered);

private:
    void call(const char* interface, const char* method, QList<QVariant> arguments, QVariantMap options,
              Answered answered);

    QDBusConnection bus_;
    int requests_ = 0; ///< made so far: each has a token of its own
};

} // namespace tessivo::sharing
