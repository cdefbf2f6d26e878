#include "Event/EventContext.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessivo {

/// Puts the rows of a fetch into the objects of the context and gathers the answer.
class EventContext::Refresh : public EventRowReceiver {
public:
    explicit Refresh(EventContext& context) : context_(context) {}

    EventRows take() { return std::move(found_); }

protected:
    EventRecord* admit(const std::shared_ptr<EventCoreData>& event) {
        if (event->deleted_)
            return nullptr;
        found_.push_back(event);
        return event->changed_.any() ? nullptr : &event->values_;
    }

    EventContext& context_;
    EventRows found_;
};

/// All rows: rows and objects are both in the order of their keys, so one walk along both brings them
/// together, and the objects whose rows are gone fall out.
class EventContext::WholeRefresh final : public Refresh {
public:
    explicit WholeRefresh(EventContext& context) : Refresh(context), known_(std::move(context.rows_)) {
        context_.rows_.clear();
        context_.rows_.reserve(known_.size());
        found_.reserve(known_.size());
    }

    EventRecord* receive(RowKey key) override {
        while (next_ < known_.size() && known_[next_]->key_ < key)
            keepIfChanged(std::move(known_[next_++]));
        if (next_ < known_.size() && known_[next_]->key_ == key)
            context_.rows_.push_back(std::move(known_[next_++]));
        else
            context_.rows_.push_back(context_.make(key));
        return admit(context_.rows_.back());
    }

    /// The store has no more rows than those received.
    void end() {
        while (next_ < known_.size())
            keepIfChanged(std::move(known_[next_++]));
    }

    /// The store failed: what lies behind the rows received is not known.
    void breakOff() {
        while (next_ < known_.size())
            context_.rows_.push_back(std::move(known_[next_++]));
    }

private:
    void keepIfChanged(std::shared_ptr<EventCoreData> event) {
        if (event->changed_.any() || event->deleted_)
            context_.rows_.push_back(std::move(event));
        else
            release(*event);
    }

    EventRows known_;
    std::size_t next_ = 0;
};

/// Some rows, found among the objects one by one.
class EventContext::PartRefresh final : public Refresh {
public:
    using Refresh::Refresh;

    EventRecord* receive(RowKey key) override {
        auto place = context_.position(key);
        if (place == context_.rows_.end() || (*place)->key_ != key)
            place = context_.rows_.insert(place, context_.make(key));
        return admit(*place);
    }
};

EventContext::~EventContext() {
    for (const auto& event : rows_)
        release(*event);
    for (const auto& event : inserted_)
        release(*event);
}

Result<EventRows> EventContext::fetch(std::optional<std::string_view> predicate) {
    if (predicate)
        return fetchSome(*predicate);
    WholeRefresh rows(*this);
    if (auto error = store_.fetch(std::nullopt, rows)) {
        rows.breakOff();
        return *std::move(error);
    }
    rows.end();
    auto found = rows.take();
    found.insert(found.end(), inserted_.begin(), inserted_.end());
    return found;
}

Result<EventRows> EventContext::fetchSome(std::string_view predicate) {
    PartRefresh rows(*this);
    if (auto error = store_.fetch(predicate, rows))
        return *std::move(error);
    auto found = rows.take();
    const auto id = idOfPredicate(predicate);
    std::ranges::copy_if(inserted_, std::back_inserter(found),
                         [&](const auto& event) { return event->id() == id; });
    return found;
}

std::shared_ptr<EventCoreData> EventContext::insert(EventRecord values) {
    auto event = std::make_shared<EventCoreData>(std::move(values));
    event->context_ = this;
    inserted_.push_back(event);
    return event;
}

void EventContext::deleteObject(EventCoreData& event) {
    if (event.context_ != this || event.deleted_)
        return;
    if (event.key_ == 0) {
        release(event);
        std::erase_if(inserted_, [&](const auto& other) { return other.get() == &event; });
        return;
    }
    event.deleted_ = true;
    deleted_.push_back(*position(event.key_));
}

Outcome EventContext::save() {
    std::vector<EventChange> changes;
    changes.reserve(inserted_.size() + changed_.size() + deleted_.size());
    for (const auto& event : inserted_)
        changes.push_back({EventChange::Kind::Insert, 0, &event->values_, {}});
    for (const EventCoreData* event : changed_) {
        if (!event->deleted_)
            changes.push_back({EventChange::Kind::Update, event->key_, &event->values_, event->changed_});
    }
    for (const auto& event : deleted_)
        changes.push_back({EventChange::Kind::Delete, event->key_, nullptr, {}});
    if (changes.empty())
        return std::nullopt;
    if (auto error = store_.save(changes))
        return error;
    settle(changes);
    return std::nullopt;
}

void EventContext::settle(const std::vector<EventChange>& changes) {
    for (EventCoreData* event : changed_)
        event->changed_.reset();
    changed_.clear();
    for (std::size_t index = 0; index < inserted_.size(); ++index) {
        inserted_[index]->key_ = changes[index].key;
        inserted_[index]->changed_.reset();
    }
    rows_.insert(rows_.end(), inserted_.begin(), inserted_.end());
    inserted_.clear();
    for (const auto& event : deleted_) {
        rows_.erase(position(event->key_));
        release(*event);
    }
    deleted_.clear();
}

void EventContext::willChange(EventCoreData& event) {
    if (event.key_ != 0)
        changed_.push_back(&event);
}

std::shared_ptr<EventCoreData> EventContext::make(RowKey key) {
    auto event = std::make_shared<EventCoreData>();
    event->key_ = key;
    event->context_ = this;
    return event;
}

EventRows::iterator EventContext::position(RowKey key) {
    return std::ranges::lower_bound(rows_, key, {}, [](const auto& event) { return event->key_; });
}

void EventContext::release(EventCoreData& event) {
    event.context_ = nullptr;
    event.changed_.reset();
}

} // namespace tessivo
