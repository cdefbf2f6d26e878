#include "UnsplashPicker/PhotosDataSourceFactory.h"

#include "UnsplashPicker/GetCollectionPhotosRequest.h"
#include "UnsplashPicker/PickerServices.h"
#include "UnsplashPicker/SearchPhotosRequest.h"

namespace tessivo::unsplash {

PhotosDataSourceFactory PhotosDataSourceFactory::search(const PickerServices& services, std::string query) {
    return {services, Kind::search, std::move(query)};
}

PhotosDataSourceFactory PhotosDataSourceFactory::collection(const PickerServices& services,
                                                            std::string identifier) {
    return {services, Kind::collection, std::move(identifier)};
}

Cursor PhotosDataSourceFactory::initialCursor() const {
    Cursor cursor;
    if (kind_ == Kind::search)
        cursor.parameters = Parameters{
            {"query", text_},
            {"content_filter", std::string(rawValue(services_.configuration().contentFilterLevel))}};
    else
        cursor.parameters = Parameters{{"id", text_}};
    return cursor;
}

std::shared_ptr<UnsplashPagedRequest> PhotosDataSourceFactory::request(const Cursor& cursor) const {
    if (kind_ == Kind::search)
        return std::make_shared<SearchPhotosRequest>(services_.platform(), services_.configuration(), cursor);
    return std::make_shared<GetCollectionPhotosRequest>(services_.platform(), services_.configuration(),
                                                        cursor);
}

} // namespace tessivo::unsplash
