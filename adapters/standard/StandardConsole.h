#pragma once

#include "Ports/Console.h"

#include <functional>
#include <string>

namespace tessivo {

/// The process's standard error stream. Each line goes out whole, whichever threads write, with its control
/// characters escaped.
class StandardConsole final : public Console {
public:
    /// From now on a reader that goes away does not end the process. `lastAct` is called with the text when
    /// the program stops, on the thread that stops it, after the text is out.
    explicit StandardConsole(std::function<void(const std::string& text)> lastAct = {});

    void print(std::string_view line) override;

protected:
    /// Ends the process with exit code 1.
    void stop(std::string_view text) override;

private:
    std::function<void(const std::string&)> lastAct_;
};

} // namespace tessivo
