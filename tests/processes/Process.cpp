#include "processes/Process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace tessivo {

Process::Process(std::vector<std::string> command, int output) {
    std::vector<char*> arguments;
    for (auto& word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    id_ = ::fork();
    if (id_ == 0) {
        if (output >= 0)
            ::dup2(output, STDOUT_FILENO);
        ::execvp(arguments[0], arguments.data());
        ::_exit(127);
    }
}

Process::Process(Process&& other) noexcept : id_(std::exchange(other.id_, 0)) {}

Process& Process::operator=(Process&& other) noexcept {
    std::swap(id_, other.id_);
    return *this;
}

void Process::kill() {
    if (id_ <= 0)
        return;
    ::kill(id_, SIGKILL);
    ::waitpid(std::exchange(id_, 0), nullptr, 0);
}

void Process::terminate() const {
    if (id_ > 0)
        ::kill(id_, SIGTERM);
}

void Process::hangUp() const {
    if (id_ > 0)
        ::kill(id_, SIGHUP);
}

std::optional<int> Process::exitCode() {
    int status = 0;
    if (id_ <= 0 || ::waitpid(id_, &status, WNOHANG) != id_)
        return std::nullopt;
    id_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string outputOf(const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return {};
    Process process(command, ends[1]);
    ::close(ends[1]);
    std::string output;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = ::read(ends[0], part.data(), part.size())) > 0;)
        output.append(part.data(), static_cast<std::size_t>(size));
    ::close(ends[0]);
    return output;
}

} // namespace tessivo
