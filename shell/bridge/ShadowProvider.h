#pragma once

#include <QQuickImageProvider>

namespace tessivo::shell {

/// Soft shadows under rounded rectangles, by radius, strength and pixels in a point:
/// "image://shadow/16/0.022/2". Only corners and
/// a little between them: a shadow of any size is stretched from it, and shadows of a kind share one.
class ShadowProvider final : public QQuickImageProvider {
public:
    ShadowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace tessivo::shell
