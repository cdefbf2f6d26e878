#pragma once

#include "UnsplashPicker/PagedDataSourceFactory.h"

namespace tessivo::unsplash {

class PickerServices;

/// The photos that match a text, or those of a collection.
class PhotosDataSourceFactory final : public PagedDataSourceFactory {
public:
    [[nodiscard]] static PhotosDataSourceFactory search(const PickerServices& services, std::string query);
    [[nodiscard]] static PhotosDataSourceFactory collection(const PickerServices& services,
                                                            std::string identifier);

    [[nodiscard]] Cursor initialCursor() const override;
    [[nodiscard]] std::shared_ptr<UnsplashPagedRequest> request(const Cursor& cursor) const override;

private:
    enum class Kind { search, collection };

    PhotosDataSourceFactory(const PickerServices& services, Kind kind, std::string text)
        : services_(services), kind_(kind), text_(std::move(text)) {}

    const PickerServices& services_;
    Kind kind_;
    std::string text_; ///< what is searched for, or the collection's identifier
};

} // namespace tessivo::unsplash
