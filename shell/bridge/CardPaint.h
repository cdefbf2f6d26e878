#pragma once

#include "bridge/Values.h"

#include <QQuickPaintedItem>

namespace tessivo::shell {

/// A rounded rectangle with a fill, its edge smooth with and without a graphics processor.
class CardPaint : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::Fill fill READ fill WRITE setFill NOTIFY fillChanged FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    explicit CardPaint(QQuickItem* parent = nullptr);

    [[nodiscard]] Fill fill() const { return fill_; }
    void setFill(const Fill& fill);
    [[nodiscard]] double radius() const { return radius_; }
    void setRadius(double radius);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void fillChanged();
    void radiusChanged();

private:
    Fill fill_;
    double radius_ = 0;
};

} // namespace tessivo::shell
