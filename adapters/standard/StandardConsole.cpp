#include "standard/StandardConsole.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tessivo {

StandardConsole::StandardConsole() {
    std::signal(SIGPIPE, SIG_IGN);
}

void StandardConsole::print(std::string_view line) {
    const auto whole = std::string(line) + '\n';
    std::fwrite(whole.data(), 1, whole.size(), stderr); // the stream locks itself for each call
}

void StandardConsole::stop(std::string_view text) {
    print(text);
    std::_Exit(1);
}

} // namespace tessivo
