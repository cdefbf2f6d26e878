#pragma once

#include "bridge/CollectionItem.h"
#include "bridge/Pressable.h"

#include <QPointer>

namespace tessivo::shell {

/// The drawing of a cell: one stop of the keyboard and one thing to press for assistive technology, which
/// finds the cell's further acts as actions of it. Its touches are the collection's.
class CellScope : public Pressable {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::CellItem* cell READ cell WRITE setCell NOTIFY cellChanged FINAL REQUIRED)

public:
    explicit CellScope(QQuickItem* parent = nullptr) : Pressable(parent) { setFlag(ItemIsFocusScope); }

    /// Null once the program's cell has gone.
    [[nodiscard]] CellItem* cell() const { return cell_; }
    void setCell(CellItem* cell);

    [[nodiscard]] QStringList actionNames() const override;
    void act(const QString& name) override;
    [[nodiscard]] QString place() const override { return cell_ ? cell_->place() : QString(); }

Q_SIGNALS:
    void cellChanged();

private:
    QPointer<CellItem> cell_;
};

} // namespace tessivo::shell
