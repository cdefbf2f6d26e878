#pragma once

#include "Ports/Bitmap.h"

#include <functional>
#include <memory>

namespace tessivo::ui {

class View;

/// Pictures of what a window draws. Main thread.
class ViewSnapshots {
public:
    using Taken = std::function<void(std::shared_ptr<const Bitmap>)>;

    virtual ~ViewSnapshots() = default;

    /// Takes a picture of `view` with all that it holds: the size of its bounds times the screen's scale,
    /// transparent where nothing is drawn. Calls `taken` once, in a later turn of the main loop, with null
    /// where the view is not drawn; not at all once the window is gone.
    virtual void snapshot(const View& view, Taken taken) = 0;
};

} // namespace tessivo::ui
