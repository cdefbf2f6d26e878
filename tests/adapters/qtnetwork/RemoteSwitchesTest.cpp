#include "Support/RemoteSwitches/FirebaseManager.h"
#include "Support/RemoteSwitches/Reachability.h"
#include "Support/RemoteSwitches/RemoteConfig.h"
#include "Support/SettingKeys.h"

#include "LoopbackServer.h"
#include "QtApplication.h"
#include "fakes/CountingUuids.h"
#include "fakes/MemorySavedSettings.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "qtnetwork/QtHttpClient.h"
#include "qtnetwork/QtReachability.h"
#include "json/NlohmannJson.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Optional;
using testing::StartsWith;

/// The network, as patient as the test says.
class Hasty final : public HttpClient {
public:
    std::shared_ptr<HttpTask> start(HttpRequest request, Completion completion) override {
        request.timeout = timeout;
        return client.start(std::move(request), std::move(completion));
    }
    QtHttpClient client;
    Seconds timeout{60};
};

constexpr auto installationsPath = "/v1/projects/p/installations";
constexpr auto valuesPath = "/v1/projects/p/namespaces/firebase:fetch";
constexpr auto installed =
    R"({"fid": "fid of the server", "refreshToken": "r", "authToken": {"token": "a token", "expiresIn": "604800s"}})";

class RemoteSwitchesTest : public testing::Test {
protected:
    RemoteSwitchesTest() {
        server.handlers[installationsPath] = LoopbackServer::answer("200 OK", installed);
        answerValues(R"({"entries": {"rateUs": "1", "adsShow": "0"}, "state": "UPDATE"})");
    }

    void answerValues(const std::string& body, const std::string& head = "200 OK") {
        server.handlers[valuesPath] = LoopbackServer::answer(head, body);
    }

    /// Fetches once with a program that has just started, and waits until the console has heard of the end.
    std::vector<std::string> fetch() {
        RemoteConfig config(project, {"de", "0.1.0", "org.tessivo.Tessivo"}, http, json, uuids, line);
        const auto manager = std::make_shared<FirebaseManager>(config, settings, line, console);
        manager->fetch();
        EXPECT_THAT(console.lines(), IsEmpty()) << "nobody waits for the switches";
        EXPECT_TRUE(runUntil([&] {
            line.advance(Seconds(0));
            return !console.lines().empty();
        }));
        return console.take();
    }

    QCoreApplication& application = qtApplication();
    LoopbackServer server;
    RemoteProject project{server.address(), server.address(), "p", "1:2:web:3", "key"};
    Hasty http;
    NlohmannJson json;
    fakes::CountingUuids uuids;
    fakes::Timeline line;
    fakes::MemorySavedSettings settings;
    fakes::RecordingConsole console;
};

TEST_F(RemoteSwitchesTest, ASuccessfulFetchStoresTheSwitchesAsTexts) {
    EXPECT_THAT(fetch(), ElementsAre("1 : rateUs", "0 : adsShow"));
    EXPECT_THAT(settings.text(settingKeys::rateUs), Optional(std::string("1")));
    EXPECT_THAT(settings.text(settingKeys::adsShow), Optional(std::string("0")));

    ASSERT_EQ(server.requests.size(), 2U);
    EXPECT_THAT(server.requests[0], AllOf(StartsWith("POST /v1/projects/p/installations HTTP/1.1"),
                                          HasSubstr("x-goog-api-key: key")));
    const auto installation = json.parse(server.bodies[0]);
    ASSERT_TRUE(installation) << server.bodies[0];
    EXPECT_THAT(*installation.value().find("fid")->as<std::string>(), MatchesRegex("[c-f][A-Za-z0-9_-]{21}"));
    EXPECT_EQ(*installation.value().find("authVersion")->as<std::string>(), "FIS_v2");
    EXPECT_EQ(*installation.value().find("appId")->as<std::string>(), "1:2:web:3");

    EXPECT_THAT(server.requests[1],
                StartsWith("POST /v1/projects/p/namespaces/firebase:fetch?key=key HTTP/1.1"));
    EXPECT_EQ(server.bodies[1],
              R"({"appId":"1:2:web:3","appInstanceId":"fid of the server","appInstanceIdToken":"a token",)"
              R"("appVersion":"0.1.0","languageCode":"de","packageName":"org.tessivo.Tessivo"})");
}

TEST_F(RemoteSwitchesTest, AnUnsetSwitchIsStoredAsTheEmptyText) {
    const std::string megabyte(1u << 20u, 'x');
    struct Case {
        std::string body;
        std::string rateUs;
    };
    for (const auto& [body, rateUs] :
         {Case{R"({"state": "NO_CHANGE"})", ""}, Case{R"({"state": "NO_TEMPLATE"})", ""},
          Case{R"({"entries": {"other": "1"}, "state": "UPDATE"})", ""},
          Case{R"({"entries": {"rateUs": 1}, "state": "UPDATE"})", ""},
          Case{R"({"entries": {"rateUs": ""}, "state": "UPDATE"})", ""},
          Case{R"({"entries": {"rateUs": "one"}, "state": "UPDATE"})", "one"},
          Case{R"({"entries": {"rateUs": ")" + megabyte + R"("}, "state": "UPDATE"})", megabyte}}) {
        settings.setText(settingKeys::rateUs, "former");
        answerValues(body);
        EXPECT_EQ(fetch().front(), rateUs + " : rateUs");
        EXPECT_THAT(settings.text(settingKeys::rateUs), Optional(rateUs));
    }
}

TEST_F(RemoteSwitchesTest, AFailedFetchLeavesItsOwnValues) {
    struct Case {
        const char* name;
        std::function<void()> provoke;
        const char* printed;
    };
    const Case cases[] = {
        {"no project", [this] { project.apiKey.clear(); }, "Error: No error available."},
        {"closed port", [this] { project.configuration = "http://127.0.0.1:1"; }, "Error: "},
        {"403", [this] { answerValues("{}", "403 Forbidden"); },
         "Error: The service answered with status 403."},
        {"429", [this] { answerValues("{}", "429 Slow"); }, "Error: The service answered with status 429."},
        {"500", [this] { answerValues("{}", "500 Oops"); }, "Error: The service answered with status 500."},
        {"HTML", [this] { answerValues("<!DOCTYPE html><p>Sign in</p>"); }, "Error: "},
        {"cut off", [this] { answerValues(R"({"entries": {"rateUs": "1)"); }, "Error: "},
        {"no state", [this] { answerValues("[]"); }, "Error: The service answered without a state."},
        {"time-out",
         [this] {
             server.handlers[valuesPath] = [](QTcpSocket&) {};
             http.timeout = Seconds(0.3);
         },
         "Error: The request timed out."},
        {"no installation",
         [this] { server.handlers[installationsPath] = LoopbackServer::answer("200 OK", "{}"); },
         "Error: The service registered no installation."},
        {"installation refused",
         [this] { server.handlers[installationsPath] = LoopbackServer::answer("400 Bad", "{}"); },
         "Error: The service answered with status 400."},
    };
    const RemoteProject whole = project;
    for (const auto& [name, provoke, printed] : cases) {
        SCOPED_TRACE(name);
        server.handlers[installationsPath] = LoopbackServer::answer("200 OK", installed);
        answerValues("{}");
        project = whole;
        http.timeout = Seconds(60);
        settings.setText(settingKeys::rateUs, "1");
        provoke();
        EXPECT_THAT(fetch(), ElementsAre(StartsWith(printed)));
        EXPECT_THAT(settings.text(settingKeys::rateUs), Optional(std::string("0")));
        EXPECT_THAT(settings.text(settingKeys::adsShow), Optional(std::string("2")));
    }
}

TEST_F(RemoteSwitchesTest, TwoFetchesShareOneInstallation) {
    RemoteConfig config(project, {"de", "0.1.0", "org.tessivo.Tessivo"}, http, json, uuids, line);
    const auto manager = std::make_shared<FirebaseManager>(config, settings, line, console);
    manager->fetch();
    manager->fetch();
    EXPECT_TRUE(runUntil([&] {
        line.advance(Seconds(0));
        return console.lines().size() == 4;
    }));
    EXPECT_EQ(server.requests.size(), 3U);
}

TEST_F(RemoteSwitchesTest, ConnectedMeansReachableWithoutDialling) {
    struct Flags final : NetworkReachability {
        std::optional<unsigned> flags() override { return answer; }
        std::optional<unsigned> answer;
    } network;
    for (const auto& [flags, connected] : std::initializer_list<std::pair<std::optional<unsigned>, bool>>{
             {std::nullopt, false}, {0, false}, {2, true}, {4, false}, {6, false}, {1, false}, {3, true}}) {
        network.answer = flags;
        EXPECT_EQ(Reachability::isConnected(network), connected) << flags.value_or(99);
    }
    EXPECT_TRUE(QtReachability().flags()) << "a Linux machine always has a routing table";
}

} // namespace
} // namespace tessivo
