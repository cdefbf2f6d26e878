#include "fakes/ScriptedHttpClient.h"

#include <algorithm>
#include <utility>

namespace tessivo::fakes {
namespace {

void end(ScriptedHttpClient::Exchange& exchange, Result<HttpResponse> result) {
    if (const auto completion = std::exchange(exchange.completion, nullptr))
        completion(std::move(result));
}

class ScriptedTask final : public HttpTask {
public:
    explicit ScriptedTask(std::shared_ptr<ScriptedHttpClient::Exchange> exchange)
        : exchange_(std::move(exchange)) {}

    void cancel() override {
        exchange_->isCancelled = true;
        end(*exchange_, Error{std::string(urlErrorDomain), UrlErrorCancelled, "cancelled"});
    }

private:
    std::shared_ptr<ScriptedHttpClient::Exchange> exchange_;
};

} // namespace

ScriptedHttpClient::~ScriptedHttpClient() {
    // A request holds its task and is held by the completion: unfinished exchanges must break the cycle.
    for (const auto& exchange : exchanges_)
        exchange->completion = nullptr;
}

std::shared_ptr<HttpTask> ScriptedHttpClient::start(HttpRequest request, Completion completion) {
    exchanges_.push_back(
        std::make_shared<Exchange>(Exchange{std::move(request), std::move(completion), false}));
    return std::make_shared<ScriptedTask>(exchanges_.back());
}

std::size_t ScriptedHttpClient::running() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        exchanges_, [](const auto& exchange) { return static_cast<bool>(exchange->completion); }));
}

void ScriptedHttpClient::answer(std::size_t index, Result<HttpResponse> result) {
    end(*exchanges_.at(index), std::move(result));
}

} // namespace tessivo::fakes
