#pragma once

#include "Interface/View.h"
#include "bridge/BridgeContext.h"
#include "bridge/QuickSnapshots.h"
#include "bridge/Values.h"

#include <QObject>
#include <QQuickItem>

namespace tessivo::shell {

/// A view of the program for QML. The view outlives it.
class ViewItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to the program")
    Q_PROPERTY(bool shown READ shown NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool placed READ placed NOTIFY placedChanged FINAL)
    Q_PROPERTY(double alpha READ alpha NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(tessivo::shell::Fill fill READ fill NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool interactive READ interactive NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY contentChanged FINAL)
    Q_PROPERTY(double x READ x NOTIFY geometryChanged FINAL)
    Q_PROPERTY(double y READ y NOTIFY geometryChanged FINAL)
    Q_PROPERTY(double width READ width NOTIFY geometryChanged FINAL)
    Q_PROPERTY(double height READ height NOTIFY geometryChanged FINAL)
    Q_PROPERTY(double scale READ scale NOTIFY geometryChanged FINAL)
    Q_PROPERTY(bool masked READ masked NOTIFY maskChanged FINAL)
    Q_PROPERTY(QRectF mask READ mask NOTIFY maskChanged FINAL)

public:
    ViewItem(ui::View& view, const BridgeContext& context, QObject* parent);

    /// What its screen or cell calls the view; empty for one without a name. Not the object's name: setting
    /// that sets off the binding that looked the control up.
    QString controlName;

    [[nodiscard]] bool shown() const { return !view_.isHidden(); }
    /// Whether it stands on anything: the program takes some views off the screen for a time.
    [[nodiscard]] bool placed() const { return view_.superview() != nullptr; }
    [[nodiscard]] double alpha() const { return view_.drawnValue(ui::AnimatableProperty::Alpha); }
    [[nodiscard]] Fill fill() const;
    [[nodiscard]] double cornerRadius() const { return view_.cornerRadius(); }
    [[nodiscard]] bool interactive() const { return view_.isUserInteractionEnabled(); }
    [[nodiscard]] virtual QString accessibleName() const;
    [[nodiscard]] double x() const { return view_.drawnFrame().x; }
    [[nodiscard]] double y() const { return view_.drawnFrame().y; }
    [[nodiscard]] double width() const { return view_.drawnFrame().width; }
    [[nodiscard]] double height() const { return view_.drawnFrame().height; }
    [[nodiscard]] double scale() const { return view_.drawnValue(ui::AnimatableProperty::Scale); }

    [[nodiscard]] bool masked() const { return view_.mask() != nullptr; }
    /// What is shown of the view, in its own space; empty for a view without a mask.
    [[nodiscard]] QRectF mask() const;

    /// The user taps the view.
    Q_INVOKABLE void tap() { view_.tap(); }
    /// `item` draws the view with all that it holds: pictures of the view are taken of it.
    Q_INVOKABLE void drawnBy(QQuickItem* item) { context_.snapshots.drawnBy(view_, *item); }

Q_SIGNALS:
    void appearanceChanged();
    void placedChanged();
    void geometryChanged();
    void contentChanged();
    void maskChanged();

protected:
    [[nodiscard]] const BridgeContext& context() const { return context_; }

private:
    ui::View& view_;
    const BridgeContext& context_;
    void followMask();

    const ui::View* mask_ = nullptr;
    Subscription maskChanges_;
    Subscription changes_;
};

} // namespace tessivo::shell
