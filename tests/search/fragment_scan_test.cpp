// SPDX-License-Identifier: MIT
#include "search/fragment_scan.h"

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

// A text in a block of memory that ends where the text ends, so that the checks of memory notice
// any read behind it. The text begins `offset` bytes after the beginning of the block.
class EndingText {
  public:
    EndingText(std::string_view text, std::size_t offset)
        : block_(std::make_unique<char[]>(offset + text.size())),
          text_(block_.get() + offset, text.size()) {
        std::copy(text.begin(), text.end(), block_.get() + offset);
    }

    [[nodiscard]] std::string_view Text() const { return text_; }

  private:
    std::unique_ptr<char[]> block_;
    std::string_view text_;
};

WildcardPattern::Segment SegmentOf(const std::vector<std::string>& sets) {
    WildcardPattern::Segment segment;
    for (const std::string& set : sets) {
        segment.emplace_back();
        for (const char c : set) {
            segment.back().set(static_cast<unsigned char>(c));
        }
    }
    return segment;
}

constexpr unsigned char kCaseBit = 0x20;

// Fragments of one byte and more, for letters in one case and both, for ranges, and with the two
// places in either order and far apart.
std::vector<Fragment> Fragments() {
    const ByteTest smallA{0, 'a', 0};
    const ByteTest anyA{kCaseBit, 'a', 0};
    const ByteTest anyB{kCaseBit, 'b', 0};
    const ByteTest smallAToC{0, 'a', 2};
    const ByteTest upper{0, 0xE0, 0x1F};
    const ByteTest any{0, 0, 0xFF};
    const ByteTest none{0xFF, 0, 0};
    std::vector<std::string> longSets(70, "abcAB\xE9");
    longSets.front() = "aA";
    longSets.back() = "bB";
    return {
        {SegmentOf({"a"}), {{0, smallA}, {0, smallA}}},
        {SegmentOf({"aA", "bB"}), {{0, anyA}, {1, anyB}}},
        {SegmentOf({"abc", "abc", "bB"}), {{2, anyB}, {0, smallAToC}}},
        {SegmentOf({"\xE9", "ac"}), {{0, upper}, {1, smallAToC}}},
        {SegmentOf({"abcAB\xE9", "a"}), {{1, smallA}, {0, any}}},
        {SegmentOf({"a", ""}), {{0, smallA}, {1, none}}},
        {SegmentOf(longSets), {{69, anyB}, {0, anyA}}},
    };
}

// What a scan is to find, without any test before.
std::size_t FirstPlace(std::string_view text, std::size_t from, std::size_t end,
                       const Fragment& fragment) {
    while (from < end && !SegmentStandsAt(fragment.sets, text, from)) {
        ++from;
    }
    return from;
}

std::vector<FragmentScan> AllScans() {
    std::vector<FragmentScan> scans = VectorScans();
    scans.insert(scans.begin(), ScanPlainly);
    return scans;
}

// Expects that every scan finds the same places from each position on.
void ExpectSamePlaces(std::string_view text, const Fragment& fragment) {
    if (text.size() < fragment.sets.size()) {
        return;
    }
    const std::size_t end = text.size() - fragment.sets.size() + 1;
    const std::vector<FragmentScan> scans = AllScans();
    for (std::size_t scan = 0; scan < scans.size(); ++scan) {
        for (std::size_t from = 0; from <= end; ++from) {
            ASSERT_EQ(scans[scan](text, from, end, fragment), FirstPlace(text, from, end, fragment))
                << "scan " << scan << " from " << from << " in \"" << text << '"';
        }
    }
}

TEST(FragmentScan, FindsThePlacesInTextsOfAnyLength) {
    std::mt19937 random(11);
    const std::vector<Fragment> fragments = Fragments();
    for (std::size_t length = 0; length <= 210; ++length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) {
            text.push_back("aAbBc\xE9"[random() % 6]);
        }
        const EndingText ending(text, random() % 64);
        for (const Fragment& fragment : fragments) {
            ExpectSamePlaces(ending.Text(), fragment);
        }
    }
}

TEST(FragmentScan, FindsASinglePlaceAnywhere) {
    const Fragment fragment = Fragments()[1];
    for (const std::size_t length : {2U, 63U, 64U, 65U, 66U, 129U, 200U}) {
        for (std::size_t place = 0; place + 2 <= length; ++place) {
            std::string text(length, 'x');
            text[place] = 'A';
            text[place + 1] = 'b';
            const EndingText ending(text, place % 33);
            for (const FragmentScan scan : AllScans()) {
                ASSERT_EQ(scan(ending.Text(), 0, length - 1, fragment), place) << length;
                ASSERT_EQ(scan(ending.Text(), place + 1, length - 1, fragment), length - 1);
            }
        }
    }
}

TEST(FragmentScan, FindsThePlacesAtAnyAlignment) {
    std::mt19937 random(12);
    const std::vector<Fragment> fragments = Fragments();
    std::string text;
    for (int i = 0; i < 150; ++i) {
        text.push_back("aAbBcx\xE9"[random() % 7]);
    }
    for (std::size_t offset = 0; offset < 64; ++offset) {
        const EndingText ending(text, offset);
        for (const Fragment& fragment : fragments) {
            ExpectSamePlaces(ending.Text(), fragment);
        }
    }
}

// The bytes before the first position and behind the last belong to nobody.
TEST(FragmentScan, LooksAtNothingOutsideTheRange) {
    const Fragment fragment = Fragments()[0];
    for (std::size_t length = 1; length <= 140; ++length) {
        const std::string text = "a" + std::string(length, 'x') + "a";
        for (const FragmentScan scan : AllScans()) {
            ASSERT_EQ(scan(text, 1, length + 1, fragment), length + 1);
        }
    }
}

TEST(FragmentScan, UsesVectorsWhereTheProcessorHasThem) {
    const std::vector<FragmentScan> scans = VectorScans();
    EXPECT_EQ(FastestScan(), scans.empty() ? ScanPlainly : scans.back());
}

// A test for a range covers every byte of it and no other, whatever the other test is.
TEST(FragmentScan, TestsEachByteAsTheDefinitionSays) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) {
        text.push_back(static_cast<char>(byte));
    }
    const std::vector<ByteTest> tests = {{0, '0', 9},         {0, '4', 1},           {0, '5', 0},
                                         {kCaseBit, 'a', 25}, {0, 0x80, 0x7F},       {0, 0xFF, 0},
                                         {0, 0, 0},           {kCaseBit, 0x20, 0xDF}};
    for (const ByteTest& first : tests) {
        for (const ByteTest& second : tests) {
            const PairTest both = {{0, first}, {0, second}};
            std::string passing;
            for (const char& c : text) {
                passing += both.Passes(&c) ? std::string(1, c) : "";
            }
            ExpectSamePlaces(text, {SegmentOf({passing}), both});
        }
    }
}

}  // namespace
}  // namespace brelex
