#pragma once

#include <QQuickItem>

namespace tessivo::shell {

/// What is drawn as a rounded rectangle: it is made anew for each size, radius and scale of the window.
class RoundedItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    [[nodiscard]] double radius() const { return radius_; }
    void setRadius(double radius);

Q_SIGNALS:
    void radiusChanged();

protected:
    explicit RoundedItem(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

    /// Pixels of the window for each point.
    [[nodiscard]] double scaleOfWindow() const;
    /// The item's size to the nearest whole pixels: its parts then end at the same ones.
    [[nodiscard]] QSizeF sizeOnPixels() const;
    void geometryChange(const QRectF& place, const QRectF& former) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    double radius_ = 0;
};

} // namespace tessivo::shell
