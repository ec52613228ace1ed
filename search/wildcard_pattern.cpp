// SPDX-License-Identifier: MIT
#include "search/wildcard_pattern.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <string>

#include "base/byte_table.h"
#include "base/letter_case.h"
#include "base/windows1252.h"

namespace brelex {

namespace {

using ByteSet = WildcardPattern::ByteSet;

// The meaning of a list in brackets.
struct ListResult {
    bool isValid;
    bool matchesEmptyText;  // the list is "[]"
    ByteSet bytes;          // one of these bytes, if not the empty text
};

// Maps bytes to characters. Without `matchCase`, maps them to lowercase letters.
class CharacterTable {
  public:
    explicit CharacterTable(bool matchCase)
        : characters_(TableOfBytes([matchCase](unsigned char byte) {
              const char32_t plain = CharacterOfByte(byte);
              return matchCase ? plain : SmallLetterOf(plain);
          })) {}

    [[nodiscard]] ByteSet BytesOfRange(char32_t first, char32_t last) const {
        ByteSet set;
        std::size_t byte = 0;
        for (const char32_t character : characters_) {
            set[byte++] = character >= first && character <= last;
        }
        return set;
    }

  private:
    std::array<char32_t, 256> characters_;  // of each byte
};

// Reads the list that begins with the "[" at the front of `rest`, up to its "]".
ListResult TakeList(std::u32string_view& rest, const CharacterTable& characters) {
    rest.remove_prefix(1);
    const bool negated = rest.starts_with(U'!');
    if (negated) {
        rest.remove_prefix(1);
    }
    ListResult list{};
    list.matchesEmptyText = rest.starts_with(U']') && !negated;
    while (!rest.empty() && rest.front() != U']') {
        const char32_t first = rest.front();
        char32_t last = first;
        rest.remove_prefix(1);
        if (rest.size() >= 2 && rest[0] == U'-' && rest[1] != U']') {
            last = rest[1];
            rest.remove_prefix(2);
        }
        if (last < first) {
            return list;
        }
        list.bytes |= characters.BytesOfRange(first, last);
    }
    if (rest.empty()) {
        return list;
    }
    rest.remove_prefix(1);
    list.isValid = true;
    if (negated) {
        list.bytes.flip();
    }
    return list;
}

}  // namespace

std::optional<WildcardPattern> WildcardPattern::Compile(std::u32string_view pattern,
                                                        bool matchCase) {
    const std::u32string folded = matchCase ? std::u32string(pattern) : SmallLetters(pattern);
    const CharacterTable characters(matchCase);
    WildcardPattern compiled;
    const auto matchOneOf = [&compiled](const ByteSet& bytes) {
        compiled.segments_.back().push_back(bytes);
    };
    std::u32string_view rest = folded;
    while (!rest.empty()) {
        const char32_t character = rest.front();
        if (character == U'[') {
            const ListResult list = TakeList(rest, characters);
            if (!list.isValid) {
                return std::nullopt;
            }
            if (!list.matchesEmptyText) {
                matchOneOf(list.bytes);
            }
            continue;
        }
        rest.remove_prefix(1);
        switch (character) {
            case U'*':
                compiled.segments_.emplace_back();
                break;
            case U'?':
                matchOneOf(ByteSet().set());
                break;
            case U'#':
                matchOneOf(characters.BytesOfRange(U'0', U'9'));
                break;
            default:
                matchOneOf(characters.BytesOfRange(character, character));
        }
    }
    return compiled;
}

// The first segment must be at the beginning and the last at the end. Each of the others goes to
// the first place after its predecessor where it fits. If that leaves too little for the rest, so
// does every later place.
std::optional<std::string_view> WildcardPattern::Find(std::string_view text) const {
    const Segment& first = segments_.front();
    const Segment& last = segments_.back();
    if (segments_.size() == 1) {
        const bool matches = text.size() == first.size() && SegmentStandsAt(first, text, 0);
        return matches ? std::optional(text) : std::nullopt;
    }
    if (text.size() < first.size() + last.size() || !SegmentStandsAt(first, text, 0)) {
        return std::nullopt;
    }
    std::size_t position = first.size();
    const std::size_t end = text.size() - last.size();
    std::size_t begin = first.empty() ? std::string_view::npos : 0;  // of the part to return
    for (auto segment = segments_.begin() + 1; segment != segments_.end() - 1; ++segment) {
        while (position + segment->size() <= end && !SegmentStandsAt(*segment, text, position)) {
            ++position;
        }
        if (!segment->empty()) {
            begin = std::min(begin, position);
        }
        position += segment->size();
        if (position > end) {
            return std::nullopt;
        }
    }
    if (!SegmentStandsAt(last, text, end)) {
        return std::nullopt;
    }
    begin = std::min(begin, end);
    return text.substr(begin, (last.empty() ? position : text.size()) - begin);
}

}  // namespace brelex
