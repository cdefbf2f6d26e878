#include "standard/StandardConsole.h"

#include <gtest/gtest.h>

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

namespace tessivo {
namespace {

TEST(StandardConsoleTest, ALineGoesOutWhole) {
    testing::internal::CaptureStderr();
    StandardConsole().print("уведомление создано");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "уведомление создано\n");
}

TEST(StandardConsoleTest, WhatALineQuotesCannotSteerTheTerminal) {
    testing::internal::CaptureStderr();
    StandardConsole().print("a\x1b[2Jb\nc\x7f d\xC2\x9B"
                            "31m \\ é я 😀");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a\\x1b[2Jb\\x0ac\\x7f d\\x9b31m \\ é я 😀\n");
}

TEST(StandardConsoleTest, StoppingWritesTheReasonAndEndsTheProcess) {
    EXPECT_EXIT(StandardConsole().stopProgram("The date does not read"), testing::ExitedWithCode(1),
                "The date does not read\n");
}

TEST(StandardConsoleTest, TheLastActComesAfterTheReasonIsOut) {
    const auto lastAct = [](const std::string& text) { std::fprintf(stderr, "act on %s\n", text.c_str()); };
    EXPECT_EXIT(StandardConsole(lastAct).stopProgram("a fault"), testing::ExitedWithCode(1),
                "a fault\nact on a fault\n");
}

TEST(StandardConsoleTest, AConsoleThatIsGoneIsIgnored) {
    const auto child = ::fork();
    if (child == 0) {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[1], STDERR_FILENO) < 0)
            ::_exit(2);
        ::close(ends[0]);
        StandardConsole console;
        console.print("into nothing");
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

} // namespace
} // namespace tessivo
