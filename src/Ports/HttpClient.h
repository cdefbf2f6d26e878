#pragma once

#include "Ports/Error.h"
#include "Ports/Time.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// The domain of errors that lie between the program and an address.
inline constexpr std::string_view urlErrorDomain = "URLError";

/// What `Error::code` says in that domain.
enum UrlErrorCode : int {
    UrlErrorUnknown = -1,
    UrlErrorCancelled = -999,
    UrlErrorBadUrl = -1000,
    UrlErrorTimedOut = -1001,
    UrlErrorUnsupportedUrl = -1002,
    UrlErrorCannotFindHost = -1003,
    UrlErrorCannotConnectToHost = -1004,
    UrlErrorNetworkConnectionLost = -1005,
    UrlErrorTooManyRedirects = -1007,
    UrlErrorNotConnectedToInternet = -1009,
    UrlErrorInternationalRoamingOff = -1018,
    UrlErrorCallIsActive = -1019,
    UrlErrorDataNotAllowed = -1020,
    UrlErrorFileDoesNotExist = -1100,
    UrlErrorTooLarge = -1103,
    UrlErrorSecureConnectionFailed = -1200,
};

using HttpHeaders = std::map<std::string, std::string>;

/// What an address may be: one that comes from the network must not reach the user's files.
enum class AddressKind {
    Web, ///< http and https
    File ///< a plain file of this machine
};

struct HttpRequest {
    std::string url;
    std::string method = "GET";
    HttpHeaders headers{};
    std::string body{};                   ///< sent as it is, where the method has one
    Seconds timeout{60};                  ///< without a byte from the other side
    Seconds deadline{600};                ///< for the whole exchange, redirects included
    std::size_t maximumBody = 64u << 20u; ///< bytes; a longer body is an error
    AddressKind kind = AddressKind::Web;  ///< an address of the other kind is an error
    bool reload = false;                  ///< asks the caches on the way for a fresh answer
};

struct HttpResponse {
    std::optional<int> status; ///< empty where the address is no HTTP address (a local file)
    HttpHeaders headers{};     ///< names in lower case
    std::string body{};
};

/// A running exchange. Dropping it lets the exchange go on.
class HttpTask {
public:
    virtual ~HttpTask() = default;

    /// Ends the exchange; its completion comes with `UrlErrorCancelled`, unless it is under way already. Safe
    /// from any thread, also when the exchange has ended.
    virtual void cancel() = 0;
};

/// Fetches from HTTP addresses and local files.
class HttpClient {
public:
    virtual ~HttpClient() = default;

    using Completion = std::function<void(Result<HttpResponse>)>;

    /// Starts an exchange; safe from any thread. `completion` is called once, on a queue of the client's own,
    /// never inline and never on the main thread, one after the other; any status is a success here.
    /// Redirects are followed, but never from a secure address to an open one, and an "Authorization" header
    /// goes to the requested address and to no other. The client answers from the network, never from a
    /// cache of its own. A local file that hangs delays other local files and nothing else. Completions that
    /// are still out when the client goes are dropped.
    virtual std::shared_ptr<HttpTask> start(HttpRequest request, Completion completion) = 0;
};

} // namespace tessivo
