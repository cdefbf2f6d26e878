#pragma once

#include "Interface/TextInput.h"
#include "bridge/ViewItem.h"

namespace tessivo::shell {

/// A text that the user edits. QML edits a text of its own and hands it over after each change; what the
/// program refuses comes back as `refused`, upon which QML shows the program's text again.
class TextInputItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Texts belong to the program")
    Q_PROPERTY(QString text READ text NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool editing READ editing NOTIFY contentChanged FINAL)
    Q_PROPERTY(double size READ size NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY contentChanged FINAL)
    Q_PROPERTY(double horizontalInset READ horizontalInset NOTIFY contentChanged FINAL)
    Q_PROPERTY(double verticalInset READ verticalInset NOTIFY contentChanged FINAL)

public:
    TextInputItem(ui::TextInput& input, const BridgeContext& context, QObject* parent)
        : ViewItem(input, context, parent), input_(input) {
        connect(this, &ViewItem::contentChanged, this, &TextInputItem::followEditing);
    }

    [[nodiscard]] QString text() const { return QString::fromStdString(input_.text()); }
    [[nodiscard]] QString placeholder() const;
    [[nodiscard]] bool editing() const { return input_.isEditing(); }
    [[nodiscard]] double size() const { return input_.font().size; }
    [[nodiscard]] QColor color() const { return context().color(input_.textColor()); }
    [[nodiscard]] double horizontalInset() const { return input_.textInsets().left; }
    [[nodiscard]] double verticalInset() const { return input_.textInsets().top; }
    [[nodiscard]] QString accessibleName() const override {
        const QString own = ViewItem::accessibleName();
        return own.isEmpty() ? placeholder() : own;
    }

    Q_INVOKABLE void edit(const QString& text);
    Q_INVOKABLE void beginEditing() { input_.beginEditing(); }
    Q_INVOKABLE void endEditing() { input_.endEditing(); }
    Q_INVOKABLE void pressReturn();

Q_SIGNALS:
    void refused();
    /// The program puts the keyboard away.
    void keyboardDismissed();

private:
    void followEditing();

    bool wasEditing_ = false;
    ui::TextInput& input_;
};

} // namespace tessivo::shell
