#include "Shell.h"

#include "Ports/Console.h"
#include "bridge/BridgeContext.h"
#include "bridge/IconProvider.h"
#include "bridge/Pressable.h"
#include "bridge/WindowItem.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QScreen>

// Made by the build: makes the bridge's types known to QML, which a static library does not do by itself.
extern void qml_register_types_Tessivo(); // NOLINT(readability-identifier-naming)

namespace tessivo::shell {

namespace {

constexpr int frameHeight = 40; // of the title bar that a desktop adds

/// What the display has for a window's content, beside its panels and the window's frame.
QSizeF roomForWindow() {
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    return available - QSize(0, frameHeight);
}

} // namespace

struct Shell::Parts {
    Parts(ui::PresentationStack& stack, const NamedColors& colors, Console& console,
          QuickSnapshots& snapshots)
        : context{colors, console, snapshots}, window(stack, context) {}

    BridgeContext context;
    WindowItem window;
    QQmlApplicationEngine engine; ///< last, so that no drawing outlives what it draws
};

Shell::Shell(ui::PresentationStack& stack, const NamedColors& colors, Console& console,
             QuickSnapshots& snapshots)
    : parts_(std::make_unique<Parts>(stack, colors, console, snapshots)) {}

Shell::~Shell() = default;

void Shell::open() {
    QQmlApplicationEngine& engine = parts_->engine;
    qml_register_types_Tessivo();
    Pressable::makeAccessible();
    // Letters as the desktop draws them: sharper on a coarse screen, and sooner there than distance fields.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
    engine.setInitialProperties({{QStringLiteral("item"), QVariant::fromValue(&parts_->window)},
                                 {QStringLiteral("room"), roomForWindow()}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tessivo/Main.qml")));
    if (!window())
        parts_->context.console.stopProgram("The window cannot be drawn.");
    window()->installEventFilter(&parts_->window);
}

QQuickWindow* Shell::window() const {
    const auto roots = parts_->engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.front());
}

void Shell::raise(const QString& activationToken) {
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    if (auto* shown = window()) {
        shown->show();
        shown->raise();
        shown->requestActivate();
    }
}

} // namespace tessivo::shell
