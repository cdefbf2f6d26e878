#include "processes/KilledProcess.h"

#include <gtest/gtest.h>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>

namespace tessivo {
namespace {

// The system calls that change a file or its folder.
constexpr std::array writingCalls{SYS_openat,    SYS_write,  SYS_pwrite64, SYS_ftruncate, SYS_fsync,
                                  SYS_fdatasync, SYS_unlink, SYS_unlinkat, SYS_rename,    SYS_renameat2};

/// From now on the process stops for its tracer at each such call, and runs on undisturbed in between.
void stopAtWritingCalls() {
    std::array<sock_filter, 2 * writingCalls.size() + 2> filter{};
    std::size_t next = 0;
    filter[next++] = BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr));
    for (const auto call : writingCalls) {
        filter[next++] = BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<__u32>(call), 0, 1);
        filter[next++] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE);
    }
    filter[next++] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
    const sock_fprog program{static_cast<unsigned short>(next), filter.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        ::_exit(1);
}

} // namespace

bool runUntilWrite(int calls, const std::function<void()>& work) {
    const pid_t process = ::fork();
    if (process == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        stopAtWritingCalls();
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESECCOMP);
    for (int call = 0; call < calls; ++call) {
        ::ptrace(PTRACE_CONT, process, nullptr, nullptr);
        ::waitpid(process, &status, 0);
        if (!WIFSTOPPED(status)) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the work failed: " << status;
            return true;
        }
    }
    ::kill(process, SIGKILL);
    ::waitpid(process, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    return false;
}

} // namespace tessivo
