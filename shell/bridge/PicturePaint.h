#pragma once

#include "bridge/ValueItems.h"

#include <QQuickPaintedItem>

namespace tessivo::shell {

/// Paints a loaded picture, fitted as its view says.
class PicturePaint : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::ImageItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)

public:
    explicit PicturePaint(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

    [[nodiscard]] ImageItem* view() const { return view_; }
    void setView(ImageItem* view);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void viewChanged();

private:
    ImageItem* view_ = nullptr;
};

} // namespace tessivo::shell
