#pragma once

#include "Ports/Error.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo {

class HttpClient;
class JsonCoding;
class JsonValue;
class MainQueue;
class UuidSource;
struct HttpResponse;

/// A project at the remote configuration service. Where any of it is empty nothing is ever sent.
struct RemoteProject {
    std::string installations; ///< address of the service that registers installations, without a path
    std::string configuration; ///< address of the service that has the values, without a path
    std::string project;
    std::string appId;
    std::string apiKey;

    [[nodiscard]] bool isComplete() const;
};

/// What the service is told of the program that asks.
struct RemoteClient {
    std::string languageCode;
    std::string appVersion;
    std::string packageName;
};

/// The values that the remote configuration service has for this program.
///
/// A run of the program registers as an installation once, at its first fetch; every fetch goes to the
/// server. Fetched values are not seen before they are activated. Nothing is kept from one run to the next.
/// Main thread.
class RemoteConfig {
public:
    enum class FetchStatus { NoFetchYet = 0, Success = 1, Failure = 2 };
    using Fetched = std::function<void(FetchStatus, const std::optional<Error>&)>;

    /// The ports outlive this object and the exchanges that it has started.
    RemoteConfig(RemoteProject project, RemoteClient client, HttpClient& http, const JsonCoding& json,
                 UuidSource& uuids, MainQueue& mainQueue);
    RemoteConfig(const RemoteConfig&) = delete;
    RemoteConfig& operator=(const RemoteConfig&) = delete;

    /// Asks the server for all values. `fetched` is called once, in a later turn of the main loop, with an
    /// error unless it succeeded or there is no project to ask for; not at all when this object goes first.
    void fetchWithCompletionHandler(Fetched fetched);

    /// From now on values are those of the last successful fetch. `activated` is called in a later turn of
    /// the main loop, and told whether there were any that had not been activated.
    void activateWithCompletion(std::function<void(bool changed)> activated);

    /// The value of `key` as a text; empty where it has none.
    [[nodiscard]] std::string stringValue(std::string_view key) const;

private:
    using Values = std::map<std::string, std::string, std::less<>>;
    using Answered = std::function<void(const Result<JsonValue>& body)>;

    struct Installation {
        std::string id;
        std::string token;
    };

    void requestInstallation();
    void installed(const Result<JsonValue>& body);
    void requestValues(const Fetched& fetched);
    void post(std::string url, std::map<std::string, std::string> headers, const JsonValue& body,
              Answered answered);

    RemoteProject project_;
    RemoteClient client_;
    HttpClient& http_;
    const JsonCoding& json_;
    UuidSource& uuids_;
    MainQueue& mainQueue_;
    std::optional<Installation> installation_;
    std::vector<Fetched> waiting_; ///< for the installation
    std::optional<Values> fetched_;
    Values active_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< answers may come after this object
};

} // namespace tessivo
