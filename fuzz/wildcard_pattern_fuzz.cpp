// SPDX-License-Identifier: MIT
// Input: a byte whose lowest bit says whether case matters, the pattern in UTF-8, a NUL, the field.
#include "search/wildcard_pattern.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/windows1252.h"
#include "search/fragment_search.h"

// Compiles and matches. A text without a fragment of the pattern must not match.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    if (input.empty()) {
        return 0;
    }
    const bool matchCase = (data[0] & 1U) != 0;
    const std::string_view text = input.substr(1, input.find('\0', 1) - 1);
    const std::string_view field = input.substr(std::min(input.size(), text.size() + 2));
    const auto pattern = brelex::WildcardPattern::Compile(brelex::DecodeUtf8(text), matchCase);
    if (!pattern) {
        return 0;
    }
    const bool matches = pattern->Matches(field);
    for (const auto& segment : pattern->Segments()) {
        if (segment.empty()) {
            continue;
        }
        std::size_t found = std::string_view::npos;
        brelex::FragmentSearch(segment, field).VisitPlaces(field, 0, [&](std::size_t position) {
            found = std::min(found, position);
            return field.size();
        });
        if (found == std::string_view::npos ? matches : found + segment.size() > field.size()) {
            std::abort();
        }
    }
    return 0;
}
