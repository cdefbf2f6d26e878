#pragma once

#include "Ports/Device.h"
#include "Ports/MailComposing.h"
#include "Ports/NetworkReachability.h"
#include "Ports/RemoteNotifications.h"
#include "Ports/ReviewRequests.h"

#include <utility>
#include <vector>

namespace tessivo::fakes {

/// A device of the test's making.
class StandInDevice final : public Device {
public:
    [[nodiscard]] std::string modelIdentifier() const override { return model; }
    [[nodiscard]] std::string systemVersion() const override { return system; }
    [[nodiscard]] std::optional<std::string> simulatedModelIdentifier() const override { return simulated; }

    std::string model = "PinePhone";
    std::string system = "Debian GNU/Linux 12 (bookworm)";
    std::optional<std::string> simulated;
};

/// A mail program that remembers its messages; the test answers.
class RecordingMail final : public MailComposing {
public:
    [[nodiscard]] bool canSendMail() const override { return canSend; }
    void compose(const MailMessage& message, Finished finished) override {
        messages.push_back(message);
        finish = std::move(finished);
    }

    bool canSend = true;
    std::vector<MailMessage> messages;
    Finished finish; ///< of the last message
};

class StandInReachability final : public NetworkReachability {
public:
    [[nodiscard]] std::optional<unsigned> flags() override { return answer; }

    std::optional<unsigned> answer = reachable;
};

class RecordingReviews final : public ReviewRequests {
public:
    [[nodiscard]] bool hasForegroundScene() const override { return foreground; }
    void requestReview() override { ++requests; }

    bool foreground = true;
    int requests = 0;
};

/// A push service that the test answers for.
class StandInPushService final : public RemoteNotifications {
public:
    void onRegistration(std::function<void(const DeviceToken&)> registered) override {
        answer = std::move(registered);
    }
    void registerForRemoteNotifications() override { ++registrations; }

    int registrations = 0;
    std::function<void(const DeviceToken&)> answer;
};

} // namespace tessivo::fakes
