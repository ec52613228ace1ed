// SPDX-License-Identifier: MIT
#include "platform/system/terminal.h"

namespace brelex {

std::vector<std::string> Utf8Arguments(int argc, char** argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

// Terminals here pass bytes through unchanged, and the bytes are UTF-8 anyway.
class Utf8Terminal::Before {};

Utf8Terminal::Utf8Terminal() = default;

Utf8Terminal::~Utf8Terminal() = default;

}  // namespace brelex
