// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "search/search_request.h"

namespace brelex {

/// A search for `text` whose options are the low six bits of `options`.
inline SearchRequest RequestOf(unsigned options, std::string_view text) {
    constexpr SearchPosition kPositions[] = {SearchPosition::Anywhere, SearchPosition::Beginning,
                                             SearchPosition::Ending, SearchPosition::Anywhere};
    SearchRequest request;
    request.text = text;
    request.in = (options & 1U) != 0 ? SearchIn::Abbreviations : SearchIn::Expansions;
    request.matchCase = (options & 2U) != 0;
    request.wholeWord = (options & 4U) != 0;
    request.loose = (options & 8U) != 0;
    request.position = kPositions[options >> 4U & 3U];
    return request;
}

}  // namespace brelex
