// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <optional>
#include <string_view>
#include <vector>

namespace brelex {

/// A pattern with wildcards, ready to be matched against texts of Windows-1252 bytes. Matching
/// converts, allocates and recurses nothing; it takes at most the product of the two lengths.
///
///     ?        any one character
///     #        any one digit
///     *        any run of characters, also none
///     [list]   any one character of the list
///     [!list]  any one character that is not in the list
///
/// A list has characters and ranges such as a-n, by Unicode code, bounds included. A "-" that
/// bounds no range, "*", "?", "#" and "[" stand for themselves in it, and so does "!" but at its
/// start.
/// "[]" matches the empty text, "[!]" any one character. Everything else stands for itself.
class WildcardPattern {
  public:
    /// Compiles a pattern, given as characters. One that Windows-1252 lacks matches nothing, but
    /// may bound a range. Without `matchCase` letters of either case match each other, ranges
    /// being those of the small letters. Returns nothing for a "[" that is not closed and for a
    /// range from a higher to a lower character.
    [[nodiscard]] static std::optional<WildcardPattern> Compile(std::u32string_view pattern,
                                                                bool matchCase);

    /// Whether the whole of `text` matches.
    [[nodiscard]] bool Matches(std::string_view text) const;

    /// The bytes that match at one place of a text.
    using ByteSet = std::bitset<256>;

    /// What stands between two stars: one set for each byte of the text.
    using Segment = std::vector<ByteSet>;

    /// The first stands at the beginning of a text that matches, the last at its end, the others in
    /// their order between them. There is one more than the pattern has stars; any may be empty.
    [[nodiscard]] const std::vector<Segment>& Segments() const { return segments_; }

  private:
    std::vector<Segment> segments_ = {{}};
};

/// Whether each byte of `text` from `position` on is in the set of its place; the text must be long
/// enough.
[[nodiscard]] bool SegmentStandsAt(const WildcardPattern::Segment& segment, std::string_view text,
                                   std::size_t position);

}  // namespace brelex
