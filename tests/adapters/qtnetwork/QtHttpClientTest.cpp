#include "qtnetwork/QtHttpClient.h"

#include "LoopbackServer.h"
#include "QtApplication.h"
#include "support/TemporaryFolder.h"

#include <QTimer>

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <atomic>
#include <fstream>
#include <optional>
#include <thread>

namespace tessivo {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Where a completion puts its result; shared by both threads.
struct Answer {
    std::optional<Result<HttpResponse>> result;
    std::thread::id thread;
    std::atomic<int> count = 0;

    [[nodiscard]] int status() const {
        return *result && result->value().status ? *result->value().status : 0;
    }
    [[nodiscard]] int code() const { return *result ? 0 : result->error().code; }
};

class QtHttpClientTest : public testing::Test {
protected:
    std::shared_ptr<HttpTask> start(HttpRequest request, const std::shared_ptr<Answer>& answer) {
        return client.start(std::move(request), [answer](Result<HttpResponse> result) {
            answer->result = std::move(result);
            answer->thread = std::this_thread::get_id();
            ++answer->count;
        });
    }

    /// Fetches a path of the server and waits for the end.
    std::shared_ptr<Answer> fetch(HttpRequest request) {
        auto answer = std::make_shared<Answer>();
        start(std::move(request), answer);
        EXPECT_TRUE(runUntil([&] { return answer->count > 0; }));
        return answer;
    }
    std::shared_ptr<Answer> fetch(const std::string& path) { return fetch(requestOf(path)); }

    [[nodiscard]] HttpRequest requestOf(const std::string& path) const {
        HttpRequest request;
        request.url = server.address() + path;
        return request;
    }

    QCoreApplication& application = qtApplication();
    LoopbackServer server;
    QtHttpClient client;
};

TEST_F(QtHttpClientTest, EveryStatusIsAnAnswer) {
    for (const auto* head : {"200 OK", "204 No Content", "304 Not Modified", "399 Odd", "400 Bad Request",
                             "401 Unauthorized", "403 Forbidden", "404 Not Found", "429 Too Many Requests",
                             "500 Internal Server Error", "503 Service Unavailable"}) {
        server.handlers["/a"] = LoopbackServer::answer(head);
        EXPECT_EQ(fetch("/a")->status(), std::stoi(head)) << head;
    }
}

TEST_F(QtHttpClientTest, HandsOverHeadersAndBody) {
    server.handlers["/a"] = LoopbackServer::answer("429 Too Many\r\nX-Left: 0", "Rate Limit Exceeded");
    HttpRequest request = requestOf("/a?q=1");
    request.method = "Get";
    request.headers = {{"Authorization", "Client-ID key"}};
    const auto answer = fetch(request);
    EXPECT_EQ(answer->result->value().body, "Rate Limit Exceeded");
    EXPECT_EQ(answer->result->value().headers.at("x-left"), "0");
    EXPECT_NE(answer->thread, std::this_thread::get_id());
    EXPECT_THAT(server.requests.at(0), testing::StartsWith("GET /a?q=1 HTTP/1.1"));
    EXPECT_THAT(server.requests.at(0), HasSubstr("Authorization: Client-ID key"));
    EXPECT_THAT(server.requests.at(0), Not(HasSubstr("no-cache")));
    request.reload = true;
    fetch(request);
    EXPECT_THAT(server.requests.at(1), HasSubstr("no-cache"));
}

TEST_F(QtHttpClientTest, TellsFailuresApart) {
    const auto half = [](QTcpSocket& socket) {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf");
        socket.flush();
        socket.disconnectFromHost();
    };
    server.handlers["/half"] = half;
    server.handlers["/reset"] = [](QTcpSocket& socket) { socket.abort(); };
    server.handlers["/mute"] = [](QTcpSocket&) {};
    server.handlers["/loop"] = LoopbackServer::answer("302 Found\r\nLocation: /loop");
    server.handlers["/file"] = LoopbackServer::answer("302 Found\r\nLocation: file:///etc/hosts");
    server.handlers["/packed"] = LoopbackServer::answer("200 OK\r\nContent-Encoding: gzip", "no gzip at all");
    server.handlers["/large"] = LoopbackServer::answer("200 OK", std::string(2000, 'x'));
    struct Case {
        const char* path;
        int code;
    };
    for (const auto& [path, code] :
         {Case{"/half", UrlErrorNetworkConnectionLost}, Case{"/reset", UrlErrorNetworkConnectionLost},
          Case{"/mute", UrlErrorTimedOut}, Case{"/loop", UrlErrorTooManyRedirects},
          Case{"/file", UrlErrorUnsupportedUrl}, Case{"/packed", UrlErrorUnknown},
          Case{"/large", UrlErrorTooLarge}}) {
        HttpRequest request = requestOf(path);
        request.timeout = Seconds(std::string(path) == "/mute" ? 0.05 : 60);
        request.maximumBody = 1000;
        const auto answer = fetch(request);
        EXPECT_EQ(answer->code(), code) << path;
        EXPECT_EQ(answer->result->error().domain, urlErrorDomain);
    }
    EXPECT_EQ(fetch(HttpRequest{.url = "http://127.0.0.1:1/"})->code(), UrlErrorCannotConnectToHost);
    EXPECT_EQ(fetch(HttpRequest{.url = "file:///etc/hosts"})->code(), UrlErrorUnsupportedUrl);
    EXPECT_EQ(fetch(HttpRequest{.url = "no address"})->code(), UrlErrorBadUrl);
    EXPECT_EQ(fetch(HttpRequest{.url = "gopher://x.test/"})->code(), UrlErrorUnsupportedUrl);
}

TEST_F(QtHttpClientTest, ABodyThatNeverEndsMeetsTheDeadlineOrTheLimit) {
    server.handlers["/drip"] = [](QTcpSocket& socket) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("drop"); });
        timer->start(5);
    };
    HttpRequest slow = requestOf("/drip");
    slow.deadline = Seconds(0.2);
    EXPECT_EQ(fetch(slow)->code(), UrlErrorTimedOut);
    HttpRequest large = requestOf("/drip");
    large.maximumBody = 20;
    EXPECT_EQ(fetch(large)->code(), UrlErrorTooLarge);
}

TEST_F(QtHttpClientTest, KeepsTheAuthorizationFromOtherAddresses) {
    LoopbackServer other;
    other.handlers["/there"] = LoopbackServer::answer("200 OK", "other");
    server.handlers["/here"] = LoopbackServer::answer("200 OK", "same");
    server.handlers["/stay"] = LoopbackServer::answer("302 Found\r\nLocation: /here");
    server.handlers["/leave"] =
        LoopbackServer::answer("307 Moved\r\nLocation: " + other.address() + "/there");
    for (const auto* path : {"/stay", "/leave"}) {
        HttpRequest request = requestOf(path);
        request.headers = {{"Authorization", "Client-ID key"}, {"X-Other", "1"}};
        EXPECT_EQ(fetch(request)->status(), 200);
    }
    EXPECT_THAT(server.requests.at(1), HasSubstr("Authorization: Client-ID key"));
    ASSERT_EQ(other.requests.size(), 1u);
    EXPECT_THAT(other.requests[0], HasSubstr("X-Other: 1"));
    EXPECT_THAT(other.requests[0], Not(HasSubstr("key")));
}

TEST_F(QtHttpClientTest, KeepsTheAuthorizationFromAnotherNameOfTheSamePort) {
    server.handlers["/there"] = LoopbackServer::answer("200 OK", "other");
    server.handlers["/leave"] = LoopbackServer::answer(
        "302 Found\r\nLocation: http://localhost:" + std::to_string(server.serverPort()) + "/there");
    HttpRequest request = requestOf("/leave");
    request.headers = {{"Authorization", "Client-ID key"}};
    EXPECT_EQ(fetch(request)->status(), 200);
    ASSERT_EQ(server.requests.size(), 2u);
    EXPECT_THAT(server.requests[1], Not(HasSubstr("key")));
}

TEST_F(QtHttpClientTest, ReadsPlainFilesOnly) {
    const TemporaryFolder folder;
    std::ofstream(folder / "a b.jpg") << "picture";
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto read = [&](const std::string& address, std::size_t maximum = 1000) {
        return fetch(HttpRequest{.url = address, .maximumBody = maximum, .kind = AddressKind::File});
    };
    const std::string base = "file://" + folder.path().string();
    const auto answer = read(base + "/a%20b.jpg");
    EXPECT_EQ(answer->result->value().body, "picture");
    EXPECT_EQ(answer->result->value().status, std::nullopt);
    EXPECT_NE(answer->thread, std::this_thread::get_id());
    EXPECT_EQ(read(base + "/a%20b.jpg", 6)->code(), UrlErrorTooLarge);
    for (const auto& path : {base + "/gone.jpg", base + "/pipe", base, std::string("file:///dev/zero")})
        EXPECT_EQ(read(path)->code(), UrlErrorFileDoesNotExist) << path;
    EXPECT_EQ(read(server.address() + "/a")->code(), UrlErrorUnsupportedUrl) << "an own photo is a file";
}

TEST_F(QtHttpClientTest, CancellingEndsAnExchangeOnce) {
    server.handlers["/mute"] = [](QTcpSocket&) {};
    server.handlers["/a"] = LoopbackServer::answer("200 OK", "body");
    const auto atOnce = std::make_shared<Answer>();
    start(requestOf("/mute"), atOnce)->cancel();
    EXPECT_TRUE(runUntil([&] { return atOnce->count > 0; }));
    EXPECT_EQ(atOnce->code(), UrlErrorCancelled);

    const auto underWay = std::make_shared<Answer>();
    const auto task = start(requestOf("/mute"), underWay);
    EXPECT_TRUE(runUntil([&] { return !server.requests.empty(); }));
    task->cancel();
    task->cancel();
    EXPECT_TRUE(runUntil([&] { return underWay->count > 0; }));
    EXPECT_EQ(underWay->code(), UrlErrorCancelled);

    const auto ended = std::make_shared<Answer>();
    const auto late = start(requestOf("/a"), ended);
    EXPECT_TRUE(runUntil([&] { return ended->count > 0; }));
    late->cancel();
    EXPECT_EQ(fetch("/a")->status(), 200) << "the client works on behind it";
    EXPECT_EQ(ended->status(), 200);
    EXPECT_EQ(atOnce->count + underWay->count + ended->count, 3);
    EXPECT_EQ(underWay.use_count(), 1) << "no exchange holds on to what it was given";
}

TEST_F(QtHttpClientTest, AClientThatGoesDropsWhatIsOut) {
    server.handlers["/mute"] = [](QTcpSocket&) {};
    const auto answer = std::make_shared<Answer>();
    std::shared_ptr<HttpTask> task;
    {
        QtHttpClient brief;
        task = brief.start(requestOf("/mute"), [answer](Result<HttpResponse>) { ++answer->count; });
        EXPECT_TRUE(runUntil([&] { return !server.requests.empty(); }));
    }
    EXPECT_EQ(answer.use_count(), 1);
    EXPECT_EQ(answer->count, 0);
    task->cancel();
}

} // namespace
} // namespace tessivo
