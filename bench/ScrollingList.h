#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>

namespace tessivo {

/// How far the list scrolls, in points.
inline double wayOf(const QQuickItem& list) {
    return list.property("contentHeight").toDouble() - list.height();
}

inline QQuickItem* findScrollingList(QQuickItem& item) {
    if (item.inherits("QQuickFlickable") && wayOf(item) > 0)
        return &item;
    for (QQuickItem* child : item.childItems()) {
        if (auto* list = findScrollingList(*child))
            return list;
    }
    return nullptr;
}

/// The first list of the window that is longer than its place; without one the measurement ends.
inline QQuickItem& scrollingList(const QQuickWindow& window) {
    if (auto* list = findScrollingList(*window.contentItem()))
        return *list;
    std::fprintf(stderr, "There is nothing to scroll\n");
    std::_Exit(EXIT_FAILURE);
}

} // namespace tessivo
