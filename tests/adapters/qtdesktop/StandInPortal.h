#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace tessivo {

/// The desktop's portal on a bus of the test's own. Records what it is given, and answers as the test says.
class StandInPortal final : public QDBusVirtualObject {
public:
    /// Takes the portal's name on the bus at `address`.
    explicit StandInPortal(const QString& address);
    ~StandInPortal() override;

    struct Asked {
        std::string interface;
        std::string method;
        std::string contents;     ///< of the file handed over
        bool ask = false;         ///< whether the user is to choose
        QStringList mediaTypes{}; ///< of the files that can be chosen
        QVariantMap options{};
    };

    bool refuses = false; ///< fails each call, as a portal without that interface does
    uint response = 0;    ///< 0 success, 1 cancelled by the user, 2 failed
    bool answers = true;  ///< false leaves the question open
    QStringList uris;     ///< of what the user chooses
    int closed = 0;       ///< requests that were withdrawn
    std::vector<Asked> asked;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusConnection bus_;
};

} // namespace tessivo
