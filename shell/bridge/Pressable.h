#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QStringList>

namespace tessivo::shell {

/// A part of the window that does one main thing: by touch, by Return or Space while it has the focus, or for
/// assistive technology, which learns role, name and state from the attached `Accessible`, as of any item. A
/// disabled one does nothing in any of these ways.
class Pressable : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Use PressArea, or CellScope for a cell")

public:
    /// Lets assistive technology see these items as said above. Once in a program, before any is drawn.
    static void makeAccessible();

    /// Does the main thing.
    Q_INVOKABLE virtual void click();

    /// What else can be done with it, by name.
    [[nodiscard]] virtual QStringList actionNames() const { return {}; }
    /// Does the first of that name; nothing where there is none.
    virtual void act(const QString& /*name*/) {}

    /// What it stands for on its screen, by the control's name: the same after the screen is drawn anew.
    /// Empty where it stands for no control.
    [[nodiscard]] virtual QString place() const { return {}; }

    /// The attached `Accessible`; null where the drawing says nothing to assistive technology.
    [[nodiscard]] const QObject* accessible() const;
    /// Whether assistive technology sees it.
    [[nodiscard]] bool isAccessible() const;

Q_SIGNALS:
    void clicked();

protected:
    explicit Pressable(QQuickItem* parent);

    void keyPressEvent(QKeyEvent* event) override;

private:
    mutable QPointer<QObject> accessible_;
    mutable bool isLookingUp_ = false;
};

} // namespace tessivo::shell
