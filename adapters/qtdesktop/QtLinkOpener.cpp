#include "qtdesktop/QtLinkOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace tessivo {

void QtLinkOpener::open(const std::string& url) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

} // namespace tessivo
