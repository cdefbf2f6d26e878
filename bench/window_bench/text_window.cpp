// The floor of every start: a program that opens a Qt Quick window with one line of text in our font.

#include "bench/ProcessCost.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QQmlApplicationEngine engine;
    engine.loadData(R"(
        import QtQuick
        Window {
            width: 390; height: 844; visible: true
            Text { anchors.centerIn: parent; text: "Anniversary"; font.pixelSize: 22 }
        })");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    QObject::connect(window, &QQuickWindow::frameSwapped, &application,
                     [] { tessivo::report(tessivo::processMilliseconds()); });
    return QGuiApplication::exec();
}
