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
    Q_PROPERTY(bool large READ large NOTIFY sizeChanged FINAL)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY preferencesChanged FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY preferencesChanged FINAL)
    Q_PROPERTY(bool keysInUse READ keysInUse NOTIFY keysInUseChanged FINAL)

public:
    WindowItem(ui::PresentationStack& stack, const BridgeContext& context)
        : screen_(stack.window().screen), context_(context), stack_(stack, context) {
        preferences_ = screen_.onPreferencesChange([this] { Q_EMIT preferencesChanged(); });
    }

    [[nodiscard]] StackModel* stack() { return &stack_; }

    /// Whether the user asks for strong contrast.
    [[nodiscard]] bool highContrast() const { return screen_.preferences().highContrast; }
    [[nodiscard]] double textScale() const { return screen_.preferences().textScale; }

    /// Whether the screen counts as a large one.
    [[nodiscard]] bool large() const { return screen_.isLarge(); }
    /// Whether the user's last act was a key: only then do controls show which one the keyboard is on.
    [[nodiscard]] bool keysInUse() const { return keysInUse_; }

    /// The portrait screen has this size now.
    Q_INVOKABLE void resize(double width, double height, double scale) {
        if (width <= 0 || height <= 0)
            return;
        screen_.resize({width, height}, scale);
        Q_EMIT sizeChanged();
    }

    /// The on-screen keyboard covers so much of the screen's foot now.
    Q_INVOKABLE void coverFoot(double height) { screen_.setKeyboardHeight(height); }

    /// A colour of the catalogue.
    Q_INVOKABLE QColor color(const QString& name) const {
        return context_.color(ui::ColorRef::named(name.toStdString()));
    }

Q_SIGNALS:
    void sizeChanged();
    void preferencesChanged();
    void keysInUseChanged();

public:
    /// Watches the window's input events.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ui::MainScreen& screen_;
    const BridgeContext& context_;
    StackModel stack_;
    Subscription preferences_;
    bool keysInUse_ = false;
};

} // namespace tessivo::shell
