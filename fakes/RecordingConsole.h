#pragma once

#include "Ports/Console.h"

#include <algorithm>
#include <mutex>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tessivo::fakes {

/// What `stopProgram` throws where a test stands in for the machine.
class ProgramStopped final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A console whose lines can be read back.
class RecordingConsole final : public Console {
public:
    void print(std::string_view line) override {
        const std::scoped_lock lock(mutex_);
        lines_.emplace_back(line);
    }

    [[nodiscard]] std::vector<std::string> lines() const {
        const std::scoped_lock lock(mutex_);
        return lines_;
    }

    /// The lines so far, which are then forgotten.
    [[nodiscard]] std::vector<std::string> take() {
        const std::scoped_lock lock(mutex_);
        return std::exchange(lines_, {});
    }

    [[nodiscard]] bool printed(std::string_view line) const {
        const std::scoped_lock lock(mutex_);
        return std::ranges::find(lines_, line) != lines_.end();
    }

protected:
    void stop(std::string_view text) override { throw ProgramStopped(std::string(text)); }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
};

} // namespace tessivo::fakes
