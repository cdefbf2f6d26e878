#include "bridge/WindowItem.h"

#include <QEvent>

#include <utility>

namespace tessivo::shell {

bool WindowItem::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress;
    const bool pointer = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
    if ((key || pointer) && std::exchange(keysInUse_, key) != key)
        Q_EMIT keysInUseChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace tessivo::shell
