#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tessivo::shell {

/// A soft shadow under a rounded rectangle, which lies `reach` points within this item at each side. Drawn
/// for the window's pixels, once for each size.
class ShadowPaint : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY looksChanged FINAL)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY looksChanged FINAL)
    Q_PROPERTY(double reach READ reach CONSTANT FINAL)

public:
    explicit ShadowPaint(QQuickItem* parent = nullptr);

    [[nodiscard]] double reach() const;
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void looksChanged();

private:
    double radius_ = 16;
    double strength_ = 0.022;
};

} // namespace tessivo::shell
