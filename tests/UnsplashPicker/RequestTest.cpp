#include "PhotoJson.h"
#include "PickerFixture.h"
#include "UnsplashPicker/UnsplashRequest.h"

namespace tessivo::unsplash {
namespace {

class RequestTest : public PickerTest {
protected:
    RequestTest() {
        UnsplashPickerConfiguration configuration;
        configuration.accessKey = "key";
        services.setConfiguration(configuration);
    }

    template <class Request>
    std::shared_ptr<Request> make(Parameters parameters, std::int64_t page = 1) {
        const auto request = std::make_shared<Request>(services.platform(), services.configuration(),
                                                       Cursor{page, 30, std::move(parameters)});
        request->setCompletionBlock([this] { ++completions; });
        return request;
    }

    std::shared_ptr<SearchPhotosRequest> started(std::string text = "sea") {
        const auto request = make<SearchPhotosRequest>({{"query", std::move(text)}});
        queue.addOperation(request);
        timeline.runPosted();
        return request;
    }

    OperationQueue queue{work, "test"};
    int completions = 0;
    const std::string base = services.configuration().apiURL();
};

TEST_F(RequestTest, AsksForASearch) {
    started();
    const HttpRequest& request = http.exchanges().at(0)->request;
    EXPECT_EQ(request.url, base + "/search/photos?page=1&per_page=30&query=sea&");
    EXPECT_EQ(request.method, "Get");
    EXPECT_EQ(request.headers, (HttpHeaders{{"Authorization", "Client-ID key"}}));
    EXPECT_EQ(request.timeout, Seconds(30));
    EXPECT_EQ(request.maximumBody, 4u << 20u);
    EXPECT_TRUE(request.reload);
}

TEST_F(RequestTest, LeavesTheMarksOfAQueryInASearchTextAlone) {
    started("a&b=c d\u00e9%");
    EXPECT_EQ(http.exchanges().at(0)->request.url,
              base + "/search/photos?page=1&per_page=30&query=a&b=c%20d%C3%A9%25&");
}

TEST_F(RequestTest, AsksForACollectionWithoutItsIdInTheQuery) {
    const auto request = make<GetCollectionPhotosRequest>({{"id", "317099"}, {"order", "new"}}, 2);
    queue.addOperation(request);
    timeline.runPosted();
    EXPECT_EQ(http.exchanges().at(0)->request.url,
              base + "/collections/317099/photos?order=new&page=2&per_page=30&");
    http.answer(200, photosJson(2));
    EXPECT_EQ(request->items().size(), 2u);
    EXPECT_FALSE(request->error());
}

TEST_F(RequestTest, TellsStatusesApart) {
    struct Case {
        int status;
        std::string domain; ///< of the error; empty for none
        int code;
    };
    const Case cases[] = {
        {200, "", 0},
        {298, "", 0},
        {299, "NetworkService", 0},
        {304, "NetworkService", 0},
        {399, "NetworkService", 0},
        {400, "RequestError", 400},
        {404, "RequestError", 404},
        {498, "RequestError", 498},
        {499, "NetworkService", 0},
        {503, "NetworkService", 0},
    };
    for (const auto& [status, domain, code] : cases) {
        const auto request = started();
        EXPECT_TRUE(request->isExecuting());
        http.answer(status, R"({"results": []})");
        const Error error = request->error().value_or(Error{});
        EXPECT_EQ(error.domain, domain) << status;
        EXPECT_EQ(error.code, code) << status;
        if (domain == "NetworkService") {
            EXPECT_EQ(error.description, "Request failed with code " + std::to_string(status));
            EXPECT_EQ(error.failureReason, "Wrong handling logic, wrong endpoing mapping or backend bug.");
        }
        EXPECT_TRUE(request->isFinished());
        EXPECT_FALSE(request->isExecuting());
    }
    EXPECT_EQ(completions, 10);
    EXPECT_EQ(queue.operationCount(), 0u);
}

TEST_F(RequestTest, PrintsWhatARefusalSays) {
    started();
    http.answer(401, R"({"errors": ["no"]})");
    started();
    http.answer(429, "Rate Limit Exceeded");
    EXPECT_EQ(console.lines(), (std::vector<std::string>{R"({"errors":["no"]})"}));
}

TEST_F(RequestTest, ReadsSearchAnswers) {
    struct Case {
        std::string body;
        std::size_t items;
        std::string errorDomain; ///< empty for none
    };
    const Case cases[] = {
        {R"({"total": 2, "results": )" + photosJson(2) + "}", 2, ""},
        {R"({"results": []})", 0, ""},
        {R"({"results": {}})", 0, ""},
        {"{}", 0, ""},
        {"[]", 0, ""},
        {R"({"results": [{}]})", 0, "Decoding"},
        {R"({"results": [)", 0, "RequestError"},
        {"<html>", 0, "RequestError"},
        {"", 0, "RequestError"},
    };
    for (const auto& [body, items, domain] : cases) {
        const auto request = started();
        http.answer(200, body);
        EXPECT_EQ(request->items().size(), items) << body;
        EXPECT_EQ(request->error() ? request->error()->domain : "", domain) << body;
        EXPECT_TRUE(request->isFinished());
    }
    EXPECT_EQ(completions, std::ssize(cases));
}

TEST_F(RequestTest, ReadsCollectionAnswers) {
    const std::tuple<std::string, std::size_t, std::string> cases[] = {
        {photosJson(2), 2, ""},    {"[]", 0, ""},           {R"({"results": []})", 0, "Decoding"},
        {"[{}]", 0, "Decoding"},   {"null", 0, "Decoding"}, {"[{", 0, "Decoding"},
        {"<html>", 0, "Decoding"}, {"", 0, "Decoding"},
    };
    for (const auto& [body, items, domain] : cases) {
        const auto request = make<GetCollectionPhotosRequest>({{"id", "317099"}});
        queue.addOperation(request);
        timeline.runPosted();
        http.answer(200, body);
        EXPECT_EQ(request->items().size(), items) << body;
        EXPECT_EQ(request->error() ? request->error()->domain : "", domain) << body;
        EXPECT_TRUE(request->isFinished());
    }
    EXPECT_EQ(completions, std::ssize(cases));
}

TEST_F(RequestTest, HandsOnWhatTheNetworkSays) {
    const Error lost{std::string(urlErrorDomain), UrlErrorNetworkConnectionLost, "lost"};
    const auto request = started();
    http.answer(lost);
    EXPECT_EQ(request->error(), lost);
    const auto file = started();
    http.answer(HttpResponse{std::nullopt, {}, "{}"});
    EXPECT_EQ(file->error(), RequestError::noHTTPResponse());
}

TEST_F(RequestTest, CancellingEndsItOnceInEveryState) {
    const auto waiting = make<SearchPhotosRequest>({});
    queue.addOperation(waiting);
    queue.cancelAllOperations();
    EXPECT_FALSE(waiting->isFinished());
    timeline.runPosted();
    EXPECT_TRUE(waiting->isFinished());
    EXPECT_EQ(waiting->error(), std::nullopt);
    EXPECT_TRUE(http.exchanges().empty());
    EXPECT_EQ(completions, 1);

    const auto running = started();
    queue.cancelAllOperations();
    EXPECT_TRUE(running->isFinished());
    EXPECT_EQ(running->error()->code, UrlErrorCancelled);
    EXPECT_EQ(completions, 2);

    const auto ended = started();
    http.answer(200, "{}");
    ended->cancel();
    EXPECT_EQ(ended->error(), std::nullopt);
    EXPECT_EQ(completions, 3);
}

TEST_F(RequestTest, ACancelledDependencyKeepsItFromStarting) {
    const auto first = make<SearchPhotosRequest>({});
    const auto second = make<SearchPhotosRequest>({});
    second->addDependency(first);
    first->cancel();
    queue.addOperation(second);
    timeline.runPosted();
    EXPECT_TRUE(second->isFinished());
    EXPECT_TRUE(http.exchanges().empty());
}

TEST_F(RequestTest, LeavesNothingBehind) {
    std::weak_ptr<SearchPhotosRequest> ended = started();
    http.answer(200, "{}");
    std::weak_ptr<SearchPhotosRequest> cancelled = started();
    queue.cancelAllOperations();
    EXPECT_TRUE(ended.expired());
    EXPECT_TRUE(cancelled.expired());
}

} // namespace
} // namespace tessivo::unsplash
