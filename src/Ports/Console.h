#pragma once

#include <cstdlib>
#include <string_view>

namespace tessivo {

/// The program's word to the console, and its one way to stop.
class Console {
public:
    virtual ~Console() = default;

    /// Writes one line. Safe from any thread; a console that is gone is ignored.
    virtual void print(std::string_view line) = 0;

    /// Writes `text` and ends the program at once, with nothing tidied up: what was saved is saved. For a
    /// state in which going on would show or store something wrong.
    [[noreturn]] void stopProgram(std::string_view text) {
        stop(text);
        std::abort();
    }

protected:
    /// Writes `text` and ends the program; must not return.
    virtual void stop(std::string_view text) = 0;
};

} // namespace tessivo
