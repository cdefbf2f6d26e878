#pragma once

#include "bridge/CollectionItem.h"

#include <QPointer>
#include <QQuickItem>

namespace tessivo::shell {

/// The drawing of a cell: one stop of the keyboard and one button for assistive technology, which finds the
/// cell's further acts as actions of that button. The attached `Accessible` still says whether it is one.
class CellScope : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::CellItem* cell READ cell WRITE setCell NOTIFY cellChanged FINAL REQUIRED)

public:
    explicit CellScope(QQuickItem* parent = nullptr) : QQuickItem(parent) { setFlag(ItemIsFocusScope); }

    /// Null once the program's cell has gone.
    [[nodiscard]] CellItem* cell() const { return cell_; }
    void setCell(CellItem* cell);

    /// Lets assistive technology see cells as said above. Once in a program, before any is drawn.
    static void makeAccessible();

Q_SIGNALS:
    void cellChanged();
    /// Assistive technology presses the cell.
    void pressed();

private:
    QPointer<CellItem> cell_;
};

} // namespace tessivo::shell
