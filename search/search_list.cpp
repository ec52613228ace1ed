// SPDX-License-Identifier: MIT
#include "search/search_list.h"

#include "base/text.h"

namespace brelex {

std::vector<std::string> SearchListItems(std::string_view searchList) {
    std::vector<std::string> items;
    std::string_view rest = TrimBlanks(searchList);
    while (!rest.empty()) {
        const auto end = rest.find('1');
        items.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(end + 1);
        if (rest.empty()) {
            items.emplace_back();  // after a "1" at the end
        }
    }
    return items;
}

}  // namespace brelex
