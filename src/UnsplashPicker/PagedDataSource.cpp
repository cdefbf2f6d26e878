#include "UnsplashPicker/PagedDataSource.h"

#include <utility>

namespace tessivo::unsplash {

Error DataSourceError::dataSourceIsFetching() {
    return {"DataSourceError", 1, "The data source is fetching already"};
}

PagedDataSource::PagedDataSource(WorkQueue& work, std::unique_ptr<PagedDataSourceFactory> itsFactory)
    : factory(std::move(itsFactory)),
      operationQueue(work, "com.unsplash.pagedDataSource"),
      cursor_(factory->initialCursor()) {}

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
    cursor_ = factory->initialCursor();
    error_.reset();
}

void PagedDataSource::cancelFetch() {
    operationQueue.cancelAllOperations();
    isFetching_ = false;
}

void PagedDataSource::fetchItems() {
    if (isFetching_)
        return fail(DataSourceError::dataSourceIsFetching());
    const auto told = delegate.lock();
    if (!canFetchMore_) {
        setError(std::nullopt);
        if (told)
            told->dataSourceDidFetch(*this, {});
        return;
    }
    if (told && items()->empty())
        told->dataSourceWillStartFetching(*this);
    isFetching_ = true;
    const auto request = factory->request(cursor());
    // The block belongs to the request, and the request to the source's queue: it holds neither, so that a
    // fetch that never ends keeps nothing alive.
    request->setCompletionBlock([weak = weak_from_this(), request = request.get()] {
        if (const auto self = weak.lock())
            self->complete(*request);
    });
    operationQueue.addOperation(request);
}

void PagedDataSource::complete(const UnsplashPagedRequest& request) {
    if (const auto failure = request.error()) {
        isFetching_ = false;
        return fail(*failure);
    }
    Photos added;
    added.reserve(request.items().size());
    for (const auto& photo : request.items())
        added.push_back(std::make_shared<const UnsplashPhoto>(photo));
    {
        const std::lock_guard lock(mutex_);
        if (std::cmp_greater_equal(added.size(), cursor_.perPage))
            ++cursor_.page;
        else
            canFetchMore_ = false;
        auto all = std::make_shared<Photos>(*items_);
        all->insert(all->end(), added.begin(), added.end());
        items_ = std::move(all);
        isFetching_ = false;
        error_.reset();
    }
    if (const auto told = delegate.lock())
        told->dataSourceDidFetch(*this, added);
}

void PagedDataSource::fail(const Error& error) {
    setError(error);
    if (const auto told = delegate.lock())
        told->dataSourceFetchDidFail(*this, error);
}

} // namespace tessivo::unsplash
