#include "StandInPhotoLibrary.h"

#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tessivo::tour {
namespace {

constexpr QSize size(1600, 1200);

/// A wavy ridge from the left to the right edge, filled down to the foot.
QPainterPath ridge(double height, double swing, double waves, double phase) {
    QPainterPath path(QPointF(0, size.height()));
    for (int x = 0; x <= size.width(); x += 8)
        path.lineTo(x, height + swing * std::sin(waves * x / size.width() + phase) +
                           swing / 3 * std::sin(2.7 * waves * x / size.width() + 2 * phase));
    path.lineTo(size.width(), size.height());
    return path;
}

/// The sun over hills in the morning.
QImage morning() {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(0x6f, 0xa8, 0xdc));
    sky.setColorAt(0.45, QColor(0xff, 0xe3, 0xc2));
    sky.setColorAt(0.65, QColor(0xff, 0xb3, 0x8a));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xf7, 0xe0));
    painter.drawEllipse(QPointF(1080, 500), 110, 110);
    painter.fillPath(ridge(700, 60, 7, 0.4), QColor(0x9a, 0x8f, 0xb8));
    painter.fillPath(ridge(820, 70, 5, 2.1), QColor(0x5f, 0x6f, 0x9c));
    painter.fillPath(ridge(960, 60, 4, 4.0), QColor(0x2f, 0x4b, 0x6e));
    painter.fillPath(ridge(1080, 40, 6, 1.2), QColor(0x18, 0x2f, 0x45));
    return image;
}

} // namespace

StandInPhotoLibrary::StandInPhotoLibrary() {
    const QString photo = folder_.filePath(QStringLiteral("morning.jpg"));
    morning().save(photo, "JPG", 92);
    QFile chooser(folder_.filePath(QStringLiteral("zenity")));
    if (chooser.open(QIODevice::WriteOnly))
        chooser.write("#!/bin/sh\necho '" + photo.toLocal8Bit() + "'\n");
    chooser.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", folder_.path().toLocal8Bit() + ':' + qgetenv("PATH"));
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // no portal that asks a person
}

} // namespace tessivo::tour
