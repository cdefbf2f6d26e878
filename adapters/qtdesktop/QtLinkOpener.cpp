#include "qtdesktop/QtLinkOpener.h"

#include "Ports/Url.h"
#include "qtdesktop/DesktopPrograms.h"

#include <QDesktopServices>
#include <QUrl>

namespace tessivo {

void QtLinkOpener::open(const std::string& url) {
    if (canOpen(url))
        QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

bool QtLinkOpener::canOpen(const std::string& url) const {
    const auto link = Url::parse(url);
    if (!link)
        return false;
    return link->isWeb() || link->scheme() == "mailto" ||
           (link->scheme() == "appstream" && desktop::DesktopPrograms::handles(QStringLiteral("appstream")));
}

} // namespace tessivo
