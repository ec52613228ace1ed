// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The part of an entry to search.
enum class SearchIn {
    Abbreviations,
    Expansions
};

/// Where in that part the search text has to occur.
enum class SearchPosition {
    Anywhere,
    Beginning,
    Ending
};

/// A search as the user has entered it.
struct SearchRequest {
    std::string text;  ///< UTF-8, may contain wildcards (see WildcardPattern)
    SearchIn in = SearchIn::Expansions;
    SearchPosition position = SearchPosition::Anywhere;
    bool matchCase = false;
    bool wholeWord = false;
    bool loose = false;  ///< do not tell LooseSeparators apart, nor how many of them there are
};

}  // namespace brelex
