#pragma once

#include <QQuickPaintedItem>

namespace tessivo::shell {

/// Shades everything but a frame of a card's shape.
class FramePaint : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame NOTIFY frameChanged FINAL)
    Q_PROPERTY(double shade MEMBER shade_ NOTIFY frameChanged FINAL)

public:
    explicit FramePaint(QQuickItem* parent = nullptr);

    [[nodiscard]] QRectF frame() const { return frame_; }
    void setFrame(const QRectF& frame);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void frameChanged();

private:
    QRectF frame_;
    double shade_ = 0.67; ///< of what is outside, from 0 to 1
};

} // namespace tessivo::shell
