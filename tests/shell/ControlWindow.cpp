#include "shell/ControlWindow.h"

#include "bridge/IconProvider.h"
#include "bridge/Pressable.h"

#include <QQmlComponent>

extern void qml_register_types_Tessivo(); // NOLINT(readability-identifier-naming)

namespace tessivo {

ControlWindow::ControlWindow() {
    qml_register_types_Tessivo();
    shell::Pressable::makeAccessible();
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.addImageProvider(QStringLiteral("icon"), new shell::IconProvider);
    window.resize(390, 700);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(runUntil([this] { return window.isExposed() && window.isActive(); }));
    stack.setRoot(screen);
}

ControlWindow::~ControlWindow() = default;

void ControlWindow::undraw() {
    drawing_.reset();
    item_.reset();
}

QQuickItem& ControlWindow::draw(ui::ViewController& drawn, const QByteArray& body) {
    undraw();
    item_.reset(shell::ScreenItem::make(drawn.shared_from_this(), context, nullptr));
    QQmlComponent component(&engine_);
    component.setData("import QtQuick\nimport Tessivo\nFocusScope {\nid: root\nfocus: true\n"
                      "required property ScreenItem screen\n" +
                          body + "}",
                      QUrl(QStringLiteral("qrc:/qt/qml/Tessivo/Drawing.qml")));
    drawing_.reset(qobject_cast<QQuickItem*>(
        component.createWithInitialProperties({{QStringLiteral("screen"), QVariant::fromValue(item_.get())},
                                               {QStringLiteral("width"), window.width()},
                                               {QStringLiteral("height"), window.height()}})));
    if (!drawing_) {
        ADD_FAILURE() << component.errorString().toStdString();
        std::abort();
    }
    drawing_->setParentItem(window.contentItem());
    drawing_->forceActiveFocus();
    // Lists lay out their rows with the first picture.
    bool painted = false;
    const auto connection = QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { painted = true; });
    window.update();
    EXPECT_TRUE(runUntil([&] { return painted; }));
    QObject::disconnect(connection);
    return *drawing_;
}

} // namespace tessivo
