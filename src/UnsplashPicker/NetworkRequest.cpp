#include "UnsplashPicker/NetworkRequest.h"

#include "Ports/Console.h"

namespace tessivo::unsplash {
namespace {

struct StatusRange {
    int first;
    int end; ///< not in the range

    [[nodiscard]] constexpr bool contains(int status) const { return status >= first && status < end; }
};

constexpr StatusRange successCodes{200, 299};
constexpr StatusRange failureCodes{400, 499};
constexpr auto httpMethod = "Get";
constexpr std::size_t maximumAnswer = 4u << 20u; // bytes of JSON

/// "key=value&" for each parameter. Escaping is left to the address: a "&" in a value starts another
/// parameter.
std::string queryText(const Parameters& parameters) {
    std::string text;
    for (const auto& [key, value] : parameters) {
        const auto* string = std::get_if<std::string>(&value);
        text += key + "=" + (string ? *string : std::to_string(std::get<std::int64_t>(value))) + "&";
    }
    return text;
}

} // namespace

void NetworkRequest::cancel() {
    std::shared_ptr<HttpTask> running;
    {
        const std::lock_guard lock(taskMutex_);
        running = task;
    }
    if (running)
        running->cancel();
    ConcurrentOperation::cancel();
}

void NetworkRequest::main() {
    auto request = prepareURLRequest();
    if (!request)
        return fail(RequestError::invalidURL());
    request->method = httpMethod;
    request->headers = headers();
    const auto self = std::static_pointer_cast<NetworkRequest>(shared_from_this());
    auto started = platform_.http.start(
        std::move(*request), [self](const Result<HttpResponse>& answer) { self->complete(answer); });
    {
        const std::lock_guard lock(taskMutex_);
        task = started;
    }
    // A cancel that came before the task was known has not reached it.
    if (isCancelled())
        started->cancel();
}

std::optional<HttpRequest> NetworkRequest::prepareURLRequest() const {
    const auto components = urlComponents();
    if (!components)
        return std::nullopt;
    const auto parameters = prepareParameters();
    HttpRequest request;
    request.url = components->withQuery(parameters ? queryText(*parameters) : "").absoluteString();
    request.timeout = timeoutInterval;
    request.maximumBody = maximumAnswer;
    request.reload = true;
    return request;
}

void NetworkRequest::complete(const Result<HttpResponse>& answer) {
    if (!answer)
        return fail(answer.error());
    const auto& [status, fields, body] = answer.value();
    if (!status)
        return fail(RequestError::noHTTPResponse());
    if (successCodes.contains(*status))
        return processResponseData(body);
    if (failureCodes.contains(*status)) {
        if (const auto json = platform_.json.parse(body))
            platform_.console.print(platform_.json.write(json.value()));
        return fail(RequestError::http(*status));
    }
    fail({"NetworkService", 0, "Request failed with code " + std::to_string(*status),
          "Wrong handling logic, wrong endpoing mapping or backend bug."});
}

} // namespace tessivo::unsplash
