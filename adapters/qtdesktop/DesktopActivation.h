#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace tessivo {

/// The program's place on the session bus, by which a click on a reminder or a second start finds the window
/// that is open already.
class DesktopActivation final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    struct Request {
        QString activationToken; ///< the desktop's permission to come to the front; empty where it gave none
        QString action;    ///< of the program's desktop entry, or what its helper asks for; may be empty
        QString parameter; ///< of the action
    };
    using Activated = std::function<void(const Request& request)>;

    DesktopActivation(const QDBusConnection& bus, Activated activated)
        : bus_(bus), activated_(std::move(activated)) {}

    /// Takes the place. False where another window has it: that one has been asked to come to the front, and
    /// for `action` unless it is empty. Otherwise the action is asked of this program, in a later turn of the
    /// main loop. Without a session bus the answer is true, and nobody finds this window.
    [[nodiscard]] bool claim(const QString& action);

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameters, const QVariantMap& platformData);

private:
    [[nodiscard]] bool takePlace();
    void passOn(const QString& action);

    QDBusConnection bus_;
    Activated activated_;
};

} // namespace tessivo
