#include "bridge/TouchSurface.h"

#include <QCursor>

#include <cmath>
#include <utility>

namespace tessivo::shell {
namespace {

/// Where a touchpad does not say when the fingers lift, this long a pause means it.
constexpr int scrollPause = 120; // ms

Seconds timeOf(const QInputEvent& event) {
    return Seconds(static_cast<double>(event.timestamp()) * 1e-3);
}

ui::Point toPoint(QPointF point) {
    return {point.x(), point.y()};
}

} // namespace

TouchSurface::TouchSurface(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
}

void TouchSurface::setCollection(CollectionItem* collection) {
    if (collection == collection_)
        return;
    forget();
    collection_ = collection;
    // The drawn items of a screen go after the program's own where the screen goes.
    if (collection)
        connect(collection, &QObject::destroyed, this, &TouchSurface::forget);
    Q_EMIT collectionChanged();
}

void TouchSurface::mousePressEvent(QMouseEvent* event) {
    if (!collection_)
        return event->ignore();
    endSwipe();
    touch_ = ui::Touch::begin(collection_->view(), toPoint(event->position()), timeOf(*event));
    if (event->button() == Qt::RightButton)
        std::shared_ptr(touch_)->hold();
}

void TouchSurface::mouseMoveEvent(QMouseEvent* event) {
    const auto touch = touch_; // what it does may end it here
    if (touch && touch->moveTo(toPoint(event->position()), timeOf(*event)))
        setKeepMouseGrab(true);
}

void TouchSurface::mouseReleaseEvent(QMouseEvent* event) {
    last_ = std::exchange(touch_, nullptr);
    if (const auto touch = last_; touch && event->button() == Qt::LeftButton)
        touch->release(timeOf(*event));
    finish();
}

void TouchSurface::hover(QPointF point) {
    if (!collection_)
        return;
    const bool onCell = collection_->hover(point.x(), point.y());
    setCursor(onCell ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void TouchSurface::hoverLeaveEvent(QHoverEvent*) {
    if (collection_)
        collection_->leaveHover();
}

void TouchSurface::wheelEvent(QWheelEvent* event) {
    event->setAccepted(collection_ && swipe(*event));
    // Not for what trails a swipe: its momentum, and the end that comes after a pause.
    const QPoint way = event->angleDelta();
    if (collection_ && !event->isAccepted() && std::abs(way.y()) > std::abs(way.x()))
        collection_->closeSwipes();
}

/// Two fingers that go sideways over a touchpad swipe the card under the pointer. Says whether it has them.
bool TouchSurface::swipe(const QWheelEvent& event) {
    const QPointF way = event.pixelDelta();
    if (event.phase() == Qt::ScrollEnd || event.phase() == Qt::ScrollMomentum) {
        const bool had = scroll_ != nullptr;
        endSwipe();
        return had;
    }
    if (!scroll_) {
        if (std::abs(way.x()) <= std::abs(way.y()))
            return false;
        scrolled_ = toPoint(event.position());
        scroll_ = ui::Touch::begin(collection_->view(), scrolled_, timeOf(event), ui::Touch::Kind::Scroll);
    }
    scrolled_ = {scrolled_.x + way.x(), scrolled_.y};
    scrollTime_ = timeOf(event);
    scrollEnd_.start(scrollPause, this);
    const auto scroll = scroll_;
    scroll->moveTo(scrolled_, scrollTime_);
    return true;
}

void TouchSurface::endSwipe() {
    scrollEnd_.stop();
    if (const auto scroll = std::exchange(scroll_, nullptr))
        scroll->release(scrollTime_);
}

void TouchSurface::timerEvent(QTimerEvent* event) {
    if (event->timerId() == scrollEnd_.timerId())
        endSwipe();
}

void TouchSurface::finish() {
    touch_.reset();
    setKeepMouseGrab(false);
}

void TouchSurface::forget() {
    finish();
    last_.reset();
    scroll_.reset();
    scrollEnd_.stop();
}

} // namespace tessivo::shell
