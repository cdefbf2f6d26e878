#pragma once

#include "Interface/CollectionView.h"
#include "Ports/Time.h"

#include <memory>
#include <optional>
#include <vector>

namespace tessivo::ui {
class Button;
}

namespace tessivo::shell {

/// One finger on a collection, from coming down to going up.
///
/// What the finger is on is found through the program's own hit test. A button in a cell gets its press. A
/// sideways drag goes to the first pan recognizer that begins, and is the cell's from then on; without one
/// the finger stays the list's, which scrolls. A tap goes to the tap recognizers, the innermost first, and
/// where none takes it the item is tapped. All points are in the space of the collection's content.
class CellTouch {
public:
    /// The finger comes down. The collection outlives the touch.
    CellTouch(ui::CollectionView& collection, ui::Point point, Seconds time);
    CellTouch(const CellTouch&) = delete;
    CellTouch& operator=(const CellTouch&) = delete;
    /// A finger that is lost is a cancelled one.
    ~CellTouch() { cancel(); }

    /// Says whether the cell has the finger now, so that the list must not scroll.
    bool moveTo(ui::Point point, Seconds time);
    /// The finger has rested. Gives the item to open the menu of, where no long press recognizer takes it.
    [[nodiscard]] std::optional<int> hold();
    void release(Seconds time);
    void cancel();

private:
    struct Sample {
        ui::Point point;
        Seconds time;
    };

    template <class Recognizer, class Recognize>
    std::shared_ptr<Recognizer> firstThatTakes(Recognize recognize) const;
    void note(ui::Point point, Seconds time);
    [[nodiscard]] ui::Point velocity() const;
    [[nodiscard]] bool hasLeftStart() const;
    [[nodiscard]] ui::Point locationIn(const ui::GestureRecognizer& recognizer) const;
    void letGo(bool inside);

    ui::CollectionView& collection_;
    const ui::Point start_;
    std::vector<Sample> samples_; ///< the last moments of the finger's way
    std::shared_ptr<ui::CollectionViewCell> cell_;
    ui::Button* button_ = nullptr; ///< in cell_, which may remove it under the finger
    std::vector<std::shared_ptr<ui::GestureRecognizer>> recognizers_; ///< under the finger, innermost first
    std::shared_ptr<ui::PanGestureRecognizer> pan_;
    ui::Point panStart_;
    bool spent_ = false; ///< nothing more comes of this finger
};

} // namespace tessivo::shell
