#include "qt/QtMainQueue.h"

namespace tessivo {

void QtMainQueue::post(std::function<void()> work) {
    QMetaObject::invokeMethod(&target_, std::move(work), Qt::QueuedConnection);
}

} // namespace tessivo
