#include "bridge/IconProvider.h"

#include <QDebug>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tessivo::shell {
namespace {

constexpr int defaultSide = 24;

} // namespace

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QString name = id.section(u'/', 0, 0);
    const QString color = id.section(u'/', 1, 1);
    QFile file(QStringLiteral(":/tessivo/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("There is no icon named %s", qPrintable(name));
        return {};
    }
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.toLatin1());
    QSvgRenderer renderer(drawing);
    const QSize natural =
        renderer.defaultSize().isEmpty() ? QSize(defaultSide, defaultSide) : renderer.defaultSize();
    const QSize wanted =
        natural.scaled(requestedSize.isEmpty() ? natural : requestedSize, Qt::KeepAspectRatio);
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    if (size)
        *size = wanted;
    return image;
}

} // namespace tessivo::shell
