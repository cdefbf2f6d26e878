// The floor of every start: a program that opens an empty Qt Quick window.

#include "bench/ProcessCost.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 390; height: 844; visible: true }");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    QObject::connect(window, &QQuickWindow::frameSwapped, &application,
                     [] { tessivo::report(tessivo::processMilliseconds()); });
    return QGuiApplication::exec();
}
