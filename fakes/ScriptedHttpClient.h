#pragma once

#include "Ports/HttpClient.h"

#include <vector>

namespace tessivo::fakes {

/// A network that answers when the test says so, on the thread of the test.
class ScriptedHttpClient final : public HttpClient {
public:
    struct Exchange {
        HttpRequest request;
        Completion completion; ///< empty once it has ended
        bool isCancelled = false;
    };

    ScriptedHttpClient() = default;
    ~ScriptedHttpClient() override;
    ScriptedHttpClient(const ScriptedHttpClient&) = delete;
    ScriptedHttpClient& operator=(const ScriptedHttpClient&) = delete;

    std::shared_ptr<HttpTask> start(HttpRequest request, Completion completion) override;

    /// All exchanges so far, in the order of their start.
    [[nodiscard]] const std::vector<std::shared_ptr<Exchange>>& exchanges() const { return exchanges_; }
    /// How many have not ended.
    [[nodiscard]] std::size_t running() const;

    /// Ends the exchange of that index; one that has ended already stays as it is.
    void answer(std::size_t index, Result<HttpResponse> result);
    /// Ends the newest exchange.
    void answer(Result<HttpResponse> result) { answer(exchanges_.size() - 1, std::move(result)); }
    void answer(int status, std::string body) { answer(HttpResponse{status, {}, std::move(body)}); }

private:
    std::vector<std::shared_ptr<Exchange>> exchanges_;
};

} // namespace tessivo::fakes
