#include "UnsplashPicker/PagedDataSource.h"

#include "UnsplashPicker/PickerServices.h"

#include <utility>

namespace tessivo::unsplash {

Cursor PhotosDataSourceFactory::initialCursor() const {
    Cursor cursor;
    if (kind == Kind::search)
        cursor.parameters = Parameters{
            {"query", text},
            {"content_filter", std::string(rawValue(services.configuration().contentFilterLevel))}};
    else
        cursor.parameters = Parameters{{"id", text}};
    return cursor;
}

std::shared_ptr<UnsplashPagedRequest> PhotosDataSourceFactory::request(const Cursor& cursor) const {
    if (kind == Kind::search)
        return std::make_shared<SearchPhotosRequest>(services.platform(), services.configuration(), cursor);
    return std::make_shared<GetCollectionPhotosRequest>(services.platform(), services.configuration(),
                                                        cursor);
}

PagedDataSource::PagedDataSource(WorkQueue& work, PhotosDataSourceFactory itsFactory)
    : factory(std::move(itsFactory)),
      operationQueue(work, "com.unsplash.pagedDataSource"),
      cursor_(factory.initialCursor()) {}

std::shared_ptr<const Photos> PagedDataSource::items() const {
    const std::lock_guard lock(mutex_);
    return items_;
}

std::optional<Error> PagedDataSource::error() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

Cursor PagedDataSource::cursor() const {
    const std::lock_guard lock(mutex_);
    return cursor_;
}

void PagedDataSource::setError(std::optional<Error> error) {
    const std::lock_guard lock(mutex_);
    error_ = std::move(error);
}

void PagedDataSource::reset() {
    operationQueue.cancelAllOperations();
    const std::lock_guard lock(mutex_);
    items_ = std::make_shared<Photos>();
    isFetching_ = false;
    canFetchMore_ = true;
    cursor_ = factory.initialCursor();
    error_.reset();
}

void PagedDataSource::cancelFetch() {
    operationQueue.cancelAllOperations();
    isFetching_ = false;
}

void PagedDataSource::resume() {
    const std::lock_guard lock(mutex_);
    ++round_;
    if (std::exchange(isEndedByCancel_, false))
        canFetchMore_ = true;
}

void PagedDataSource::fetchItems() {
    if (isFetching_)
        return fail(DataSourceError::dataSourceIsFetching());
    const auto listener = delegate.lock();
    if (!canFetchMore_) {
        setError(std::nullopt);
        if (listener)
            listener->dataSourceDidFetch(*this, {});
        return;
    }
    if (listener && items()->empty())
        listener->dataSourceWillStartFetching(*this);
    isFetching_ = true;
    const auto request = factory.request(cursor());
    // The block belongs to the request, and the request to the source's queue: it holds neither, so that a
    // fetch that never ends keeps nothing alive.
    request->setCompletionBlock([weak = weak_from_this(), request = request.get(), round = round_] {
        if (const auto self = weak.lock())
            self->complete(*request, round);
    });
    operationQueue.addOperation(request);
}

void PagedDataSource::complete(const UnsplashPagedRequest& request, int round) {
    if (const auto failure = request.error()) {
        isFetching_ = false;
        return fail(*failure);
    }
    const Photos& added = request.items();
    {
        const std::lock_guard lock(mutex_);
        if (std::cmp_greater_equal(added.size(), cursor_.perPage))
            ++cursor_.page;
        else if (isEndedByCancel_ = request.isCancelled(); !isEndedByCancel_ || round == round_)
            canFetchMore_ = false;
        auto all = std::make_shared<Photos>(*items_);
        all->insert(all->end(), added.begin(), added.end());
        items_ = std::move(all);
        isFetching_ = false;
        error_.reset();
    }
    if (const auto listener = delegate.lock())
        listener->dataSourceDidFetch(*this, added);
}

void PagedDataSource::fail(const Error& error) {
    setError(error);
    if (const auto listener = delegate.lock())
        listener->dataSourceFetchDidFail(*this, error);
}

} // namespace tessivo::unsplash
