// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "search/wildcard_pattern.h"

namespace brelex {

/// Looks for a run of bytes, each out of a set, in a long text. Of all pairs of places in the
/// fragment it takes the one that is met least often, and passes over all positions that do not
/// have these two bytes, a few hundred at a time, in a loop that the compiler turns into vector
/// instructions.
class FragmentSearch {
  public:
    /// `fragment` is not empty. `sample` is text like the one to be searched: from it the search
    /// learns which bytes are rare.
    FragmentSearch(WildcardPattern::Segment fragment, std::string_view sample);

    /// How many positions in a byte of text are expected to be looked at more closely, 0 to 1.
    [[nodiscard]] double ExpectedCandidates() const { return expectedCandidates_; }

    /// The first position at or behind `from` where the fragment stands; npos if there is none.
    [[nodiscard]] std::size_t Find(std::string_view text, std::size_t from) const;

  private:
    /// A test that every byte of a set passes, and few others: with the bits of `ignored` set, it
    /// is one of a run of numbers.
    struct Probe {
        std::size_t place = 0;      // in the fragment
        unsigned char ignored = 0;  // 20 hex makes the case of most letters no matter
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

    /// Marks those of the next kStride positions that pass both probes.
    void MarkCandidates(const unsigned char* text, Marks& marks) const;

    WildcardPattern::Segment fragment_;
    Probe first_;
    Probe second_;
    double expectedCandidates_ = 1;
};

}  // namespace brelex
