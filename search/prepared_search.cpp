// SPDX-License-Identifier: MIT
#include "search/prepared_search.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace brelex {

namespace {

Message Refusal(const char* title, const std::string& text, const char* closingSentence) {
    return {text + "\n\n" + closingSentence, title, MessageIcon::None, MessageButtons::Ok};
}

constexpr const char* kInvalidOption = "Invalid Option";
constexpr const char* kBadPattern = "Bad Pattern";
constexpr const char* kReadHelp = "Read Help for more information.";
constexpr const char* kReadHelpAboutPatterns =
    "Read Help for more information about search patterns.";

// The message for a request that breaks the rules about wildcards. These rules look at the text
// without compiling it as a pattern.
std::optional<Message> RefusalOf(const SearchRequest& request) {
    const std::string& text = request.text;
    const auto has = [&text](std::string_view part) {
        return text.find(part) != std::string::npos;
    };
    // "!" and "-" count, too, although outside brackets they are plain characters.
    if (request.wholeWord && text.find_first_of("*?#[]!-") != std::string::npos) {
        return Refusal(kInvalidOption,
                       "Use of wildcards is not allowed, if you want to find whole words only. "
                       "Either uncheck the 'Search Whole Word Only' option or remove all wildcards "
                       "from the search text.",
                       kReadHelp);
    }
    // This refuses only a text that is one bracketed whole. "x[a-c]y" is allowed anywhere.
    if (request.position == SearchPosition::Anywhere && text.size() >= 2 && text.front() == '[' &&
        text.back() == ']') {
        return Refusal(kInvalidOption,
                       "Use of a range specifier is not allowed with Position option 'Anywhere'. "
                       "Either select any one of the other two Position options or remove the "
                       "range specifier from the search text.",
                       kReadHelp);
    }
    // A single "[*]" lets the other asterisks of the text through.
    if (has("*") && !has("[*]")) {
        return Refusal(kBadPattern,
                       "Free use of asterisk (*) in search text is not allowed. Enclose it in "
                       "square brackets ([]) and then try again.",
                       kReadHelpAboutPatterns);
    }
    return std::nullopt;
}

}  // namespace

PreparedSearch PrepareSearch(const SearchRequest& request, const RowList& rows) {
    if (auto refusal = RefusalOf(request)) {
        return std::move(*refusal);
    }
    auto finder = RecordFinder::Compile(request, rows);
    if (!finder) {
        return Refusal(kBadPattern,
                       "The pattern string is invalid. Modify your search text and try again.",
                       kReadHelpAboutPatterns);
    }
    return std::move(*finder);
}

}  // namespace brelex
