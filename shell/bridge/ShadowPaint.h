#pragma once

#include "bridge/RoundedItem.h"

namespace tessivo::shell {

/// A soft shadow around a rounded rectangle, which lies `reach` points within this item at each side. Nothing
/// is drawn where the rectangle covers it but for its corners.
class ShadowPaint : public RoundedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY strengthChanged FINAL)
    Q_PROPERTY(double reach READ reach CONSTANT FINAL)

public:
    explicit ShadowPaint(QQuickItem* parent = nullptr);

    [[nodiscard]] double reach() const;

Q_SIGNALS:
    void strengthChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;

private:
    /// All that the looks depend on.
    struct Looks {
        QSizeF size;
        double scale = 0;
        double radius = 0;
        double strength = 0;

        friend bool operator==(const Looks&, const Looks&) = default;
    };

    double strength_ = 0.022;
    Looks inScene_; ///< what the node shows
};

} // namespace tessivo::shell
