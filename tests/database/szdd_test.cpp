// SPDX-License-Identifier: MIT
#include "database/szdd.h"

#include <cstdint>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "database/modCRC32.h"
#include "tests/support/memory_meter.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

std::string Expanded(std::string_view file) {
    const auto expanded = ExpandSzdd(file);
    return expanded ? std::string(expanded->View()) : "(too long)";
}

// A compressed file from its header's declared length and its data.
std::string File(std::string_view data, unsigned declared = 100) {
    std::string file = "SZDD\x88\xF0\x27\x33";
    file += "A";
    file.push_back('\0');
    for (unsigned i = 0; i < 4; ++i) {
        file.push_back(static_cast<char>((declared >> (8 * i)) & 0xFFU));
    }
    return file.append(data);
}

// Expands data as the format describes it, item by item with a ring.
std::string ExpandedWithARing(std::string_view data) {
    std::string ring(4096, ' ');
    std::size_t at = 0xFF0;
    std::string out;
    const auto put = [&](char c) {
        out.push_back(c);
        ring[at] = c;
        at = (at + 1) % ring.size();
    };
    std::size_t next = 0;
    while (next < data.size()) {
        auto flags = static_cast<unsigned char>(data[next++]);
        for (int item = 0; item < 8; ++item, flags = static_cast<unsigned char>(flags >> 1U)) {
            const bool literal = (flags & 1U) != 0;
            if (data.size() - next < (literal ? 1 : 2)) {
                return out;
            }
            if (literal) {
                put(data[next++]);
                continue;
            }
            const auto first = static_cast<unsigned char>(data[next++]);
            const auto second = static_cast<unsigned char>(data[next++]);
            const std::size_t from = first | ((second & 0xF0U) << 4U);
            for (std::size_t i = 0; i < (second & 0x0FU) + 3; ++i) {
                put(ring[(from + i) % ring.size()]);
            }
        }
    }
    return out;
}

TEST(ExpandSzdd, GivesWhatTheRingGives) {
    std::mt19937 random(10);
    for (int i = 0; i < 3000; ++i) {
        std::string data(random() % (i % 10 == 0 ? 6000 : 200), '\0');
        for (char& c : data) {
            c = static_cast<char>(random());
        }
        // Now and then all flags are the same, and matches repeat what is very near.
        const std::uint32_t kind = random() % 4;
        for (std::size_t at = 0; kind < 2 && at < data.size(); at += kind == 0 ? 9 : 17) {
            data[at] = kind == 0 ? '\xFF' : '\0';
        }
        const std::string expected = ExpandedWithARing(data);
        for (const std::size_t declared : {expected.size(), expected.size() / 3, std::size_t{0},
                                           expected.size() + 10000, std::size_t{0xFFFFFFFF}}) {
            ASSERT_EQ(Expanded(File(data, static_cast<unsigned>(declared))), expected)
                << i << ", declared as " << declared;
        }
    }
}

TEST(ExpandSzdd, LiteralsComeOutAsTheyAre) {
    EXPECT_EQ(Expanded(File("\xFF"
                            "ABCDEFGH"
                            "\x03"
                            "IJ")),
              "ABCDEFGHIJ");
}

TEST(ExpandSzdd, AMatchRepeatsWhatWasWritten) {
    // The first byte goes to ring position FF0 hex; length 3 + 2.
    EXPECT_EQ(Expanded(File("\x03"
                            "AB"
                            "\xF0\xF2")),
              "ABABABA");
}

TEST(ExpandSzdd, TheRingBeginsWithBlanks) {
    EXPECT_EQ(Expanded(File(std::string("\x00\x00\x0F", 3))), std::string(18, ' '));
}

TEST(ExpandSzdd, AMatchMayReachAWholeRingBack) {
    // At the start the position being written is FF0 hex itself: a byte of a round ago, a blank.
    EXPECT_EQ(Expanded(File(std::string("\x00\xF0\xF0", 3))), "   ");
}

TEST(ExpandSzdd, TheDeclaredLengthIsNotTrusted) {
    const std::string data =
        "\x07"
        "ABC";
    EXPECT_EQ(Expanded(File(data, 0)), "ABC");
    EXPECT_EQ(Expanded(File(data, 0xFFFFFFFF)), "ABC");
}

TEST(ExpandSzdd, AStreamThatEndsEarlyGivesWhatCameOut) {
    EXPECT_EQ(Expanded(File("\xFF"
                            "AB")),
              "AB");
    EXPECT_EQ(Expanded(File("\x01"
                            "A\xF0")),
              "A");  // half a match
    EXPECT_EQ(Expanded(File("\xFF")), "");
    EXPECT_EQ(Expanded(File("")), "");
}

TEST(ExpandSzdd, BytesWithoutTheSignatureAreCopied) {
    EXPECT_EQ(Expanded("plain bytes, longer than a header"), "plain bytes, longer than a header");
    EXPECT_EQ(Expanded(""), "");
    EXPECT_EQ(Expanded("SZDD"), "SZDD");
    std::string otherMethod = File(
        "\x01"
        "A");
    otherMethod[8] = 'B';
    EXPECT_EQ(Expanded(otherMethod), otherMethod);
}

TEST(ExpandSzdd, MoreThanTheLimitIsRefused) {
    const std::string file = CompressSzdd(std::string(5000, 'x'));
    EXPECT_TRUE(ExpandSzdd(file, 5000).has_value());
    EXPECT_FALSE(ExpandSzdd(file, 4999).has_value());
    EXPECT_FALSE(ExpandSzdd(file, 100).has_value());
    EXPECT_TRUE(ExpandSzdd("plain bytes", 11).has_value());
    EXPECT_FALSE(ExpandSzdd("plain bytes", 10).has_value());
}

TEST(ExpandSzdd, AFileThatDeclaresTooLittleMayBeAsLongAsTheLimit) {
    const std::string bytes(9000, 'x');
    const std::string file = CompressSzdd(bytes).replace(10, 4, 4, '\0');
    const auto expanded = ExpandSzdd(file, 9000);
    ASSERT_TRUE(expanded.has_value());
    EXPECT_EQ(expanded->View(), bytes);
    EXPECT_FALSE(ExpandSzdd(file, 8999).has_value());
}

TEST(ExpandSzdd, AFileThatDeclaresTooLittleAndHasFarTooMuchIsRefused) {
    const std::string bytes(1000000, 'x');
    EXPECT_FALSE(ExpandSzdd(CompressSzdd(bytes).replace(10, 4, 4, '\0'), 9000).has_value());
}

// Data that expand to `kManyBlanks` blanks. Behind them, a file that declares too little needs a
// larger buffer.
constexpr std::size_t kManyBlanks = std::size_t{32} * 8 * 18;

std::string ManyBlanks() {
    std::string data;
    for (int group = 0; group < 32; ++group) {
        data.push_back('\0');
        for (int match = 0; match < 8; ++match) {
            data += std::string("\0\x0F", 2);  // 18 blanks
        }
    }
    return data;
}

// What is in front of the expanded bytes and behind them.
constexpr std::size_t kRingAndGap = 4096 + 4096;

std::size_t BytesToExpand(std::string_view file, std::size_t mostBytes = kMaxExpandedBytes) {
    const MemoryMeter meter(1000);
    (void)ExpandSzdd(file, mostBytes);
    return meter.Bytes();
}

TEST(ExpandSzdd, TakesTheMemoryOnceThatTheFileSaysItNeeds) {
    EXPECT_EQ(BytesToExpand(CompressSzdd(std::string(100000, 'x'))), kRingAndGap + 100000);
}

TEST(ExpandSzdd, AFileThatDeclaresTooMuchTakesOnlyWhatItsDataCanExpandTo) {
    constexpr std::size_t kGroups = 100;
    constexpr std::size_t kMostOfGroup = std::size_t{8} * 18;
    EXPECT_EQ(BytesToExpand(File(std::string(17 * kGroups, '\0'), 0xFFFFFFFF)),
              kRingAndGap + (kGroups + 1) * kMostOfGroup);
}

TEST(ExpandSzdd, AFileThatDeclaresTooLittleTakesTwiceTheMemoryInASecondBlock) {
    constexpr std::size_t kRest = 9;
    const std::string data = ManyBlanks() + std::string("\xFF") + "12345678";
    const std::size_t first = kRingAndGap + data.size();
    EXPECT_EQ(BytesToExpand(File(data, 0)), first + kRingAndGap + 2 * kManyBlanks + 2 * kRest);
    EXPECT_EQ(BytesToExpand(File(data, 0), kManyBlanks + 8),
              first + kRingAndGap + kManyBlanks + 8 + std::size_t{8} * 18 + kRest);
}

// 31 groups of long matches leave room for two more groups with little to spare.
TEST(ExpandSzdd, ASecondBlockIsTakenOnlyIfTheNextGroupMightNotFit) {
    const std::string longGroups = ManyBlanks().substr(0, std::size_t{31} * 17);
    const std::string shortMatches(14, '\0');
    const std::string fits = longGroups + '\0' + shortMatches + std::string("\0\0", 2) + "\1x";
    EXPECT_EQ(BytesToExpand(File(fits, 0)), kRingAndGap + fits.size());
    const std::string mayNotFit = longGroups + '\0' + shortMatches + std::string("\0\1", 2) + "\1x";
    EXPECT_GT(BytesToExpand(File(mayNotFit, 0)), 2 * kRingAndGap);
}

TEST(CompressSzdd, TakesOneTableOf128KiBAtMost) {
    const MemoryMeter meter(std::size_t{64} << 10U);
    (void)CompressSzdd("few bytes");
    EXPECT_EQ(meter.Bytes(), std::size_t{128} << 10U);
}

TEST(ExpandSzdd, AGroupThatIsCutOffBehindTheLargestContentDoesNoHarm) {
    const std::string file = File(ManyBlanks() + "\xFF", 0);
    const auto expanded = ExpandSzdd(file, kManyBlanks);
    ASSERT_TRUE(expanded.has_value());
    EXPECT_EQ(expanded->View(), std::string(kManyBlanks, ' '));
    EXPECT_FALSE(ExpandSzdd(file, kManyBlanks - 1).has_value());
}

TEST(ExpandSzdd, MuchThatDidNotCompressMayFollowManyBlanks) {
    std::string data = ManyBlanks();
    for (int group = 0; group < 1500; ++group) {
        data += "\xFF" + std::to_string(10000000 + group);
    }
    EXPECT_EQ(Expanded(File(data, 0)), ExpandedWithARing(data));
}

std::string RandomText(std::mt19937& random, std::size_t length, unsigned letters) {
    std::string text(length, ' ');
    for (char& c : text) {
        c = static_cast<char>('a' + random() % letters);
    }
    return text;
}

TEST(CompressSzdd, WhatItCompressesExpandsAgain) {
    std::mt19937 random(7);
    for (std::size_t length : {0U, 1U, 2U, 3U, 17U, 18U, 19U, 4095U, 4096U, 4097U, 9000U, 66000U}) {
        for (const unsigned letters : {1U, 2U, 5U, 26U}) {
            const std::string text = RandomText(random, length, letters);
            EXPECT_EQ(Expanded(CompressSzdd(text)), text) << length << " " << letters;
        }
    }
}

TEST(CompressSzdd, ExpandsToAllByteValues) {
    std::mt19937 random(8);
    std::string bytes(20000, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random());
    }
    EXPECT_EQ(Expanded(CompressSzdd(bytes)), bytes);
}

TEST(CompressSzdd, MuchThatDoesNotCompressMayFollowWhatDoes) {
    std::mt19937 random(11);
    std::string bytes(500000, 'x');
    for (int i = 0; i < 200000; ++i) {
        bytes.push_back(static_cast<char>(random()));
    }
    EXPECT_EQ(Expanded(CompressSzdd(bytes)), bytes);
    bytes.append(500000, 'y');
    EXPECT_EQ(Expanded(CompressSzdd(bytes)), bytes);
}

TEST(CompressSzdd, TheSameBytesGiveTheSameFile) {
    std::mt19937 random(9);
    const std::string text = RandomText(random, 10000, 4);
    EXPECT_EQ(CompressSzdd(text), CompressSzdd(text));
}

// Whoever builds the data again gets the same file, unless the compressor has been changed on
// purpose.
TEST(CompressSzdd, TheFileIsTheOneOfEarlierVersions) {
    std::mt19937 random(12);
    std::string files;
    for (const unsigned letters : {1U, 2U, 5U, 26U, 200U}) {
        files += CompressSzdd(RandomText(random, 20000, letters));
    }
    EXPECT_EQ(files.size(), 56988U);
    EXPECT_EQ(GetCRCFromByteArray(files), 1873469431);
    EXPECT_EQ(CompressSzdd("ABABABABABABABABABABABAB").substr(14),
              "\x03"
              "AB\xF0\xFF\x02\x01");
}

// A classic encoder keeps the next 18 bytes in its ring of 4096, so it looks back no further.
TEST(CompressSzdd, LooksBack4078BytesAndNoFurther) {
    const auto bytesForRepetition = [](std::size_t distance) {
        const std::string text = Incompressible(distance);
        return CompressSzdd(text + text.substr(0, 18)).size() - CompressSzdd(text).size();
    };
    EXPECT_LT(bytesForRepetition(4078), 8U);
    EXPECT_GT(bytesForRepetition(4079), 16U);
}

TEST(CompressSzdd, RepetitionIsMadeSmall) {
    EXPECT_LT(CompressSzdd(std::string(10000, 'x')).size(), 10000 / 8 + 100);
}

TEST(CompressSzdd, DeclaresTheExpandedLength) {
    const std::string file = CompressSzdd(std::string(0x12345, 'x'));
    EXPECT_EQ(file.substr(10, 4), std::string("\x45\x23\x01\x00", 4));
}

}  // namespace
}  // namespace brelex
