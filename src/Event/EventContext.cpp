#include "Event/EventContext.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace tessivo {

namespace {

/// The identity that a predicate text asks for; empty for a text that is no such predicate.
std::optional<Uuid> idOfPredicate(std::string_view predicate) {
    constexpr std::string_view prefix = "id = \"";
    constexpr std::string_view suffix = "\"";
    if (!predicate.starts_with(prefix) || predicate.size() <= prefix.size() || !predicate.ends_with(suffix))
        return std::nullopt;
    predicate.remove_prefix(prefix.size());
    predicate.remove_suffix(suffix.size());
    return Uuid::fromString(predicate);
}

} // namespace

/// Puts the rows of a fetch into the objects of the context and gathers the answer.
class EventContext::Refresh : public EventRowReceiver {
public:
    explicit Refresh(EventContext& context) : context_(context) {}

    EventRows take() { return std::move(found_); }

protected:
    EventRecord* admit(std::shared_ptr<EventCoreData> event) {
        if (event->deleted_)
            return nullptr;
        EventRecord* values = event->changed_.any() ? nullptr : &event->values_;
        found_.push_back(std::move(event));
        return values;
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
        while (next_ < known_.size() && known_[next_].key < key)
            keepIfChanged(known_[next_++]);
        EventCoreData* object = nullptr;
        if (next_ < known_.size() && known_[next_].key == key)
            object = known_[next_++].object;
        auto event = object != nullptr ? object->shared_from_this() : context_.make(key);
        context_.rows_.push_back({key, event.get()});
        return admit(std::move(event));
    }

    /// The store has no more rows than those received.
    void end() {
        while (next_ < known_.size())
            keepIfChanged(known_[next_++]);
    }

    /// The store failed: what lies behind the rows received is not known.
    void breakOff() {
        while (next_ < known_.size())
            context_.rows_.push_back(known_[next_++]);
    }

private:
    void keepIfChanged(const Known& known) {
        if (known.object == nullptr)
            return;
        if (known.object->changed_.any() || known.object->deleted_)
            context_.rows_.push_back(known);
        else
            release(*known.object);
    }

    std::vector<Known> known_;
    std::size_t next_ = 0;
};

/// Some rows, found among the objects one by one.
class EventContext::PartRefresh final : public Refresh {
public:
    using Refresh::Refresh;

    EventRecord* receive(RowKey key) override {
        auto place = context_.position(key);
        if (place == context_.rows_.end() || place->key != key)
            place = context_.rows_.insert(place, {key, nullptr});
        auto event = place->object != nullptr ? place->object->shared_from_this() : context_.make(key);
        place->object = event.get();
        return admit(std::move(event));
    }
};

/// All rows one after the other: one that has no object passes through a record that all such share.
class EventContext::Visit final : public EventRowReceiver {
public:
    Visit(EventContext& context, const std::function<void(const EventRecord&)>& visit)
        : context_(context), visit_(visit) {}

    EventRecord* receive(RowKey key) override {
        passOn();
        while (next_ < context_.rows_.size() && context_.rows_[next_].key < key)
            ++next_;
        const bool isKnown = next_ < context_.rows_.size() && context_.rows_[next_].key == key;
        EventCoreData* object = isKnown ? context_.rows_[next_].object : nullptr;
        if (object == nullptr) {
            current_ = &shared_;
            return &shared_;
        }
        if (object->deleted_)
            return nullptr;
        current_ = &object->values_;
        return object->changed_.any() ? nullptr : &object->values_;
    }

    /// The record that was handed out last is filled by now.
    void passOn() {
        if (const auto* record = std::exchange(current_, nullptr))
            visit_(*record);
    }

private:
    EventContext& context_;
    const std::function<void(const EventRecord&)>& visit_;
    EventRecord shared_;
    const EventRecord* current_ = nullptr;
    std::size_t next_ = 0;
};

EventContext::~EventContext() {
    for (const Known& known : rows_) {
        if (known.object != nullptr)
            release(*known.object);
    }
    for (const auto& event : inserted_)
        release(*event);
}

Result<EventRows> EventContext::fetch(std::optional<std::string_view> predicate) {
    if (!predicate)
        return fetchAll();
    if (const auto id = idOfPredicate(*predicate))
        return fetchSome(*id);
    return Error{"EventContext", 1, "the predicate cannot be read: " + std::string(*predicate)};
}

Result<EventRows> EventContext::fetchAll() {
    if (auto rows = unchangedRows())
        return *std::move(rows);
    const auto state = store_.state();
    fetched_.reset();
    WholeRefresh rows(*this);
    if (auto error = store_.fetch(std::nullopt, rows)) {
        rows.breakOff();
        return *std::move(error);
    }
    rows.end();
    fetched_ = state;
    auto found = rows.take();
    found.insert(found.end(), inserted_.begin(), inserted_.end());
    return found;
}

/// The rows of the last fetch, as long as all are held and none has changed anywhere.
std::optional<EventRows> EventContext::unchangedRows() {
    const auto isGone = [](const Known& known) { return known.object == nullptr; };
    if (!fetched_ || hasChanges() || std::ranges::any_of(rows_, isGone) || store_.state() != fetched_)
        return std::nullopt;
    EventRows rows;
    rows.reserve(rows_.size());
    for (const Known& known : rows_)
        rows.push_back(known.object->shared_from_this());
    return rows;
}

Result<EventRows> EventContext::fetchSome(const Uuid& id) {
    PartRefresh rows(*this);
    if (auto error = store_.fetch(id, rows))
        return *std::move(error);
    auto found = rows.take();
    std::ranges::copy_if(inserted_, std::back_inserter(found),
                         [&](const auto& event) { return event->id() == id; });
    return found;
}

Outcome EventContext::visit(const std::function<void(const EventRecord&)>& visit) {
    Visit rows(*this, visit);
    if (auto error = store_.fetch(std::nullopt, rows))
        return error;
    rows.passOn();
    for (const auto& event : inserted_)
        visit(event->values());
    return std::nullopt;
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
    deleted_.push_back(event.shared_from_this());
}

Outcome EventContext::save() {
    std::vector<EventChange> changes;
    changes.reserve(inserted_.size() + changed_.size() + deleted_.size());
    for (const auto& event : inserted_)
        changes.push_back({EventChange::Kind::Insert, 0, &event->values_, {}});
    for (const auto& event : changed_) {
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
    for (const auto& event : changed_)
        event->changed_.reset();
    changed_.clear();
    for (std::size_t index = 0; index < inserted_.size(); ++index) {
        inserted_[index]->key_ = changes[index].key;
        inserted_[index]->changed_.reset();
        rows_.push_back({changes[index].key, inserted_[index].get()});
    }
    inserted_.clear();
    for (const auto& event : deleted_) {
        rows_.erase(position(event->key_));
        release(*event);
    }
    deleted_.clear();
}

void EventContext::willChange(EventCoreData& event) {
    if (event.key_ != 0)
        changed_.push_back(event.shared_from_this());
}

void EventContext::forget(const EventCoreData& event) {
    const auto place = position(event.key_);
    if (place != rows_.end() && place->object == &event)
        place->object = nullptr;
}

std::shared_ptr<EventCoreData> EventContext::make(RowKey key) {
    auto event = std::make_shared<EventCoreData>();
    event->key_ = key;
    event->context_ = this;
    return event;
}

std::vector<EventContext::Known>::iterator EventContext::position(RowKey key) {
    return std::ranges::lower_bound(rows_, key, {}, &Known::key);
}

void EventContext::release(EventCoreData& event) {
    event.context_ = nullptr;
    event.changed_.reset();
}

} // namespace tessivo
