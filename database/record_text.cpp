// SPDX-License-Identifier: MIT
#include "database/record_text.h"

namespace brelex {

std::string_view GetAbbreviation(std::string_view recordText) {
    const auto tab = recordText.find('\t');
    return tab == std::string_view::npos ? std::string_view() : recordText.substr(0, tab);
}

std::string_view GetExpansion(std::string_view recordText) {
    const auto tab = recordText.find('\t');
    return tab == std::string_view::npos ? recordText : recordText.substr(tab + 1);
}

}  // namespace brelex
