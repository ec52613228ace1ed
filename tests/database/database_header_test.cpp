// SPDX-License-Identifier: MIT
#include "database/database_header.h"

#include <bit>
#include <cmath>
#include <limits>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

DatabaseHeader SampleHeader() {
    DatabaseHeader header;
    header.Version = 2.5F;
    header.ReleaseDate = 38386.25;
    header.MaxAbbrvLength = 12;
    header.MaxExpansionLength = 143;
    header.RecordCount = 0x01020304;
    header.DataSize = 5;
    header.Reserved = 6;
    header.DataCRC = -1;
    header.AvgAbbrvLength = 8;
    header.AvgExpansionLength = 9;
    header.LongestAbbrvIndex = 10;
    header.LongestExpansionIndex = 11;
    header.CommonFirstLetter = 'S';
    header.CommonFirstLetterCount = 13;
    header.MostExpansionsIndex = 14;
    header.MostExpansionsCount = 15;
    header.SearchListText = "network1memory" + std::string(kSearchListLength - 14, ' ');
    return header;
}

TEST(DatabaseHeader, SurvivesEncodingAndDecoding) {
    const std::string bytes = EncodeHeader(SampleHeader());
    EXPECT_EQ(bytes.size(), 1089U);
    EXPECT_EQ(DecodeHeader(bytes), SampleHeader());
}

struct FieldPlace {
    const char* name;
    std::size_t offset;
    std::string bytes;
};

class HeaderLayoutTest : public testing::TestWithParam<FieldPlace> {};

TEST_P(HeaderLayoutTest, FieldStandsAtItsOffset) {
    const auto& place = GetParam();
    EXPECT_EQ(EncodeHeader(SampleHeader()).substr(place.offset, place.bytes.size()), place.bytes);
}

std::string Int(unsigned char low) {
    return {static_cast<char>(low), 0, 0, 0};
}

INSTANTIATE_TEST_SUITE_P(
    Fields, HeaderLayoutTest,
    testing::Values(
        FieldPlace{"Version", 0, std::string("\0\0\x20\x40", 4)},
        FieldPlace{"ReleaseDate", 4, std::string("\0\0\0\0\x48\xBE\xE2\x40", 8)},
        FieldPlace{"MaxAbbrvLength", 12, Int(12)}, FieldPlace{"MaxExpansionLength", 16, Int(143)},
        FieldPlace{"RecordCount", 20, "\x04\x03\x02\x01"}, FieldPlace{"DataSize", 24, Int(5)},
        FieldPlace{"Reserved", 28, Int(6)}, FieldPlace{"DataCRC", 32, "\xFF\xFF\xFF\xFF"},
        FieldPlace{"AvgAbbrvLength", 36, Int(8)}, FieldPlace{"AvgExpansionLength", 40, Int(9)},
        FieldPlace{"LongestAbbrvIndex", 44, Int(10)},
        FieldPlace{"LongestExpansionIndex", 48, Int(11)}, FieldPlace{"CommonFirstLetter", 52, "S"},
        FieldPlace{"CommonFirstLetterCount", 53, Int(13)},
        FieldPlace{"MostExpansionsIndex", 57, Int(14)},
        FieldPlace{"MostExpansionsCount", 61, Int(15)},
        FieldPlace{"SearchListText", 65, "network1memory    "}),
    CaseName());

TEST(DatabaseHeader, AShortSearchListIsFilledWithBlanks) {
    DatabaseHeader header = SampleHeader();
    header.SearchListText = "network1memory";
    EXPECT_EQ(EncodeHeader(header), EncodeHeader(SampleHeader()));
}

TEST(DatabaseHeader, ValuesThatAreNoNumbersSurvive) {
    DatabaseHeader header;
    header.Version = std::numeric_limits<float>::quiet_NaN();
    header.ReleaseDate = -std::numeric_limits<double>::infinity();
    const DatabaseHeader decoded = DecodeHeader(EncodeHeader(header));
    EXPECT_TRUE(std::isnan(decoded.Version));
    EXPECT_EQ(decoded.ReleaseDate, header.ReleaseDate);
}

TEST(DatabaseHeader, ASearchListIsPaddedOrCutToItsRoom) {
    DatabaseHeader header;
    header.SearchListText = "short";
    EXPECT_EQ(DecodeHeader(EncodeHeader(header)).SearchListText.size(), kSearchListLength);
    header.SearchListText = std::string(3000, 'x');
    EXPECT_EQ(EncodeHeader(header).size(), kHeaderBytes);
}

TEST(VisitFields, NamesEachFieldOnce) {
    std::set<std::string> names;
    std::size_t fields = 0;
    VisitFields([&](const char* name, auto /*member*/, FieldSource /*source*/) {
        names.insert(name);
        ++fields;
    });
    EXPECT_EQ(fields, 17U);
    EXPECT_EQ(names.size(), fields);
}

TEST(AbbreviationLimit, IsTheGreatestLengthAndZeroForADamagedOne) {
    DatabaseHeader header;
    header.MaxAbbrvLength = 12;
    EXPECT_EQ(header.AbbreviationLimit(), 12U);
    header.MaxAbbrvLength = -1;
    EXPECT_EQ(header.AbbreviationLimit(), 0U);
}

TEST(RowOfHeaderIndex, TheLowSixteenBitsCountAsASignedNumber) {
    constexpr std::int32_t kRows = 100000;
    EXPECT_EQ(RowOfHeaderIndex(0, kRows), 0);
    EXPECT_EQ(RowOfHeaderIndex(32767, kRows), 32767);
    EXPECT_EQ(RowOfHeaderIndex(32768, kRows), -1);  // -32768
    EXPECT_EQ(RowOfHeaderIndex(65535, kRows), -1);
    EXPECT_EQ(RowOfHeaderIndex(65536, kRows), 0);
    EXPECT_EQ(RowOfHeaderIndex(65537, kRows), 1);
    EXPECT_EQ(RowOfHeaderIndex(-1, kRows), -1);
    EXPECT_EQ(RowOfHeaderIndex(-65535, kRows), 1);
}

TEST(RowOfHeaderIndex, NoRowOutsideTheListIsAddressed) {
    EXPECT_EQ(RowOfHeaderIndex(2, 3), 2);
    EXPECT_EQ(RowOfHeaderIndex(3, 3), -1);
    EXPECT_EQ(RowOfHeaderIndex(0, 0), -1);
}

}  // namespace
}  // namespace brelex
