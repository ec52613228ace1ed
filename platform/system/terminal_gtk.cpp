// SPDX-License-Identifier: MIT
#include "platform/system/terminal.h"

#include <cstdlib>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace brelex {

std::vector<std::string> Utf8Arguments(int argc, char** argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

OutputTerminal StandardOutputTerminal() {
    if (isatty(STDOUT_FILENO) == 0) {
        return {};
    }
    // Serial lines, for example, do not know their width.
    constexpr int kUsualColumns = 80;
    winsize size{};
    const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    const char* const kind = std::getenv("TERM");
    return {isKnown ? size.ws_col : kUsualColumns,
            kind != nullptr && std::string_view(kind) != "dumb"};
}

// The system changes nothing here.
void UseBinaryInput() {}

void UseBinaryOutput() {}

// Terminals here pass bytes through unchanged, and the bytes are UTF-8 anyway.
class Utf8Terminal::Before {};

Utf8Terminal::Utf8Terminal() = default;

Utf8Terminal::~Utf8Terminal() = default;

}  // namespace brelex
