#pragma once

#include "bridge/RoundedItem.h"
#include "bridge/Values.h"

namespace tessivo::shell {

/// A rounded rectangle with a fill, its edge smooth with and without a graphics processor.
class CardPaint : public RoundedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::Fill fill READ fill WRITE setFill NOTIFY fillChanged FINAL)

public:
    explicit CardPaint(QQuickItem* parent = nullptr) : RoundedItem(parent) {}

    [[nodiscard]] Fill fill() const { return fill_; }
    void setFill(const Fill& fill);

Q_SIGNALS:
    void fillChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;

private:
    /// All that the looks depend on.
    struct Looks {
        Fill fill;
        QSizeF size;
        double scale = 0;
        double radius = 0;

        friend bool operator==(const Looks&, const Looks&) = default;
    };

    Fill fill_;
    Looks inScene_; ///< what the node shows
};

} // namespace tessivo::shell
