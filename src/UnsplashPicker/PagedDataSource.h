#pragma once

#include "UnsplashPicker/UnsplashRequest.h"

#include <atomic>

namespace tessivo::unsplash {

class PagedDataSource;
class PickerServices;

/// The photos that match a text, or those of a collection.
struct PhotosDataSourceFactory {
    enum class Kind { search, collection };

    const PickerServices& services;
    Kind kind;
    std::string text; ///< what is searched for, or the collection's identifier

    /// The first page.
    [[nodiscard]] Cursor initialCursor() const;
    [[nodiscard]] std::shared_ptr<UnsplashPagedRequest> request(const Cursor& cursor) const;
};

/// Notified of fetches. `dataSourceWillStartFetching` comes on the main thread, the others on whatever thread
/// the fetch ended on.
class PagedDataSourceDelegate {
public:
    virtual ~PagedDataSourceDelegate() = default;

    virtual void dataSourceWillStartFetching(PagedDataSource& dataSource) = 0;
    /// `items` are the new ones only.
    virtual void dataSourceDidFetch(PagedDataSource& dataSource, const Photos& items) = 0;
    virtual void dataSourceFetchDidFail(PagedDataSource& dataSource, const Error& error) = 0;
};

namespace DataSourceError {

inline Error dataSourceIsFetching() {
    return {"DataSourceError", 1, "The data source is fetching already"};
}

} // namespace DataSourceError

/// The growing list of the photos of one query, fetched page by page, one page at a time.
///
///   ready --fetchItems--> fetching --full page or failure--> ready
///                             |-----short page-------------> exhausted --reset--> ready
///
/// A failure keeps the page to fetch, so that the next fetch tries it again. Made by `std::make_shared`; its
/// operations are called on the main thread, its state may be read from any.
class PagedDataSource final : public std::enable_shared_from_this<PagedDataSource> {
public:
    PagedDataSource(WorkQueue& work, PhotosDataSourceFactory factory);

    std::weak_ptr<PagedDataSourceDelegate> delegate;

    /// Never null; a page more makes another list, so that a reader keeps what it holds.
    [[nodiscard]] std::shared_ptr<const Photos> items() const;
    [[nodiscard]] std::optional<Error> error() const;
    [[nodiscard]] Cursor cursor() const;
    [[nodiscard]] bool isFetching() const { return isFetching_; }
    [[nodiscard]] bool canFetchMore() const { return canFetchMore_; }

    /// Starts over with nothing; what is being fetched is cancelled.
    void reset();
    /// Fetches the next page.
    void fetchItems();
    void cancelFetch();
    /// For a source that is taken up again: what `cancelFetch` has cancelled, however late it ends, is not
    /// taken for the last page any more.
    void resume();

private:
    void complete(const UnsplashPagedRequest& request, int round);
    void fail(const Error& error);
    void setError(std::optional<Error> error);

    const PhotosDataSourceFactory factory;
    OperationQueue operationQueue;
    std::atomic<bool> isFetching_ = false;
    std::atomic<bool> canFetchMore_ = true;
    mutable std::mutex mutex_; ///< guards the rest: pages arrive on threads of the network
    std::shared_ptr<const Photos> items_ = std::make_shared<Photos>();
    std::optional<Error> error_;
    Cursor cursor_;
    int round_ = 0;                ///< how often the source was taken up again
    bool isEndedByCancel_ = false; ///< a cancelled request was taken for the last page
};

} // namespace tessivo::unsplash
