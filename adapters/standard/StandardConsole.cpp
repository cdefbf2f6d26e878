#include "standard/StandardConsole.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tessivo {
namespace {

/// A line may quote what came from a file or from the network: it must not steer the terminal or pass for
/// another line. Control characters are written as "\x1b"; UTF-8 stays as it is, but for its own controls.
std::string escaped(std::string_view line) {
    std::string text;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const auto byte = static_cast<unsigned char>(line[at]);
        const auto next = at + 1 < line.size() ? static_cast<unsigned char>(line[at + 1]) : 0u;
        const bool isLateControl = byte == 0xC2 && next >= 0x80 && next < 0xA0; // U+0080 to U+009F
        if (byte >= 0x20 && byte != 0x7F && !isLateControl) {
            text += line[at];
            continue;
        }
        std::array<char, 8> code{};
        std::snprintf(code.data(), code.size(), "\\x%02x", isLateControl ? next : byte);
        text += code.data();
        at += isLateControl ? 1 : 0;
    }
    return text;
}

} // namespace

StandardConsole::StandardConsole(std::function<void(const std::string&)> lastAct)
    : lastAct_(std::move(lastAct)) {
    std::signal(SIGPIPE, SIG_IGN);
}

void StandardConsole::print(std::string_view line) {
    const auto whole = escaped(line) + '\n';
    std::fwrite(whole.data(), 1, whole.size(), stderr); // the stream locks itself for each call
}

void StandardConsole::stop(std::string_view text) {
    print(text);
    if (lastAct_)
        lastAct_(std::string(text));
    std::_Exit(1);
}

} // namespace tessivo
