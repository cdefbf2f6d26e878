#include "freedesktop/ProgramFile.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>

namespace tessivo::freedesktop {

std::filesystem::path siblingProgram(const std::string& name, const std::string& buildFolder) {
    std::error_code ignored; // a program that does not know its own path finds no other
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    for (const auto& file : {folder / name, folder.parent_path() / buildFolder / name}) {
        if (::access(file.c_str(), X_OK) == 0)
            return file;
    }
    return {};
}

Outcome startDetached(const std::filesystem::path& program) {
    // Between the forks only calls that are safe with other threads about.
    const auto child = ::fork();
    if (child == 0) {
        ::setsid();
        if (::fork() != 0)
            ::_exit(0);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        ::execl(program.c_str(), program.c_str(), nullptr);
        ::_exit(127);
    }
    if (child < 0)
        return Error{"Process", errno,
                     "\"" + program.string() + "\" cannot be started: " + std::strerror(errno)};
    ::waitpid(child, nullptr, 0);
    return {};
}

} // namespace tessivo::freedesktop
