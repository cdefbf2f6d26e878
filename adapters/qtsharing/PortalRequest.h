#pragma once

#include "qtsharing/DesktopPortal.h"

#include <QVariantMap>

namespace tessivo::sharing {

/// One question to the portal, from the call to the response that follows it. Deletes itself once it is
/// answered.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    /// `token` tells this program's requests apart.
    PortalRequest(const QDBusConnection& bus, const QString& token, DesktopPortal::Answered answered,
                  QObject* parent);

    void send(const QDBusMessage& call);

private Q_SLOTS:
    void respond(uint response, const QVariantMap& results);

private:
    void finish(DesktopPortal::Answer answer);

    QDBusConnection bus_;
    DesktopPortal::Answered answered_;
};

} // namespace tessivo::sharing
