#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace tessivo {

/// Polls `condition` until it holds; false if it does not within `seconds`.
template <class Condition>
bool eventually(Condition condition, double seconds = 10);

/// A program that runs beside the test, and is killed with the object.
class Process final {
public:
    Process() = default;
    /// Starts a program found by the search path, with the test's environment. Its standard output goes to
    /// `output`, a descriptor, where one is given.
    explicit Process(std::vector<std::string> command, int output = -1);
    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) noexcept;
    ~Process() { kill(); }

    [[nodiscard]] pid_t id() const { return id_; }

    /// Sends SIGKILL and waits for the end.
    void kill();
    void terminate() const;
    /// Sends SIGHUP.
    void hangUp() const;

    /// The exit code, once it has ended by itself; -1 for one that died of a signal or cannot be started.
    [[nodiscard]] std::optional<int> exitCode();

private:
    pid_t id_ = 0;
};

/// What a program prints before it ends.
[[nodiscard]] std::string outputOf(const std::vector<std::string>& command);

} // namespace tessivo

#include <poll.h>

#include <chrono>

template <class Condition>
bool tessivo::eventually(Condition condition, double seconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        ::poll(nullptr, 0, 10);
    }
    return true;
}
