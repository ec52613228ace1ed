// SPDX-License-Identifier: MIT
// What a search finds by definition, without regard to the time it takes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/letter_case.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "search/search_request.h"

namespace brelex {

/// A part of a pattern: a star, or the ranges that contain its character, or those that do not.
struct PlainPart {
    bool isStar = false;
    bool isNegated = false;
    std::vector<std::pair<char32_t, char32_t>> ranges;
};

/// What a list means, given the characters between its brackets. Nothing if a range runs backward.
inline std::optional<PlainPart> PlainList(std::u32string_view list) {
    PlainPart part;
    part.isNegated = list.starts_with(U'!');
    list.remove_prefix(part.isNegated ? 1 : 0);
    while (!list.empty()) {
        const bool isRange = list.size() > 2 && list[1] == U'-';
        part.ranges.emplace_back(list.front(), isRange ? list[2] : list.front());
        if (part.ranges.back().second < list.front()) {
            return std::nullopt;
        }
        list.remove_prefix(isRange ? 3 : 1);
    }
    return part;
}

/// What a character outside a list means.
inline PlainPart PlainPartOf(char32_t character) {
    constexpr char32_t kLast = 0x10FFFF;
    switch (character) {
        case U'*':
            return {true, false, {}};
        case U'?':
            return {false, false, {{0, kLast}}};
        case U'#':
            return {false, false, {{U'0', U'9'}}};
        default:
            return {false, false, {{character, character}}};
    }
}

/// The parts of a pattern, in which letters are small unless case matters. Nothing if it is not
/// valid.
inline std::optional<std::vector<PlainPart>> PlainParts(std::u32string_view pattern) {
    std::vector<PlainPart> parts;
    while (!pattern.empty()) {
        const char32_t character = pattern.front();
        pattern.remove_prefix(1);
        if (character != U'[') {
            parts.push_back(PlainPartOf(character));
            continue;
        }
        const std::size_t end = pattern.find(U']');
        if (end == std::u32string_view::npos) {
            return std::nullopt;
        }
        auto part = PlainList(pattern.substr(0, end));
        if (!part) {
            return std::nullopt;
        }
        if (end > 0) {  // "[]" is the empty text
            parts.push_back(std::move(*part));
        }
        pattern.remove_prefix(end + 1);
    }
    return parts;
}

inline bool MatchesPart(const PlainPart& part, char32_t character) {
    const bool isListed =
        std::any_of(part.ranges.begin(), part.ranges.end(), [character](const auto& range) {
            return range.first <= character && character <= range.second;
        });
    return isListed != part.isNegated;
}

/// Whether the parts match the whole of a text. Goes through the text once for each part.
inline bool PlainMatches(const std::vector<PlainPart>& parts, std::u32string_view text) {
    // Whether what has been seen of the parts matches the first i characters of the text.
    std::vector<bool> matches(text.size() + 1, false);
    matches[0] = true;
    for (const PlainPart& part : parts) {
        std::vector<bool> next(text.size() + 1, false);
        for (std::size_t i = 0; i <= text.size(); ++i) {
            if (part.isStar) {
                next[i] = matches[i] || (i > 0 && next[i - 1]);
            } else {
                next[i] = i > 0 && matches[i - 1] && MatchesPart(part, text[i - 1]);
            }
        }
        matches = std::move(next);
    }
    return matches.back();
}

inline std::u32string CharactersOfBytes(std::string_view bytes) {
    std::u32string text;
    for (const char byte : bytes) {
        text.push_back(CharacterOfByte(static_cast<unsigned char>(byte)));
    }
    return text;
}

/// A text in the letters in which it is compared.
inline std::u32string Folded(const std::u32string& text, bool matchCase) {
    return matchCase ? text : SmallLetters(text);
}

/// Whether the first occurrence of a word is a whole word.
inline bool HasPlainWord(std::u32string_view field, std::u32string_view word) {
    constexpr std::u32string_view kDelimiters = U" ,:;./\\(){}[]-_+!?'\"~@#$";
    const auto isEdge = [kDelimiters](char32_t c) {
        return kDelimiters.find(c) != std::u32string_view::npos;
    };
    const std::size_t at = field.find(word);
    return at != std::u32string_view::npos && (at == 0 || isEdge(field[at - 1])) &&
           (at + word.size() == field.size() || isEdge(field[at + word.size()]));
}

/// A text with a blank for each run of hyphens, commas, apostrophes and blanks.
inline std::u32string PlainLooseText(const std::u32string& text) {
    constexpr std::u32string_view kSeparators = U"-,'\x2019 ";
    std::u32string loose;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto isSeparator = [&](std::size_t at) {
            return kSeparators.find(text[at]) != std::u32string_view::npos;
        };
        if (!isSeparator(i)) {
            loose.push_back(text[i]);
        } else if (i == 0 || !isSeparator(i - 1)) {
            loose.push_back(U' ');
        }
    }
    return loose;
}

/// Decides by definition which records are hits of a search.
class PlainSearch {
  public:
    explicit PlainSearch(const SearchRequest& request)
        : request_(request),
          // Bytes stand for the whole word, up to the first that the code page lacks.
          word_(Folded(Loosened(CharactersOfBytes(BytesOfUtf8(request.text).bytes)),
                       request.matchCase)) {
        const std::u32string text = DecodeUtf8(request.text);
        isValid_ = PlainParts(Folded(text, request.matchCase)).has_value();
        hasWildcards_ = text.find_first_of(U"*?#[") != std::u32string::npos;
        const std::u32string pattern =
            (request.position == SearchPosition::Beginning ? U"" : U"*") + Loosened(text) +
            (request.position == SearchPosition::Ending ? U"" : U"*");
        parts_ = PlainParts(Folded(pattern, request.matchCase)).value_or(std::vector<PlainPart>());
    }

    /// Whether the search text is a pattern.
    [[nodiscard]] bool IsValid() const { return isValid_; }

    /// Whether a record is a hit. Nothing for a loose search with wildcards, which is defined only
    /// by its pattern. Requires a valid search.
    [[nodiscard]] std::optional<bool> IsHit(std::string_view record) const {
        if (request_.loose && hasWildcards_) {
            return std::nullopt;
        }
        const std::u32string field =
            Folded(Loosened(CharactersOfBytes(request_.in == SearchIn::Abbreviations
                                                  ? GetAbbreviation(record)
                                                  : GetExpansion(record))),
                   request_.matchCase);
        return PlainMatches(parts_, field) && (!request_.wholeWord || HasPlainWord(field, word_));
    }

  private:
    [[nodiscard]] std::u32string Loosened(const std::u32string& text) const {
        return request_.loose ? PlainLooseText(text) : text;
    }

    const SearchRequest& request_;
    std::u32string word_;
    bool isValid_ = false;
    bool hasWildcards_ = false;
    std::vector<PlainPart> parts_;
};

}  // namespace brelex
