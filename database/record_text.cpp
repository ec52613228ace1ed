// SPDX-License-Identifier: MIT
#include "database/record_text.h"

#include <algorithm>
#include <cassert>

namespace brelex {

std::string_view GetAbbreviation(std::string_view recordText) {
    const auto tab = recordText.find('\t');
    return tab == std::string_view::npos ? std::string_view() : recordText.substr(0, tab);
}

std::string_view GetExpansion(std::string_view recordText) {
    const auto tab = recordText.find('\t');
    return tab == std::string_view::npos ? recordText : recordText.substr(tab + 1);
}

std::string CopiedText(std::string_view recordText) {
    std::string text(GetAbbreviation(recordText));
    text += " = ";
    text += GetExpansion(recordText);
    return text;
}

std::size_t LetterCount(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::count(text.begin(), text.end(), ' '));
}

std::string_view ColumnText(std::string_view recordText, int column) {
    assert(column == 0 || column == 1);
    const auto tab = recordText.find('\t');
    if (column == 0) {
        return recordText.substr(0, tab);
    }
    return tab == std::string_view::npos ? std::string_view() : recordText.substr(tab + 1);
}

}  // namespace brelex
