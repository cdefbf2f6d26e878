#pragma once

#include "Interface/Touch.h"
#include "bridge/CollectionItem.h"

#include <QBasicTimer>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QWheelEvent>

#include <memory>

namespace tessivo::shell {

/// Lies over the cells of a collection in its scrolling content, and feeds the program's touches. A finger
/// that no cell wants stays with the list below.
class TouchSurface : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::CollectionItem* collection READ collection WRITE setCollection NOTIFY
                   collectionChanged FINAL REQUIRED)

public:
    explicit TouchSurface(QQuickItem* parent = nullptr);

    [[nodiscard]] CollectionItem* collection() const { return collection_; }
    void setCollection(CollectionItem* collection);

Q_SIGNALS:
    void collectionChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Comes after the press of a second quick tap, which is a tap like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void mouseUngrabEvent() override { finish(); }
    void hoverMoveEvent(QHoverEvent* event) override { hover(event->position()); }
    void hoverLeaveEvent(QHoverEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void hover(QPointF point);
    [[nodiscard]] bool swipe(const QWheelEvent& event);
    void endSwipe();
    void finish();
    void forget();

    QPointer<CollectionItem> collection_;
    std::shared_ptr<ui::Touch> touch_;
    std::shared_ptr<ui::Touch> last_; ///< a tap is seen for a moment after it
    std::shared_ptr<ui::Touch> scroll_;
    ui::Point scrolled_;
    Seconds scrollTime_{0};
    QBasicTimer scrollEnd_;
};

} // namespace tessivo::shell
