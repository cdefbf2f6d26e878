#pragma once

#include "bridge/RoundedItem.h"
#include "bridge/ValueItems.h"

#include <QPointer>

#include <array>
#include <memory>

namespace tessivo::shell {

/// The picture of a card under its two texts: fitted as its view says, rounded as the card is, and shaded
/// behind the texts where it is bright. It is made once for each picture, size and place of the texts, and
/// costs nothing if there is no picture.
class CardPicture : public RoundedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::ImageItem* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)
    Q_PROPERTY(QRectF upperText MEMBER upperText_ NOTIFY textsChanged FINAL)
    Q_PROPERTY(QRectF lowerText MEMBER lowerText_ NOTIFY textsChanged FINAL)

public:
    explicit CardPicture(QQuickItem* parent = nullptr);

    [[nodiscard]] ImageItem* view() const { return view_; }
    void setView(ImageItem* view);

Q_SIGNALS:
    void viewChanged();
    void textsChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;

private:
    /// All that the looks depend on.
    struct Looks {
        std::shared_ptr<const Bitmap> picture;
        ui::ContentMode mode = ui::ContentMode::AspectFill;
        QSizeF size;
        double scale = 1;
        double radius = 0;
        std::array<QRectF, 2> texts;

        friend bool operator==(const Looks&, const Looks&) = default;
    };

    [[nodiscard]] Looks looks() const;

    QPointer<ImageItem> view_;
    QRectF upperText_; ///< in points of this item
    QRectF lowerText_;
    Looks inScene_; ///< what the node shows
};

} // namespace tessivo::shell
