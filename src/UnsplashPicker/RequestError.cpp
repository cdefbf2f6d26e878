#include "UnsplashPicker/RequestError.h"

namespace tessivo::unsplash {
namespace {

constexpr auto domain = "RequestError";
enum Code : int { InvalidURL = 1, NoHTTPResponse = 2, InvalidJSONResponse = 3 };

} // namespace

namespace RequestError {

Error http(int status) {
    return {domain, status, "The service refused the request with status " + std::to_string(status)};
}

Error invalidURL() {
    return {domain, InvalidURL, "The request has no valid address"};
}

Error noHTTPResponse() {
    return {domain, NoHTTPResponse, "The answer is not one of HTTP"};
}

Error invalidJSONResponse() {
    return {domain, InvalidJSONResponse, "The answer is not JSON"};
}

} // namespace RequestError

Error networkServiceError(int status) {
    return {"NetworkService", 0, "Request failed with code " + std::to_string(status),
            "Wrong handling logic, wrong endpoing mapping or backend bug."};
}

} // namespace tessivo::unsplash
