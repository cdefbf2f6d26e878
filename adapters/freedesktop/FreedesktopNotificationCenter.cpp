#include "freedesktop/FreedesktopNotificationCenter.h"

#include "Ports/MainQueue.h"

#include <utility>

namespace tessivo::freedesktop {
namespace {

Error centerError(int code, const char* description) {
    return {"NotificationCenter", code, description};
}

bool isWithin(const std::optional<int>& value, int end) {
    return !value || (*value >= 0 && *value < end);
}

/// The day of `components`, seen in another calendar; the time of day is the same in all. Where there is no
/// such day or time, nothing. A time that a clock change skips is one nevertheless: noon tells a day, and is
/// never skipped.
std::optional<DateComponents> translated(const DateComponents& components, const Calendar& from,
                                         const Calendar& to) {
    const auto& [year, month, day, hour, minute, second] = components;
    if (!year || !month || !day || !isWithin(hour, 24) || !isWithin(minute, 60) || !isWithin(second, 60))
        return std::nullopt;
    const auto noon = from.date({year, month, day, 12, 0, 0});
    const auto back = from.components(noon);
    if (back.year != year || back.month != month || back.day != day)
        return std::nullopt;
    const auto other = to.components(noon);
    return DateComponents{other.year, other.month, other.day, hour, minute, second};
}

} // namespace

FreedesktopNotificationCenter::FreedesktopNotificationCenter(NotificationQueue& queue,
                                                             const Calendar& calendar,
                                                             const Calendar& queueCalendar,
                                                             MainQueue& mainQueue, Question question,
                                                             std::function<void()> queueChanged)
    : queue_(queue),
      calendar_(calendar),
      queueCalendar_(queueCalendar),
      mainQueue_(mainQueue),
      question_(std::move(question)),
      queueChanged_(std::move(queueChanged)),
      self_(std::make_shared<FreedesktopNotificationCenter*>(this)),
      thread_([this] { work(); }) {}

FreedesktopNotificationCenter::~FreedesktopNotificationCenter() {
    end(State::Dropping);
}

void FreedesktopNotificationCenter::finish() {
    end(State::Finishing);
}

void FreedesktopNotificationCenter::requestAuthorization(int, AuthorizationCompletion completion) {
    post([this, completion = std::move(completion)] {
        const auto status = queue_.authorization();
        if (!status) {
            completion(false, status.error());
        } else if (status.value() != AuthorizationStatus::NotDetermined) {
            completion(status.value() == AuthorizationStatus::Authorized, {});
        } else {
            asking_.push_back(completion);
            if (asking_.size() == 1)
                ask();
        }
    });
}

void FreedesktopNotificationCenter::ask() {
    mainQueue_.post([question = question_, self = std::weak_ptr(self_)] {
        question([self](bool granted) {
            if (const auto center = self.lock())
                (*center)->setAuthorization(granted);
        });
    });
}

void FreedesktopNotificationCenter::setAuthorization(bool granted) {
    post([this, granted] {
        const auto error =
            queue_.setAuthorization(granted ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied);
        helperMustKnow_ = true;
        for (const auto& completion : std::exchange(asking_, {}))
            completion(granted && !error, error);
    });
}

void FreedesktopNotificationCenter::getNotificationSettings(
    std::function<void(AuthorizationStatus)> completion) {
    post([this, completion = std::move(completion)] {
        const auto status = queue_.authorization();
        completion(status ? status.value() : AuthorizationStatus::NotDetermined);
    });
}

void FreedesktopNotificationCenter::getPendingNotificationRequests(
    std::function<void(const std::vector<NotificationRequest>&)> completion) {
    post([this, completion = std::move(completion)] { completion(pendingRequests()); });
}

void FreedesktopNotificationCenter::add(NotificationRequest request,
                                        std::function<void(Outcome error)> completion) {
    post([this, request = std::move(request), completion = std::move(completion)] {
        completion(addToQueue(request));
    });
}

void FreedesktopNotificationCenter::removePendingNotificationRequests(std::vector<std::string> identifiers) {
    post([this, identifiers = std::move(identifiers)] {
        helperMustKnow_ = true;
        (void)queue_.remove(identifiers); // the caller has no ear for a failure: what stays is shown
    });
}

Outcome FreedesktopNotificationCenter::addToQueue(const NotificationRequest& request) {
    const auto status = queue_.authorization();
    if (!status)
        return status.error();
    if (status.value() == AuthorizationStatus::Denied)
        return centerError(1, "Notifications are not allowed");
    const auto components = translated(request.trigger.dateComponents, calendar_, queueCalendar_);
    if (!components)
        return centerError(2, "There is no such date");
    helperMustKnow_ = true;
    auto queued = request;
    queued.trigger.dateComponents = *components;
    return queue_.add(queued);
}

const std::vector<NotificationRequest>& FreedesktopNotificationCenter::pendingRequests() {
    auto read = queue_.pending();
    if (!read) {
        listed_ = nullptr;
        pending_.clear();
    } else if (read.value() != listed_) {
        listed_ = std::move(read.value());
        pending_.clear();
        for (const auto& queued : *listed_) {
            auto& components = pending_.emplace_back(queued.request).trigger.dateComponents;
            components = translated(components, queueCalendar_, calendar_).value_or(components);
        }
    }
    return pending_;
}

void FreedesktopNotificationCenter::post(std::function<void()> work) {
    {
        const std::scoped_lock lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

void FreedesktopNotificationCenter::end(State how) {
    if (!thread_.joinable())
        return;
    {
        const std::scoped_lock lock(mutex_);
        state_ = how;
    }
    changed_.notify_one();
    thread_.join();
}

void FreedesktopNotificationCenter::work() {
    while (const auto work = nextWork())
        work();
    if (helperMustKnow_)
        queueChanged_();
}

/// Waits for work; none says that it is over.
std::function<void()> FreedesktopNotificationCenter::nextWork() {
    std::unique_lock lock(mutex_);
    if (waiting_.empty() && std::exchange(helperMustKnow_, false)) {
        lock.unlock();
        queueChanged_();
        lock.lock();
    }
    changed_.wait(lock, [this] { return !waiting_.empty() || state_ != State::Running; });
    if (waiting_.empty() || state_ == State::Dropping)
        return nullptr;
    auto work = std::move(waiting_.front());
    waiting_.pop_front();
    return work;
}

} // namespace tessivo::freedesktop
