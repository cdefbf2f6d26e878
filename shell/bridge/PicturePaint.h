#pragma once

#include "bridge/ValueItems.h"

#include <QPointer>
#include <QQuickItem>

#include <memory>

namespace tessivo::shell {

/// Shows a loaded picture, fitted as its view says. The pixels go to the scene once for each picture.
class PicturePaint : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::ImageItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)

public:
    explicit PicturePaint(QQuickItem* parent = nullptr);

    [[nodiscard]] ImageItem* view() const { return view_; }
    void setView(ImageItem* view);

Q_SIGNALS:
    void viewChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& place, const QRectF& former) override;

private:
    QPointer<ImageItem> view_;
    std::shared_ptr<const Bitmap> inScene_; ///< what the node shows
};

} // namespace tessivo::shell
