#pragma once

#include "UnsplashPicker/UnsplashPagedRequest.h"

#include <memory>

namespace tessivo::unsplash {

/// Decides what a data source lists.
class PagedDataSourceFactory {
public:
    virtual ~PagedDataSourceFactory() = default;

    /// The first page.
    [[nodiscard]] virtual Cursor initialCursor() const = 0;
    [[nodiscard]] virtual std::shared_ptr<UnsplashPagedRequest> request(const Cursor& cursor) const = 0;
};

} // namespace tessivo::unsplash
