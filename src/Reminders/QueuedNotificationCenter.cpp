#include "Reminders/QueuedNotificationCenter.h"

#include "Ports/Clock.h"
#include "Ports/MainQueue.h"
#include "Ports/WorkQueue.h"

#include <utility>

namespace tessivo {
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

QueuedNotificationCenter::QueuedNotificationCenter(Machine machine, std::unique_ptr<WorkQueue> work,
                                                   Question question, std::function<void()> queueChanged)
    : machine_(machine),
      question_(std::move(question)),
      queueChanged_(std::move(queueChanged)),
      self_(std::make_shared<QueuedNotificationCenter*>(this)),
      work_(std::move(work)) {}

QueuedNotificationCenter::~QueuedNotificationCenter() = default;

void QueuedNotificationCenter::finish() {
    work_->finish();
}

void QueuedNotificationCenter::requestAuthorization(int, AuthorizationCompletion completion) {
    post([this, completion = std::move(completion)] {
        const auto status = machine_.queue.authorization();
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

void QueuedNotificationCenter::ask() {
    machine_.mainQueue.post([question = question_, self = std::weak_ptr(self_)] {
        question([self](bool granted) {
            if (const auto center = self.lock())
                (*center)->setAuthorization(granted);
        });
    });
}

void QueuedNotificationCenter::setAuthorization(bool granted) {
    post([this, granted] {
        const auto error = machine_.queue.setAuthorization(granted ? AuthorizationStatus::Authorized
                                                                   : AuthorizationStatus::Denied);
        helperMustKnow_ = true;
        for (const auto& completion : std::exchange(asking_, {}))
            completion(granted && !error, error);
    });
}

void QueuedNotificationCenter::begin(std::function<void()> restore) {
    post([this, restore = std::move(restore)] {
        helperMustKnow_ = true;
        const auto loss = machine_.queue.hasLoss();
        if (!loss || !loss.value())
            return;
        machine_.mainQueue.post([restore, self = std::weak_ptr(self_)] {
            const auto center = self.lock();
            if (!center)
                return;
            restore();
            (*center)->clearLoss();
        });
    });
}

// A second round: by then the completions of earlier requests have posted requests of their own.
void QueuedNotificationCenter::clearLoss() {
    post([this] {
        post([this] { (void)machine_.queue.clearLoss(); }); // a failure leaves it to the next start
    });
}

void QueuedNotificationCenter::getNotificationSettings(std::function<void(AuthorizationStatus)> completion) {
    post([this, completion = std::move(completion)] {
        const auto status = machine_.queue.authorization();
        completion(status ? status.value() : AuthorizationStatus::NotDetermined);
    });
}

void QueuedNotificationCenter::getPendingNotificationRequests(
    std::function<void(const PendingRequests&)> completion) {
    post([this, completion = std::move(completion)] { completion(pendingRequests()); });
}

void QueuedNotificationCenter::add(NotificationRequest request,
                                   std::function<void(Outcome error)> completion) {
    post([this, request = std::move(request), completion = std::move(completion)] {
        completion(addToQueue(request));
    });
}

void QueuedNotificationCenter::removePendingNotificationRequests(std::vector<std::string> identifiers) {
    post([this, identifiers = std::move(identifiers)] {
        helperMustKnow_ = true;
        (void)machine_.queue.remove(identifiers); // a failure cannot be reported: what stays is shown
    });
}

Outcome QueuedNotificationCenter::addToQueue(const NotificationRequest& request) {
    const auto status = machine_.queue.authorization();
    if (!status)
        return status.error();
    if (status.value() == AuthorizationStatus::Denied)
        return centerError(1, "Notifications are not allowed");
    const auto components =
        translated(request.trigger.dateComponents, machine_.calendar, machine_.queueCalendar);
    if (!components)
        return centerError(2, "There is no such date");
    helperMustKnow_ = true;
    if (machine_.queueCalendar.date(*components) < machine_.clock.now())
        return machine_.queue.remove({request.identifier});
    auto queued = request;
    queued.trigger.dateComponents = *components;
    return machine_.queue.add(queued);
}

PendingRequests QueuedNotificationCenter::pendingRequests() {
    auto read = machine_.queue.pending();
    if (!read) {
        listed_ = nullptr;
        pending_ = std::make_shared<const std::vector<NotificationRequest>>();
    } else if (read.value() != listed_) {
        listed_ = std::move(read.value());
        std::vector<NotificationRequest> requests;
        requests.reserve(listed_->size());
        for (const auto& queued : *listed_) {
            auto& components = requests.emplace_back(queued.request).trigger.dateComponents;
            components =
                translated(components, machine_.queueCalendar, machine_.calendar).value_or(components);
        }
        pending_ = std::make_shared<const std::vector<NotificationRequest>>(std::move(requests));
    }
    return pending_;
}

void QueuedNotificationCenter::post(std::function<void()> work) {
    ++waiting_;
    work_->post([this, work = std::move(work)] {
        work();
        if (--waiting_ == 0 && std::exchange(helperMustKnow_, false))
            queueChanged_();
    });
}

} // namespace tessivo
