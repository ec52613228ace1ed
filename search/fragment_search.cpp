// SPDX-License-Identifier: MIT
#include "search/fragment_search.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>
#include <vector>

namespace brelex {

namespace {

constexpr int kBytes = 256;
constexpr unsigned char kCaseBit = 0x20;

// How often each byte occurs in a text, as a share of all bytes.
class ByteShares {
  public:
    explicit ByteShares(std::string_view sample)
        : one_(1 / (static_cast<double>(sample.size()) + kBytes)) {
        counts_.fill(1);  // no byte is considered impossible
        for (const char c : sample) {
            ++counts_[static_cast<unsigned char>(c)];
        }
    }

    // The share of the bytes that pass a test.
    [[nodiscard]] double Of(const ByteTest& test) const {
        unsigned count = 0;
        for (int byte = test.lowest; byte <= test.lowest + test.span; ++byte) {
            if ((byte & test.ignored) == test.ignored) {
                count += counts_[static_cast<std::size_t>(byte)];
                count +=
                    test.ignored == 0 ? 0 : counts_[static_cast<std::size_t>(byte & ~test.ignored)];
            }
        }
        return count * one_;
    }

  private:
    double one_;
    std::array<unsigned, kBytes> counts_{};
};

// The narrowest test that all bytes of a set pass.
ByteTest TestOf(const WildcardPattern::ByteSet& set, unsigned char ignored) {
    if (set.none()) {  // a character outside the code page: nothing can match
        return {0xFF};
    }
    int lowest = kBytes;
    int highest = -1;
    for (int byte = 0; byte < kBytes; ++byte) {
        if (set[static_cast<std::size_t>(byte)]) {
            lowest = std::min(lowest, byte | ignored);
            highest = std::max(highest, byte | ignored);
        }
    }
    return {ignored, static_cast<unsigned char>(lowest),
            static_cast<unsigned char>(highest - lowest)};
}

struct RatedTest {
    PlacedTest placed;
    double share;  // of the positions that pass
};

bool IsRarer(const RatedTest& a, const RatedTest& b) {
    return a.share < b.share;
}

RatedTest RarestTestOf(const WildcardPattern::ByteSet& set, std::size_t place,
                       const ByteShares& shares) {
    const ByteTest exact = TestOf(set, 0);
    const ByteTest caseless = TestOf(set, kCaseBit);
    return std::min(RatedTest{{place, exact}, shares.Of(exact)},
                    RatedTest{{place, caseless}, shares.Of(caseless)}, IsRarer);
}

bool Passes(std::string_view sample, std::size_t position, const PlacedTest& placed) {
    return placed.test.Passes(static_cast<unsigned char>(sample[position + placed.place]));
}

// Positions of the sample that pass a test and leave room for the fragment. A few are enough.
std::vector<std::size_t> SamplePositions(std::string_view sample, std::size_t fragmentLength,
                                         const PlacedTest& placed) {
    constexpr std::size_t kEnough = 128;
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i + fragmentLength <= sample.size() && positions.size() < kEnough;
         ++i) {
        if (Passes(sample, i, placed)) {
            positions.push_back(i);
        }
    }
    return positions;
}

}  // namespace

FragmentSearch::FragmentSearch(WildcardPattern::Segment fragment, std::string_view sample)
    : fragment_{std::move(fragment), {}} {
    assert(!fragment_.sets.empty());
    const ByteShares shares(sample);
    std::vector<RatedTest> rated;
    rated.reserve(fragment_.sets.size());
    for (const WildcardPattern::ByteSet& set : fragment_.sets) {
        rated.push_back(RarestTestOf(set, rated.size(), shares));
    }
    std::iter_swap(rated.begin(), std::min_element(rated.begin(), rated.end(), IsRarer));
    // Letters depend on each other. So what counts of the other tests is how many positions they
    // let through of those that the first does. The sample may have few of these.
    constexpr double kWeightOfShares = 4;
    const auto positions = SamplePositions(sample, fragment_.sets.size(), rated.front().placed);
    for (auto other = rated.begin() + 1; other != rated.end(); ++other) {
        const auto passing = std::count_if(
            positions.begin(), positions.end(),
            [&](std::size_t position) { return Passes(sample, position, other->placed); });
        other->share = (static_cast<double>(passing) + kWeightOfShares * other->share) /
                       (static_cast<double>(positions.size()) + kWeightOfShares);
    }
    const auto second = std::min_element(rated.begin() + 1, rated.end(), IsRarer);
    if (second == rated.end()) {
        fragment_.rarest = {rated.front().placed, rated.front().placed};
        expectedCandidates_ = rated.front().share;
    } else {
        fragment_.rarest = {rated.front().placed, second->placed};
        expectedCandidates_ = rated.front().share * second->share;
    }
}

}  // namespace brelex
