#pragma once

#include "Interface/MainScreen.h"
#include "bridge/BridgeContext.h"
#include "bridge/StackModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessivo::shell {

/// What the window's QML begins with.
class WindowItem final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one window")
    Q_PROPERTY(tessivo::shell::StackModel* stack READ stack CONSTANT FINAL)

public:
    WindowItem(ui::PresentationStack& stack, const BridgeContext& context)
        : screen_(stack.window().screen), context_(context), stack_(stack, context) {}

    [[nodiscard]] StackModel* stack() { return &stack_; }

    /// The portrait screen has this size now.
    Q_INVOKABLE void resize(double width, double height, double scale) {
        if (width > 0 && height > 0)
            screen_.resize({width, height}, scale);
    }

    /// The on-screen keyboard covers so much of the screen's foot now.
    Q_INVOKABLE void coverFoot(double height) { screen_.setKeyboardHeight(height); }

    /// A colour of the catalogue.
    Q_INVOKABLE QColor color(const QString& name) const {
        return context_.color(ui::ColorRef::named(name.toStdString()));
    }

private:
    ui::MainScreen& screen_;
    const BridgeContext& context_;
    StackModel stack_;
};

} // namespace tessivo::shell
