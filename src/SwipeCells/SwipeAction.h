#pragma once

#include "Interface/Geometry.h"
#include "Interface/ImageView.h"
#include "Interface/Text.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessivo::swipe {

class SwipeActionTransitioning;

/// Chooses the background of a button that has no colour of its own.
enum class SwipeActionStyle { Default, Destructive };

/// What the engine shall do with a filled row: remove it, or let it return.
enum class ExpansionFulfillmentStyle { Delete, Reset };

/// The blur that a button may stand on.
enum class VisualEffect { Light, Dark };

/// A picture on a button, with the size at which it is drawn.
struct ActionImage {
    ui::Image image;
    ui::Size size;
};

/// One button of a row and what it does. Equal by identity. `indexPath` is the item of the list that the
/// handler is called for.
class SwipeAction final {
public:
    using Handler = std::function<void(SwipeAction& action, int indexPath)>;

    SwipeAction(SwipeActionStyle itsStyle, std::optional<std::string> itsTitle, Handler itsHandler)
        : title(std::move(itsTitle)), style(itsStyle), handler(std::move(itsHandler)) {}
    SwipeAction(const SwipeAction&) = delete;
    SwipeAction& operator=(const SwipeAction&) = delete;

    std::optional<std::string> identifier; ///< the owner's own tag
    std::optional<std::string> title;
    SwipeActionStyle style;
    std::shared_ptr<SwipeActionTransitioning> transitionDelegate;
    std::optional<ui::Font> font;                     ///< empty: size 15, medium
    std::optional<ui::ColorRef> textColor;            ///< empty: white
    std::optional<ui::ColorRef> highlightedTextColor; ///< empty: the button's tint
    std::optional<ActionImage> image;
    std::optional<ActionImage> highlightedImage; ///< empty: `image`
    Handler handler;
    std::optional<ui::ColorRef> backgroundColor;            ///< empty: by the style
    std::optional<ui::ColorRef> highlightedBackgroundColor; ///< empty: black at alpha 0.1
    std::optional<VisualEffect> backgroundEffect;
    bool hidesWhenSelected = false; ///< a tap on the button closes the cell first
    /// Set by the controller while a fill waits for its owner.
    std::function<void(ExpansionFulfillmentStyle)> completionHandler;
    std::optional<std::string> accessibilityLabel;

    /// Ends a fill that waits; nothing where none does.
    void fulfill(ExpansionFulfillmentStyle how) {
        if (const auto waiting = completionHandler)
            waiting(how);
    }

    /// False for a clear background and for one that is an effect. No colour counts as one, since the
    /// style's will be painted.
    [[nodiscard]] bool paintsOwnBackground() const {
        return backgroundColor != ui::ColorRef::clear() && !backgroundEffect;
    }
};

using SwipeActions = std::vector<std::shared_ptr<SwipeAction>>;

} // namespace tessivo::swipe
