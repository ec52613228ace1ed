// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "search/wildcard_pattern.h"

namespace brelex {

/// Finds a fragment in a long text: consecutive bytes, each from a set. It picks the two places of
/// the fragment whose bytes are rarest and skips every position that lacks either of them. It does
/// so for a few hundred positions at a time, in a loop that the compiler turns into vector
/// instructions.
class FragmentSearch {
  public:
    /// Requires a fragment that is not empty. `sample` is text similar to the text to be searched;
    /// it shows which bytes are rare.
    FragmentSearch(WildcardPattern::Segment fragment, std::string_view sample);

    /// The expected share of positions that need a closer look, from 0 to 1.
    [[nodiscard]] double ExpectedCandidates() const { return expectedCandidates_; }

    /// The first position of the fragment in `text` at or after `from`. npos if there is none.
    [[nodiscard]] std::size_t Find(std::string_view text, std::size_t from) const;

  private:
    /// A test that every byte of a set passes and few others do: with the bits of `ignored` set,
    /// the byte lies in a range.
    struct Probe {
        std::size_t place = 0;      // in the fragment
        unsigned char ignored = 0;  // 20 hex ignores the case of most letters
        unsigned char lowest = 0;
        unsigned char span = 0;  // highest minus lowest

        [[nodiscard]] bool Passes(unsigned char byte) const {
            return static_cast<unsigned char>((byte | ignored) - lowest) <= span;
        }
    };

    [[nodiscard]] static Probe ProbeOf(const WildcardPattern::ByteSet& set, std::size_t place,
                                       unsigned char ignored);

    static constexpr std::size_t kStride = 256;
    static constexpr int kMark = 0xFF;
    using Marks = std::array<unsigned char, kStride>;

    /// Marks each of the next kStride positions that passes both probes.
    void MarkCandidates(const unsigned char* text, Marks& marks) const;

    WildcardPattern::Segment fragment_;
    Probe first_;
    Probe second_;
    double expectedCandidates_ = 1;
};

}  // namespace brelex
