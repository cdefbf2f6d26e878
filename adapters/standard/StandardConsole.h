#pragma once

#include "Ports/Console.h"

namespace tessivo {

/// The process's standard error stream. Each line goes out whole, whichever threads write, with its control
/// characters escaped.
class StandardConsole final : public Console {
public:
    /// From now on a reader that goes away does not end the process.
    StandardConsole();

    void print(std::string_view line) override;

protected:
    /// Ends the process with exit code 1.
    void stop(std::string_view text) override;
};

} // namespace tessivo
