#pragma once

#include "Interface/ScrollView.h"
#include "bridge/ViewItem.h"

namespace tessivo::shell {

/// A window onto larger content. The drawing says where the user has scrolled to, and follows the program.
class ScrollItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Scroll views belong to the program")
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY contentChanged FINAL)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY contentChanged FINAL)
    Q_PROPERTY(double offsetX READ offsetX NOTIFY geometryChanged FINAL)
    Q_PROPERTY(double offsetY READ offsetY NOTIFY geometryChanged FINAL)

public:
    ScrollItem(ui::ScrollView& view, const BridgeContext& context, QObject* parent)
        : ViewItem(view, context, parent), view_(view) {}

    [[nodiscard]] double contentWidth() const { return view_.contentSize().width; }
    [[nodiscard]] double contentHeight() const { return view_.contentSize().height; }
    [[nodiscard]] double offsetX() const { return view_.drawnBoundsOrigin().x; }
    [[nodiscard]] double offsetY() const { return view_.drawnBoundsOrigin().y; }

    /// The user has scrolled there; no further than the content reaches.
    Q_INVOKABLE void scrollTo(double x, double y) { view_.scrolledTo(view_.nearestOffset({x, y})); }
    /// The user moves the content by so much.
    Q_INVOKABLE void moveBy(double x, double y) { scrollTo(offsetX() - x, offsetY() - y); }
    /// The user enlarges what there is by `factor`, about a point of the frame.
    Q_INVOKABLE void zoomBy(double factor, double x, double y) {
        view_.zoomedTo(view_.zoomScale() * factor, {x, y});
    }

private:
    ui::ScrollView& view_;
};

} // namespace tessivo::shell
