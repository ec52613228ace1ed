// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/message_sink.h"

namespace brelex {

/// The part of an entry to search.
enum class SearchIn {
    Abbreviations,
    Expansions
};

/// Where in that part the search text has to be.
enum class SearchPosition {
    Anywhere,
    Beginning,
    Ending
};

/// What the user searches for.
struct SearchRequest {
    std::string text;  ///< UTF-8, may have wildcards (see WildcardPattern)
    SearchIn in = SearchIn::Expansions;
    SearchPosition position = SearchPosition::Anywhere;
    bool matchCase = false;
    bool wholeWord = false;
};

/// The message that refuses a request, or nothing if it can be searched for. Nothing here takes
/// the text as a pattern: a malformed one is found out when the search begins.
[[nodiscard]] std::optional<Message> RefusalOf(const SearchRequest& request);

/// The message for a pattern that is malformed.
[[nodiscard]] Message MalformedPatternMessage();

/// The message at the end of a search that has all the hits it may have.
[[nodiscard]] Message HitLimitMessage();

}  // namespace brelex
