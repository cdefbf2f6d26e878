#include "bridge/TouchSurface.h"

#include <QGuiApplication>

#include <QStyleHints>

namespace tessivo::shell {
namespace {

Seconds timeOf(const QMouseEvent& event) {
    return Seconds(static_cast<double>(event.timestamp()) * 1e-3);
}

ui::Point toPoint(QPointF point) {
    return {point.x(), point.y()};
}

} // namespace

TouchSurface::TouchSurface(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void TouchSurface::setCollection(CollectionItem* collection) {
    if (collection == collection_)
        return;
    finish();
    collection_ = collection;
    // The drawn items of a screen go after the program's own where the screen goes.
    if (collection)
        connect(collection, &QObject::destroyed, this, &TouchSurface::finish);
    Q_EMIT collectionChanged();
}

void TouchSurface::mousePressEvent(QMouseEvent* event) {
    if (!collection_)
        return event->ignore();
    place_ = event->position();
    touch_.emplace(collection_->view(), toPoint(place_), timeOf(*event));
    if (event->button() == Qt::RightButton)
        askForMenu();
    else
        hold_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
}

void TouchSurface::mouseMoveEvent(QMouseEvent* event) {
    if (!touch_)
        return;
    place_ = event->position();
    if (touch_->moveTo(toPoint(place_), timeOf(*event)))
        setKeepMouseGrab(true);
}

void TouchSurface::mouseReleaseEvent(QMouseEvent* event) {
    if (touch_ && event->button() == Qt::LeftButton)
        touch_->release(timeOf(*event));
    finish();
}

void TouchSurface::mouseUngrabEvent() {
    finish();
}

void TouchSurface::timerEvent(QTimerEvent* event) {
    if (event->timerId() != hold_.timerId())
        return;
    hold_.stop();
    askForMenu();
}

void TouchSurface::askForMenu() {
    if (!touch_ || !collection_)
        return;
    const auto item = touch_->hold();
    if (item && collection_->openMenu(*item, place_.x(), place_.y()))
        finish();
}

void TouchSurface::finish() {
    hold_.stop();
    touch_.reset();
    setKeepMouseGrab(false);
}

} // namespace tessivo::shell
