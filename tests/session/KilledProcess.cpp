#include "session/KilledProcess.h"

#include <gtest/gtest.h>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace tessivo {
namespace {

/// The process runs on to where it enters or leaves a system call; false once it has ended.
bool goOn(pid_t process, int& status) {
    return ::ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) == 0 &&
           ::waitpid(process, &status, 0) == process && WIFSTOPPED(status);
}

} // namespace

bool runUntilSystemCall(int calls, const std::function<void()>& work) {
    const pid_t process = ::fork();
    if (process == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    for (int call = 0; call < calls; ++call) {
        const bool entered = goOn(process, status);
        if (entered && call + 1 == calls) {
            ::kill(process, SIGKILL);
            ::waitpid(process, &status, 0);
            EXPECT_TRUE(WIFSIGNALED(status));
            return false;
        }
        if (!entered || !goOn(process, status)) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the work failed: " << status;
            return true;
        }
    }
    return false;
}

} // namespace tessivo
