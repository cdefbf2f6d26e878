#pragma once

namespace tessivo::ui {

/// The place of an item in a list of several sections. Both count from 0.
struct IndexPath {
    int section = 0;
    int row = 0;

    friend bool operator==(const IndexPath&, const IndexPath&) = default;
};

} // namespace tessivo::ui
