// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "search/wildcard_pattern.h"

namespace brelex {

/// A test that every byte of a set passes and few others do: with the bits of `ignored` set, the
/// byte lies in a range.
struct ByteTest {
    unsigned char ignored = 0;  ///< 20 hex ignores the case of most letters
    unsigned char lowest = 0;
    unsigned char span = 0;  ///< highest minus lowest

    [[nodiscard]] bool Passes(unsigned char byte) const {
        return static_cast<unsigned char>((byte | ignored) - lowest) <= span;
    }
};

/// A test for the byte at a fixed distance behind a position.
struct PlacedTest {
    std::size_t place = 0;  ///< bytes from the position to the byte
    ByteTest test;
};

/// A test for positions of a text, which must pass two tests.
struct PairTest {
    PlacedTest first;
    PlacedTest second;

    [[nodiscard]] bool Passes(const char* position) const {
        return first.test.Passes(static_cast<unsigned char>(position[first.place])) &&
               second.test.Passes(static_cast<unsigned char>(position[second.place]));
    }
};

/// A fragment to be found: consecutive bytes, each from a set.
struct Fragment {
    WildcardPattern::Segment sets;  ///< not empty
    PairTest rarest;                ///< every place where the fragment stands passes it
};

/// A way of finding the first position from `from` up to but not including `end` where the fragment
/// stands. Returns `end` if there is none. Requires a text that is long enough for the fragment at
/// each of the positions, and reads nothing else of it.
using FragmentScan = std::size_t (*)(std::string_view text, std::size_t from, std::size_t end,
                                     const Fragment& fragment);

/// Tries one position after the other. This defines the result, and it works on every processor.
[[nodiscard]] std::size_t ScanPlainly(std::string_view text, std::size_t from, std::size_t end,
                                      const Fragment& fragment);

/// The scans that use vectors and that this processor can run, the slowest first. Which there are
/// depends on the architecture the program is built for.
[[nodiscard]] std::vector<FragmentScan> VectorScans();

/// The fastest scan that this processor can run.
[[nodiscard]] FragmentScan FastestScan();

}  // namespace brelex
