// SPDX-License-Identifier: MIT
// Input: a byte whose lowest bit says whether case matters, the pattern in UTF-8, a NUL, the field.
#include "search/wildcard_pattern.h"

#include "fuzz/fuzz_support.h"
#include "fuzz/plain_search.h"
#include "search/fragment_search.h"

namespace brelex {

namespace {

// What matches contains each fragment of the pattern, and a fragment is found within the field.
void FindFragments(const WildcardPattern& pattern, std::string_view field) {
    for (const WildcardPattern::Segment& segment : pattern.Segments()) {
        if (segment.empty()) {
            continue;
        }
        std::size_t found = std::string_view::npos;
        FragmentSearch(segment, field).VisitPlaces(field, 0, [&](std::size_t position) {
            found = std::min(found, position);
            return field.size();
        });
        if (found == std::string_view::npos) {
            Require(!pattern.Matches(field), "what matches contains all fragments");
        } else {
            Require(found + segment.size() <= field.size(), "a fragment is in the field");
        }
    }
}

}  // namespace

}  // namespace brelex

// Compiles and matches, and compares with the definition of a pattern.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const bool matchCase = (input.Byte() & 1U) != 0;
    const std::u32string text = brelex::DecodeUtf8(input.Text());
    const std::string_view field = input.Rest();
    const auto pattern = brelex::WildcardPattern::Compile(text, matchCase);
    const auto parts = brelex::PlainParts(brelex::Folded(text, matchCase));
    brelex::Require(pattern.has_value() == parts.has_value(), "a pattern is valid or not");
    if (!pattern) {
        return 0;
    }
    const auto match = pattern->Find(field);
    brelex::Require(match.has_value() ==
                        brelex::PlainMatches(
                            *parts, brelex::Folded(brelex::CharactersOfBytes(field), matchCase)),
                    "a text matches as the wildcards say");
    brelex::Require(!match || (match->data() >= field.data() &&
                               match->data() + match->size() <= field.data() + field.size()),
                    "what matches is a part of the field");
    brelex::FindFragments(*pattern, field);
    return 0;
}
