#pragma once

#include "Interface/Menu.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessivo::shell {

/// One line of a menu.
class MenuEntry {
    Q_GADGET
    QML_VALUE_TYPE(menuEntry)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(bool opensMore MEMBER opensMore FINAL)
public:
    QString title;
    QString symbol;
    bool opensMore = false;
};

/// A menu that is open, at the level to which the user has gone down.
class MenuItem final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Menus belong to the program")
    Q_PROPERTY(QList<tessivo::shell::MenuEntry> entries READ entries NOTIFY entriesChanged FINAL)
    Q_PROPERTY(bool nested READ nested NOTIFY entriesChanged FINAL)

public:
    MenuItem(ui::Menu menu, QObject* parent) : QObject(parent), levels_{std::move(menu.elements)} {}

    [[nodiscard]] QList<MenuEntry> entries() const;
    /// Whether there is a level above this one.
    [[nodiscard]] bool nested() const { return levels_.size() > 1; }

    /// Goes down into a submenu; an action closes the menu and then runs.
    Q_INVOKABLE void choose(int index);
    /// Goes up one level.
    Q_INVOKABLE void goBack();

Q_SIGNALS:
    void entriesChanged();
    void closed();

private:
    std::vector<std::vector<ui::MenuElement>> levels_;
};

} // namespace tessivo::shell
