#pragma once

#include <QQuickImageProvider>

namespace tessivo::shell {

/// Icons by resource name in a colour: "image://icon/chevronNext/#ff0000". Drawn at the size asked for, so
/// that they are sharp on every screen.
class IconProvider final : public QQuickImageProvider {
public:
    IconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace tessivo::shell
