// SPDX-License-Identifier: MIT
#include "search/fragment_search.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

WildcardPattern::Segment FragmentOf(const std::vector<std::string>& sets) {
    WildcardPattern::Segment fragment;
    for (const std::string& set : sets) {
        fragment.emplace_back();
        for (const char c : set) {
            fragment.back().set(static_cast<unsigned char>(c));
        }
    }
    return fragment;
}

// 744 bytes: with one more of each, as if every byte occurred, they are a thousand.
std::string Sample() {
    std::string sample = "qe";
    sample += std::string(726, 'e') + "EEEE";
    for (int i = 0; i < 6; ++i) {
        sample += "qe";
    }
    return sample;
}

struct ShareCase {
    const char* name;
    std::vector<std::string> sets;
    double share;
};

class ExpectedCandidates : public testing::TestWithParam<ShareCase> {};

TEST_P(ExpectedCandidates, IsTheShareInTheSample) {
    const FragmentSearch search(FragmentOf(GetParam().sets), Sample());
    EXPECT_DOUBLE_EQ(search.ExpectedCandidates(), GetParam().share);
}

// The seven places of a "q" are all followed by an "e". Four more count that are as likely to be
// followed by one as any byte.
constexpr double kAfterQ = (7 + 4 * 0.734) / (7 + 4);

INSTANTIATE_TEST_SUITE_P(
    Fragments, ExpectedCandidates,
    testing::Values(ShareCase{"ACommonByte", {"e"}, 0.734}, ShareCase{"ARareByte", {"q"}, 0.008},
                    ShareCase{"AMissingByte", {"x"}, 0.001},
                    ShareCase{"TheFirstByte", {std::string(1, '\0')}, 0.001},
                    ShareCase{"TheLastByte", {"\xFF"}, 0.001},
                    ShareCase{"ALetterInEitherCase", {"eE"}, 0.739},
                    ShareCase{"ARange", {"defg"}, 0.737}, ShareCase{"NoByte", {""}, 0},
                    ShareCase{"ARareByteBeforeACommonOne", {"q", "e"}, 0.008 * kAfterQ},
                    ShareCase{"ARareByteBehindOne", {"e", "x"}, 0.001 * 0.734},
                    ShareCase{"WithoutItsLikes", {"x", "y"}, 0.001 * 0.001}),
    CaseName());

TEST(FragmentSearch, LooksAtFewPlacesOfARareByte) {
    std::string sample;
    for (int i = 0; i < 200; ++i) {
        sample += i < 128 ? "qe" : "qx";
    }
    sample += std::string(300, 'e');
    const double q = 201.0 / 956;
    const double e = 429.0 / 956;
    const FragmentSearch search(FragmentOf({"q", "e"}), sample);
    EXPECT_DOUBLE_EQ(search.ExpectedCandidates(), q * (128 + 4 * e) / (128 + 4));
}

// All places of the fragment in a text, from one on.
std::vector<std::size_t> Places(const FragmentSearch& search, std::string_view text,
                                std::size_t from) {
    std::vector<std::size_t> places;
    search.VisitPlaces(text, from, [&](std::size_t place) {
        places.push_back(place);
        return place + 1;
    });
    return places;
}

TEST(FragmentSearch, VisitsEachPlaceInOrder) {
    const FragmentSearch search(FragmentOf({"aA", "b"}), "any text");
    EXPECT_EQ(Places(search, "ab-Abab", 0), (std::vector<std::size_t>{0, 3, 5}));
    EXPECT_EQ(Places(search, "ab-Abab", 3), (std::vector<std::size_t>{3, 5}));
    EXPECT_EQ(Places(search, "ab-Abab", 6), std::vector<std::size_t>());
    EXPECT_EQ(Places(search, "ab", 0), std::vector<std::size_t>{0});
    EXPECT_EQ(Places(search, "a", 0), std::vector<std::size_t>());
    EXPECT_EQ(Places(search, "", 0), std::vector<std::size_t>());
}

}  // namespace
}  // namespace brelex
