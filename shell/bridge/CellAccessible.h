#pragma once

#include "bridge/CellScope.h"

#include <QAccessibleObject>
#include <QQuickWindow>

namespace tessivo::shell {

/// A cell for assistive technology. QML can say of an item only that it can be pressed; this adds the cell's
/// own actions by their names.
class CellAccessible final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit CellAccessible(CellScope& scope) : QAccessibleObject(&scope), scope_(scope) {}

    [[nodiscard]] QWindow* window() const override { return scope_.window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] QList<QAccessibleInterface*> children() const;

    CellScope& scope_;
};

} // namespace tessivo::shell
