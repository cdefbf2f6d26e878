#pragma once

#include "bridge/Pressable.h"
#include "bridge/ScreenPane.h"

#include <QAccessibleObject>
#include <QQuickWindow>

namespace tessivo::shell {

/// An item of the window for assistive technology, where QML's own interface says too little.
class ItemAccessible : public QAccessibleObject {
public:
    explicit ItemAccessible(QQuickItem& item) : QAccessibleObject(&item), item_(item) {}

    [[nodiscard]] QWindow* window() const override { return item_.window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override { return children().value(index); }
    [[nodiscard]] int childCount() const override { return static_cast<int>(children().size()); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::State state() const override;

protected:
    [[nodiscard]] virtual QList<QAccessibleInterface*> children() const;

private:
    QQuickItem& item_;
};

/// Adds to what `Accessible` says that a disabled item is one, and the item's own acts by their names.
class PressAccessible final : public ItemAccessible, public QAccessibleActionInterface {
public:
    explicit PressAccessible(Pressable& item) : ItemAccessible(item), item_(item) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] bool says(const char* flag) const;

    Pressable& item_;
};

/// A screen, a sheet, an alert or a menu: what it covers has nothing to tell.
class PaneAccessible final : public ItemAccessible {
public:
    explicit PaneAccessible(ScreenPane& pane) : ItemAccessible(pane), pane_(pane) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

protected:
    [[nodiscard]] QList<QAccessibleInterface*> children() const override;

private:
    ScreenPane& pane_;
};

} // namespace tessivo::shell
