// SPDX-License-Identifier: MIT
#include "search/wildcard_pattern.h"

#include <array>
#include <cstddef>
#include <string>

#include "base/letter_case.h"
#include "base/windows1252.h"

namespace brelex {

namespace {

using ByteSet = WildcardPattern::ByteSet;

constexpr std::size_t kBytes = 256;

// The bytes whose character, made small if case does not matter, is in a range.
class RangeReader {
  public:
    explicit RangeReader(bool matchCase) {
        for (std::size_t byte = 0; byte < characters_.size(); ++byte) {
            const char32_t plain = CharacterOfByte(static_cast<unsigned char>(byte));
            characters_.at(byte) = matchCase ? plain : SmallLetterOf(plain);
        }
    }

    [[nodiscard]] ByteSet Range(char32_t first, char32_t last) const {
        ByteSet set;
        for (std::size_t byte = 0; byte < characters_.size(); ++byte) {
            if (characters_.at(byte) >= first && characters_.at(byte) <= last) {
                set.set(byte);
            }
        }
        return set;
    }

    // The list that begins behind the "[" at the front of `rest`, which is moved behind its "]".
    // Nothing if it is malformed; an empty optional inside if it matches the empty text.
    [[nodiscard]] std::optional<std::optional<ByteSet>> List(std::u32string_view& rest) const {
        rest.remove_prefix(1);
        const bool negated = rest.starts_with(U'!');
        if (negated) {
            rest.remove_prefix(1);
        }
        const bool empty = rest.starts_with(U']');
        ByteSet set;
        while (!rest.empty() && rest.front() != U']') {
            const char32_t first = rest.front();
            char32_t last = first;
            rest.remove_prefix(1);
            if (rest.size() >= 2 && rest[0] == U'-' && rest[1] != U']') {
                last = rest[1];
                rest.remove_prefix(2);
            }
            if (last < first) {
                return std::nullopt;
            }
            set |= Range(first, last);
        }
        if (rest.empty()) {
            return std::nullopt;
        }
        rest.remove_prefix(1);
        if (empty && !negated) {
            return std::optional<ByteSet>();
        }
        return negated ? ~set : set;
    }

  private:
    std::array<char32_t, kBytes> characters_{};  // of each byte
};

}  // namespace

std::optional<WildcardPattern> WildcardPattern::Compile(std::u32string_view pattern,
                                                        bool matchCase) {
    const std::u32string folded = matchCase ? std::u32string(pattern) : SmallLetters(pattern);
    const RangeReader reader(matchCase);
    WildcardPattern compiled;
    std::u32string_view rest = folded;
    while (!rest.empty()) {
        const char32_t character = rest.front();
        if (character == U'[') {
            const auto list = reader.List(rest);
            if (!list) {
                return std::nullopt;
            }
            if (*list) {
                compiled.segments_.back().push_back(**list);
            }
            continue;
        }
        rest.remove_prefix(1);
        if (character == U'*') {
            compiled.segments_.emplace_back();
        } else if (character == U'?') {
            compiled.segments_.back().push_back(ByteSet().set());
        } else {
            const bool digit = character == U'#';
            compiled.segments_.back().push_back(
                reader.Range(digit ? U'0' : character, digit ? U'9' : character));
        }
    }
    return compiled;
}

bool SegmentStandsAt(const WildcardPattern::Segment& segment, std::string_view text,
                     std::size_t position) {
    for (std::size_t i = 0; i < segment.size(); ++i) {
        if (!segment[i][static_cast<unsigned char>(text[position + i])]) {
            return false;
        }
    }
    return true;
}

// The first segment stands at the beginning, the last at the end, and each of the others where it
// first fits behind the one before: if that does not leave enough for the rest, no other place
// does.
bool WildcardPattern::Matches(std::string_view text) const {
    const Segment& first = segments_.front();
    const Segment& last = segments_.back();
    if (segments_.size() == 1) {
        return text.size() == first.size() && SegmentStandsAt(first, text, 0);
    }
    if (text.size() < first.size() + last.size() || !SegmentStandsAt(first, text, 0)) {
        return false;
    }
    std::size_t position = first.size();
    const std::size_t end = text.size() - last.size();
    for (auto segment = segments_.begin() + 1; segment != segments_.end() - 1; ++segment) {
        while (position + segment->size() <= end && !SegmentStandsAt(*segment, text, position)) {
            ++position;
        }
        position += segment->size();
        if (position > end) {
            return false;
        }
    }
    return SegmentStandsAt(last, text, end);
}

}  // namespace brelex
