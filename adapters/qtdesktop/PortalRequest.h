#pragma once

#include "qtdesktop/DesktopPortal.h"

#include <QVariantMap>

namespace tessivo::desktop {

inline constexpr const char* portalName = "org.freedesktop.portal.Desktop";
inline constexpr const char* portalPath = "/org/freedesktop/portal/desktop";

/// One question to the portal, from the call to the response that follows it. Deletes itself once it is
/// answered; deleted before, it takes the portal's dialog away.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    using Responded = std::function<void(DesktopPortal::Answer, const QVariantMap& results)>;

    /// `token` is unique among this program's requests.
    PortalRequest(const QDBusConnection& bus, const QString& token, Responded responded, QObject* parent);
    ~PortalRequest() override;

    void send(const QDBusMessage& call);

private Q_SLOTS:
    void respond(uint response, const QVariantMap& results);

private:
    void finish(DesktopPortal::Answer answer, const QVariantMap& results = {});

    QDBusConnection bus_;
    QString path_; ///< of the portal's own object for this question
    Responded responded_;
};

} // namespace tessivo::desktop
