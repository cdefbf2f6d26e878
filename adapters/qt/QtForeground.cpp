#include "qt/QtForeground.h"

#include <QGuiApplication>

namespace tessivo {

QtForeground::QtForeground() {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) { active_ = state == Qt::ApplicationActive; });
}

} // namespace tessivo
