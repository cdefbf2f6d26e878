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

} // namespace tessivo
