#pragma once

#include "Ports/HttpClient.h"
#include "Ports/Json.h"
#include "Ports/Url.h"
#include "UnsplashPicker/ConcurrentOperation.h"
#include "UnsplashPicker/PickerPlatform.h"

#include <map>
#include <variant>

namespace tessivo::unsplash {

/// A value of a query; numbers are written in their printed form.
using ParameterValue = std::variant<std::string, std::int64_t>;
using Parameters = std::map<std::string, ParameterValue>;

/// The request layer's own errors; those of the network or a decoder are passed on unchanged.
namespace RequestError {

inline constexpr auto domain = "RequestError";

inline Error http(int status) {
    return {domain, status, "The service refused the request with status " + std::to_string(status)};
}
inline Error invalidURL() {
    return {domain, 1, "The request has no valid address"};
}
inline Error noHTTPResponse() {
    return {domain, 2, "The answer is not one of HTTP"};
}
inline Error invalidJSONResponse() {
    return {domain, 3, "The answer is not JSON"};
}

} // namespace RequestError

/// One exchange with a server as an operation: what to ask is for subclasses to say, what the answer's status
/// means is settled here.
class NetworkRequest : public ConcurrentOperation {
public:
    explicit NetworkRequest(const PickerPlatform& platform) : platform_(platform) {}

    /// Seconds without a byte from the server.
    static constexpr Seconds timeoutInterval{30};

    void cancel() override;

protected:
    /// The path of the address.
    [[nodiscard]] virtual std::string endpoint() const { return {}; }
    /// The address without its query; empty where none can be made.
    [[nodiscard]] virtual std::optional<Url> urlComponents() const { return std::nullopt; }
    /// Fields of the query; empty for no query.
    [[nodiscard]] virtual std::optional<Parameters> prepareParameters() const { return std::nullopt; }
    [[nodiscard]] virtual HttpHeaders headers() const { return {}; }
    /// The whole request but for method and headers; empty where no address can be made.
    [[nodiscard]] virtual std::optional<HttpRequest> prepareURLRequest() const;
    /// The body of a success.
    virtual void processResponseData(const std::string& data) = 0;

    void main() override;
    [[nodiscard]] const PickerPlatform& platform() const { return platform_; }

private:
    void complete(const Result<HttpResponse>& answer);

    const PickerPlatform platform_;
    std::mutex taskMutex_; ///< the task is made on the queue's thread and cancelled from others
    std::shared_ptr<HttpTask> task;
};

} // namespace tessivo::unsplash
