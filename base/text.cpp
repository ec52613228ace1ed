// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>
#include <cstddef>

namespace brelex {

namespace {

std::string_view Trimmed(std::string_view text, std::string_view characters) {
    const auto first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
    return Trimmed(text, " ");
}

std::string_view TrimWhitespace(std::string_view text) {
    return Trimmed(text, " \t\r\n");
}

std::string_view TakePart(std::string_view& rest, char separator) {
    const std::size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

}  // namespace brelex
