#include "processes/PrivateSession.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tessivo {
namespace {

/// The name under which the process runs now.
std::string nameOf(const Process& process) {
    std::ifstream commandLine("/proc/" + std::to_string(process.id()) + "/cmdline");
    std::string name;
    std::getline(commandLine, name, '\0');
    return name;
}

class StopEndToEndTest : public testing::Test {
protected:
    void SetUp() override {
        if (!PrivateSession::isPossible())
            GTEST_SKIP() << "no desktop session can be made here";
        session.emplace();
        const std::filesystem::path data = std::getenv("XDG_DATA_HOME");
        std::filesystem::create_directories(data / "tessivo");
        std::ofstream(data / "tessivo" / "events.sqlite") << "Dear diary";
    }

    std::optional<PrivateSession> session;
};

TEST_F(StopEndToEndTest, AProgramThatStopsBecomesAWindowThatSaysSo) {
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    Process program({TESSIVO_PROGRAM});
    EXPECT_TRUE(eventually([&] { return nameOf(program) == "tessivo-stopped"; }));
    EXPECT_EQ(program.exitCode(), std::nullopt) << "nobody can have read it yet";
}

TEST_F(StopEndToEndTest, WhereNobodySeesAWindowTheProgramJustEnds) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    Process program({TESSIVO_PROGRAM, "--of-no-meaning"});
    std::optional<int> code;
    EXPECT_TRUE(eventually([&] { return (code = program.exitCode()).has_value(); }));
    EXPECT_EQ(code, 1);
}

TEST(CommandLine, AnswersForItsVersionWithoutADisplay) {
    EXPECT_TRUE(outputOf({"/usr/bin/env", "-i", TESSIVO_PROGRAM, "--version"}).starts_with("Tessivo "));
}

} // namespace
} // namespace tessivo
