#pragma once

#include "Interface/Button.h"
#include "Interface/ButtonLook.h"
#include "bridge/ViewItem.h"

#include <QList>
#include <QPointF>

#include <optional>

namespace tessivo::shell {

/// A view that the program adds to a screen while it runs, with no name of its own, such as the row of
/// buttons that a swipe uncovers. It is drawn where the program says, with all that it holds. The view
/// outlives it.
class LooseViewItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to the program")
    Q_PROPERTY(QList<tessivo::shell::LooseViewItem*> children READ children CONSTANT FINAL)
    Q_PROPERTY(double boundsX READ boundsX NOTIFY geometryChanged FINAL)
    Q_PROPERTY(bool clips READ clips NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(QString image READ image NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool pressable READ pressable CONSTANT FINAL)
    Q_PROPERTY(bool hovered READ hovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(tessivo::shell::TextPiece look READ look NOTIFY contentChanged FINAL)
    Q_PROPERTY(QRectF titleRect READ titleRect NOTIFY geometryChanged FINAL)
    Q_PROPERTY(QRectF imageRect READ imageRect NOTIFY geometryChanged FINAL)

public:
    LooseViewItem(ui::View& view, const BridgeContext& context, QObject* parent);

    /// What it holds, as it stood when this object was made.
    [[nodiscard]] QList<LooseViewItem*> children() const { return children_; }
    [[nodiscard]] double boundsX() const { return view_.drawnBoundsOrigin().x; }
    [[nodiscard]] bool clips() const { return view_.clipsToBounds(); }
    [[nodiscard]] bool pressable() const { return look_ != nullptr; }
    /// The mouse is over the button.
    [[nodiscard]] bool hovered() const { return hovered_; }
    /// The mouse is at a place of the space that the view stands in, or none. Says whether there is a button.
    bool hover(std::optional<QPointF> point);
    // Of a button, in its present state; empty for other views.
    [[nodiscard]] QString image() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] TextPiece look() const;
    [[nodiscard]] QRectF titleRect() const;
    [[nodiscard]] QRectF imageRect() const;

    /// A tap that comes by the keyboard or from a screen reader.
    Q_INVOKABLE void activate();

Q_SIGNALS:
    void hoveredChanged();

private:
    ui::View& view_;
    ui::Button* button_;
    ui::ButtonLook* look_;
    QList<LooseViewItem*> children_;
    bool hovered_ = false;
};

} // namespace tessivo::shell
