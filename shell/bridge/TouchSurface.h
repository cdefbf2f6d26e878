#pragma once

#include "bridge/CellTouch.h"
#include "bridge/CollectionItem.h"

#include <QBasicTimer>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>

#include <optional>

namespace tessivo::shell {

/// Lies over the cells of a collection in its scrolling content, and hands each finger to the program. A
/// finger that the cell does not want stays with the list below.
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
    void mouseUngrabEvent() override;
    void timerEvent(QTimerEvent* event) override;

private:
    void askForMenu();
    void finish();

    QPointer<CollectionItem> collection_;
    std::optional<CellTouch> touch_;
    QBasicTimer hold_;
    QPointF place_; ///< of the finger
};

} // namespace tessivo::shell
