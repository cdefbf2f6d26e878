#pragma once

#include "Interface/ViewSnapshots.h"

#include <QObject>
#include <QPointer>
#include <QSharedPointer>

#include <map>
#include <vector>

class QQuickItem;
class QQuickItemGrabResult;

namespace tessivo::shell {

/// Pictures of views as a Qt Quick window draws them. Items that can be captured register themselves.
/// Outlives the window.
class QuickSnapshots final : public QObject, public ui::ViewSnapshots {
public:
    /// `item` draws `view`, until it goes or another one does.
    void drawnBy(const ui::View& view, QQuickItem& item);

    void snapshot(const ui::View& view, Taken taken) override;

private:
    void finish(const QQuickItemGrabResult& result, double radius, const Taken& taken);

    std::map<const ui::View*, QPointer<QQuickItem>> drawings_;
    std::vector<QSharedPointer<QQuickItemGrabResult>> pending_;
};

} // namespace tessivo::shell
