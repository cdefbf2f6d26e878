#include "standard/StandardConsole.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tessivo {

void StandardConsole::print(std::string_view line) {
    const auto whole = std::string(line) + '\n';
    std::fwrite(whole.data(), 1, whole.size(), stderr); // the stream locks itself for each call
}

void StandardConsole::stop(std::string_view text) {
    print(text);
    std::_Exit(1);
}

} // namespace tessivo
