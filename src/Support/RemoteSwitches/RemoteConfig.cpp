#include "Support/RemoteSwitches/RemoteConfig.h"

#include "Ports/HttpClient.h"
#include "Ports/Json.h"
#include "Ports/MainQueue.h"
#include "Ports/Uuid.h"

#include <utility>

namespace tessivo {
namespace {

constexpr std::size_t maximumBody = 4u << 20u; // bytes
constexpr std::string_view sdkVersion = "w:0.6.4";
constexpr std::string_view authVersion = "FIS_v2";

Error failure(int code, std::string description) {
    return {"RemoteConfig", code, std::move(description)};
}

JsonValue object(std::initializer_list<std::pair<std::string_view, std::string_view>> members) {
    JsonValue::Object object;
    for (const auto& [key, value] : members)
        object.push_back({std::string(key), JsonValue(std::string(value))});
    return JsonValue(std::move(object));
}

const std::string* textAt(const JsonValue& value, std::string_view key) {
    const JsonValue* found = value.find(key);
    return found ? found->as<std::string>() : nullptr;
}

/// A new installation id: 22 digits of base64url, of which the first four bits are 0111.
std::string makeInstallationId(UuidSource& uuids) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    constexpr std::size_t length = 22;
    // A random identity has six bits that are always the same, and fewer bytes than an id takes: each digit
    // takes one byte, and bytes 6 and 8 are passed over.
    std::string id;
    while (id.size() < length) {
        const auto bytes = uuids.random().bytes;
        for (std::size_t i = 0; i < bytes.size() && id.size() < length; ++i) {
            if (i != 6 && i != 8)
                id += digits[bytes[i] & 0x3fu];
        }
    }
    id.front() = digits[0x1cu | (digits.find(id.front()) & 0x3u)];
    return id;
}

Result<JsonValue> bodyOf(const Result<HttpResponse>& response, const JsonCoding& json) {
    if (!response)
        return response.error();
    const int status = response.value().status.value_or(0);
    if (status != 200)
        return failure(status, "The service answered with status " + std::to_string(status) + ".");
    return json.parse(response.value().body);
}

} // namespace

bool RemoteProject::isComplete() const {
    return !installations.empty() && !configuration.empty() && !project.empty() && !appId.empty() &&
           !apiKey.empty();
}

RemoteConfig::RemoteConfig(RemoteProject project, RemoteClient client, HttpClient& http,
                           const JsonCoding& json, UuidSource& uuids, MainQueue& mainQueue)
    : project_(std::move(project)),
      client_(std::move(client)),
      http_(http),
      json_(json),
      uuids_(uuids),
      mainQueue_(mainQueue) {}

void RemoteConfig::fetchWithCompletionHandler(Fetched fetched) {
    if (!project_.isComplete()) {
        mainQueue_.post([fetched = std::move(fetched)] { fetched(FetchStatus::Failure, std::nullopt); });
        return;
    }
    if (installation_)
        return requestValues(fetched);
    waiting_.push_back(std::move(fetched));
    if (waiting_.size() == 1)
        requestInstallation();
}

void RemoteConfig::activateWithCompletion(std::function<void(bool changed)> activated) {
    const bool changed = fetched_.has_value();
    if (changed)
        active_ = *std::exchange(fetched_, std::nullopt);
    if (activated)
        mainQueue_.post([activated = std::move(activated), changed] { activated(changed); });
}

std::string RemoteConfig::stringValue(std::string_view key) const {
    const auto found = active_.find(key);
    return found == active_.end() ? std::string() : found->second;
}

void RemoteConfig::requestInstallation() {
    post(project_.installations + "/v1/projects/" + project_.project + "/installations",
         {{"x-goog-api-key", project_.apiKey}},
         object({{"fid", makeInstallationId(uuids_)},
                 {"authVersion", authVersion},
                 {"appId", project_.appId},
                 {"sdkVersion", sdkVersion}}),
         [this](const Result<JsonValue>& body) { installed(body); });
}

void RemoteConfig::installed(const Result<JsonValue>& body) {
    std::optional<Error> error;
    if (body) {
        const JsonValue* auth = body.value().find("authToken");
        const std::string* id = textAt(body.value(), "fid");
        const std::string* token = auth ? textAt(*auth, "token") : nullptr;
        if (id && token)
            installation_ = Installation{*id, *token};
        else
            error = failure(0, "The service registered no installation.");
    } else {
        error = body.error();
    }
    for (const auto& fetched : std::exchange(waiting_, {})) {
        if (error)
            fetched(FetchStatus::Failure, error);
        else
            requestValues(fetched);
    }
}

void RemoteConfig::requestValues(const Fetched& fetched) {
    post(project_.configuration + "/v1/projects/" + project_.project +
             "/namespaces/firebase:fetch?key=" + project_.apiKey,
         {},
         object({{"appId", project_.appId},
                 {"appInstanceId", installation_->id},
                 {"appInstanceIdToken", installation_->token},
                 {"languageCode", client_.languageCode},
                 {"appVersion", client_.appVersion},
                 {"packageName", client_.packageName}}),
         [this, fetched](const Result<JsonValue>& body) {
             if (!body)
                 return fetched(FetchStatus::Failure, body.error());
             const std::string* state = textAt(body.value(), "state");
             if (!state)
                 return fetched(FetchStatus::Failure, failure(0, "The service answered without a state."));
             if (*state != "NO_CHANGE") {
                 Values values;
                 const JsonValue* entries = body.value().find("entries");
                 if (const auto* members = entries ? entries->as<JsonValue::Object>() : nullptr) {
                     for (const auto& [key, value] : *members) {
                         if (const auto* text = value.as<std::string>())
                             values.insert_or_assign(key, *text);
                     }
                 }
                 fetched_ = std::move(values);
             }
             fetched(FetchStatus::Success, std::nullopt);
         });
}

void RemoteConfig::post(std::string url, std::map<std::string, std::string> headers, const JsonValue& body,
                        Answered answered) {
    HttpRequest request;
    request.url = std::move(url);
    request.method = "POST";
    request.headers = std::move(headers);
    request.headers["Content-Type"] = "application/json";
    request.headers["Accept"] = "application/json";
    request.body = json_.write(body);
    request.maximumBody = maximumBody;
    http_.start(std::move(request), [&json = json_, &mainQueue = mainQueue_, alive = std::weak_ptr(alive_),
                                     answered = std::move(answered)](const Result<HttpResponse>& response) {
        mainQueue.post([body = bodyOf(response, json), alive, answered] {
            if (!alive.expired())
                answered(body);
        });
    });
}

} // namespace tessivo
