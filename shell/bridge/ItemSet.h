#pragma once

#include "Interface/ControlRegistry.h"
#include "bridge/BridgeContext.h"

#include <QObject>
#include <QString>

#include <map>

namespace tessivo::shell {

class ViewItem;

/// The bridge objects of one registry's controls, each made on first use and owned by `owner`.
class ItemSet {
public:
    ItemSet(const ui::ControlRegistry& controls, const BridgeContext& context, QObject* owner)
        : controls_(controls), context_(context), owner_(owner) {}

    /// The control of that name. One that does not exist stops the program: the drawing and the screen do not
    /// fit.
    [[nodiscard]] ViewItem* control(const QString& name);

private:
    [[nodiscard]] ViewItem* make(ui::View& view) const;

    const ui::ControlRegistry& controls_;
    const BridgeContext& context_;
    QObject* owner_;
    std::map<QString, ViewItem*> made_;
};

} // namespace tessivo::shell
