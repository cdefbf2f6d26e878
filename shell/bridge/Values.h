#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessivo::shell {

/// What fills a rectangle: a colour and, over it, a fade between two points of its unit square.
class Fill {
    Q_GADGET
    QML_VALUE_TYPE(fill)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(bool fades MEMBER fades FINAL)
    Q_PROPERTY(QColor first MEMBER first FINAL)
    Q_PROPERTY(QColor second MEMBER second FINAL)
    Q_PROPERTY(QPointF start MEMBER start FINAL)
    Q_PROPERTY(QPointF end MEMBER end FINAL)
public:
    QColor color = Qt::transparent;
    bool fades = false;
    QColor first;
    QColor second;
    QPointF start;
    QPointF end;

    friend bool operator==(const Fill&, const Fill&) = default;
};

/// A stretch of text in one look.
class TextPiece {
    Q_GADGET
    QML_VALUE_TYPE(textPiece)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(double size MEMBER size FINAL)
    Q_PROPERTY(int weight MEMBER weight FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
public:
    QString text;
    double size = 17;
    int weight = 400;
    QColor color;

    friend bool operator==(const TextPiece&, const TextPiece&) = default;
};

/// One answer of an alert.
class AlertChoice {
    Q_GADGET
    QML_VALUE_TYPE(alertChoice)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(bool destructive MEMBER destructive FINAL)
    Q_PROPERTY(bool cancels MEMBER cancels FINAL)
public:
    QString title;
    bool destructive = false;
    bool cancels = false;
};

/// One tab of the bar at the foot of the screen.
class TabEntry {
    Q_GADGET
    QML_VALUE_TYPE(tabEntry)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)
    Q_PROPERTY(QString selectedImage MEMBER selectedImage FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QColor selectedColor MEMBER selectedColor FINAL)
public:
    QString title;
    QString image;
    QString selectedImage;
    QColor color;
    QColor selectedColor;
};

} // namespace tessivo::shell
