// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cassert>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace brelex {

/// A pattern with wildcards, ready to be matched against texts of Windows-1252 bytes. Matching does
/// not convert, allocate or recurse. Its cost is at most the product of the two lengths.
///
///     ?        any one character
///     #        any one digit
///     *        any number of characters, or none
///     [list]   any one character in the list
///     [!list]  any one character not in the list
///
/// A list consists of characters and ranges such as a-n. Ranges follow Unicode values and include
/// both ends. In a list, "*", "?", "#", "[", a "-" that does not form a range, and a "!" that is
/// not at the start are ordinary characters. "[]" matches the empty text, "[!]" any one character.
/// Everything else matches itself.
class WildcardPattern {
  public:
    /// Compiles a pattern. A character outside Windows-1252 matches nothing, but may be the end of
    /// a range. Without `matchCase`, uppercase and lowercase match each other, and a range runs
    /// between the lowercase letters. Nothing if a "[" is not closed or a range runs backward.
    [[nodiscard]] static std::optional<WildcardPattern> Compile(std::u32string_view pattern,
                                                                bool matchCase);

    /// A set of bytes that match at one place of a text.
    using ByteSet = std::bitset<256>;

    /// The part between two stars: one set for each byte of the text.
    using Segment = std::vector<ByteSet>;

    /// The pattern with these parts between its stars. Requires at least one.
    explicit WildcardPattern(std::vector<Segment> segments) : segments_(std::move(segments)) {}

    /// Whether the whole of `text` matches.
    [[nodiscard]] bool Matches(std::string_view text) const { return Find(text).has_value(); }

    /// The part of `text` that matches the pattern without the stars at its ends, if the whole of
    /// `text` matches the pattern. The first of several such parts.
    [[nodiscard]] std::optional<std::string_view> Find(std::string_view text) const;

    /// The parts between the stars. There is one more of them than there are stars, and any may be
    /// empty. A text that matches begins with the first, ends with the last, and contains the
    /// others in order between them.
    [[nodiscard]] const std::vector<Segment>& Segments() const { return segments_; }

  private:
    WildcardPattern() = default;

    std::vector<Segment> segments_ = {{}};
};

/// Whether the segment matches `text` at `position`. Requires a text that is long enough.
[[nodiscard]] inline bool SegmentStandsAt(const WildcardPattern::Segment& segment,
                                          std::string_view text, std::size_t position) {
    assert(position + segment.size() <= text.size());
    for (std::size_t i = 0; i < segment.size(); ++i) {
        if (!segment[i][static_cast<unsigned char>(text[position + i])]) {
            return false;
        }
    }
    return true;
}

}  // namespace brelex
