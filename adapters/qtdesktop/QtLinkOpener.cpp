#include "qtdesktop/QtLinkOpener.h"

#include "Ports/Url.h"

#include <QDesktopServices>
#include <QUrl>

namespace tessivo {

void QtLinkOpener::open(const std::string& url) {
    const auto link = Url::parse(url);
    if (link && (link->isWeb() || link->scheme() == "mailto"))
        QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

bool QtLinkOpener::canOpen(const std::string& url) const {
    const QUrl address(QString::fromStdString(url), QUrl::StrictMode);
    const QString scheme = address.scheme();
    if (scheme == QLatin1String("mailto"))
        return address.isValid();
    return address.isValid() && !address.host().isEmpty() &&
           (scheme == QLatin1String("https") || scheme == QLatin1String("http"));
}

} // namespace tessivo
