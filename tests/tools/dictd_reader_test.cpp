// SPDX-License-Identifier: MIT
#include "tools/dictd_reader.h"

#include <zlib.h>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/test_files.h"

namespace brelex {

static void PrintTo(const DictdEntry& entry, std::ostream* out) {
    *out << entry.abbreviation << " = " << entry.expansion;
}

namespace {

using Entries = std::vector<DictdEntry>;

TEST(EntriesOfArticle, AHeadwordAndItsExpansion) {
    EXPECT_EQ(EntriesOfArticle("CPU\n       Central Processing Unit\n       \n"),
              (Entries{{"CPU", "Central Processing Unit"}}));
}

TEST(EntriesOfArticle, WrappedLinesAreJoined) {
    EXPECT_EQ(EntriesOfArticle("LONG\n       A first line (org., IP,\nand a second)\n       \n"),
              (Entries{{"LONG", "A first line (org., IP, and a second)"}}));
}

TEST(EntriesOfArticle, AQuotedSpellingReplacesTheHeadword) {
    EXPECT_EQ(EntriesOfArticle("3DDDI\n       3D Device Dependent Interface (MS), \"3D DDI\"\n"),
              (Entries{{"3D DDI", "3D Device Dependent Interface (MS)"}}));
}

TEST(EntriesOfArticle, EachOfSeveralSpellingsIsAnEntry) {
    EXPECT_EQ(EntriesOfArticle("DCERPC\n       Remote Call (DCE), \"DCE/RPC\" , \"DCE RPC\"\n"),
              (Entries{{"DCE/RPC", "Remote Call (DCE)"}, {"DCE RPC", "Remote Call (DCE)"}}));
}

TEST(EntriesOfArticle, ASpellingOfSomethingElseStaysInTheText) {
    EXPECT_EQ(EntriesOfArticle("FFFS\n       Fast File System, \"F3S\"\n"),
              (Entries{{"FFFS", "Fast File System, \"F3S\""}}));
}

TEST(EntriesOfArticle, AQuoteInsideIsNoSpelling) {
    EXPECT_EQ(EntriesOfArticle("HE\n       HoehenEinheit [1HE = 19\"]\n"),
              (Entries{{"HE", "HoehenEinheit [1HE = 19\"]"}}));
}

TEST(EntriesOfArticle, AFurtherEntryInTheArticleIsFound) {
    EXPECT_EQ(EntriesOfArticle("TL\n       Transform and Lighting (3D), \"T&L\"\n       \n"
                               "       TL;DR        Too Long; Didn't Read (slang)\n       \n"),
              (Entries{{"T&L", "Transform and Lighting (3D)"},
                       {"TL;DR", "Too Long; Didn't Read (slang)"}}));
}

TEST(EntriesOfArticle, BlanksAndTabsAtTheEdgesAreNoPartOfTheEntry) {
    EXPECT_EQ(EntriesOfArticle("HSV\n       \tHue Saturation Value \t\n \t\n"),
              (Entries{{"HSV", "Hue Saturation Value"}}));
    EXPECT_EQ(EntriesOfArticle("RIOCP\n       Rapid IO Check, \"RIO/CP \"\n"),
              (Entries{{"RIO/CP", "Rapid IO Check"}}));
    EXPECT_EQ(EntriesOfArticle("A\n  Alpha\n       B      \tBeta \t\n").back(),
              (DictdEntry{"B", "Beta"}));
}

TEST(EntriesOfArticle, WithoutAnExpansionThereIsNoEntry) {
    EXPECT_EQ(EntriesOfArticle("VCSA\n       , \"vCSA\"\n       \n"), Entries());
    EXPECT_EQ(EntriesOfArticle("X\n"), Entries());
    EXPECT_EQ(EntriesOfArticle(""), Entries());
}

TEST(EntriesOfHeaderArticle, EntriesBehindTheNoticeAreFound) {
    EXPECT_EQ(
        EntriesOfHeaderArticle("00-database-info\n     About this list.\n"
                               "The data is available from:\n     some address\n\n"
                               "100VG\n       100 Voice Grade [technology]\n       \n"
                               "10GE\n       10 GigaBIT Ethernet\n       \n"),
        (Entries{{"100VG", "100 Voice Grade [technology]"}, {"10GE", "10 GigaBIT Ethernet"}}));
}

class ReadDictdPairTest : public testing::Test {
  protected:
    void WriteCompressed(const std::string& name, const std::string& content) {
        gzFile file = gzopen((folder_.Path() / name).string().c_str(), "wb");
        ASSERT_EQ(gzwrite(file, content.data(), static_cast<unsigned>(content.size())),
                  static_cast<int>(content.size()));
        gzclose(file);
    }

    void Read() { ReadDictdPair(folder_.Path() / "my.index", records_, report_); }

    TestFolder folder_;
    std::vector<std::string> records_;
    InputReport report_;
};

// Offsets and lengths are numbers in base 64: A is 0, P is 15.
TEST_F(ReadDictdPairTest, ReadsTheCompressedDictionaryByItsIndex) {
    WriteCompressed("my.dict.dz", "A\n  Alpha.....\nB\n  Beta\n");
    folder_.Write("my.index", "b\tP\tJ\na\tA\tP\n");
    Read();
    EXPECT_EQ(report_.errors, std::vector<std::string>());
    EXPECT_EQ(records_, (std::vector<std::string>{"B\tBeta", "A\tAlpha....."}));
}

TEST_F(ReadDictdPairTest, ReadsAnUncompressedDictionary) {
    folder_.Write("my.dict", "A\n  Alpha\n");
    folder_.Write("my.index", "a\tA\tK\n");
    Read();
    EXPECT_EQ(records_, std::vector<std::string>{"A\tAlpha"});
}

class BadIndexTest : public ReadDictdPairTest, public testing::WithParamInterface<const char*> {};

TEST_P(BadIndexTest, LineThatPointsNowhereIsRefusedWithItsNumber) {
    folder_.Write("my.dict", "A\n  Alpha\n");
    folder_.Write("my.index", std::string("a\tA\tK\n") + GetParam() + "\n");
    Read();
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].ends_with("my.index:2: does not point into the dictionary"));
}

INSTANTIATE_TEST_SUITE_P(Lines, BadIndexTest,
                         testing::Values("b\tB\tK", "b\tzzzzzz\tA", "b\tA\tzzzzzz", "b\tA", "b",
                                         "b\t*\tA", "b\tA\t", "b\tAAAAAAAAAAAAAAA\tA"));

TEST_F(ReadDictdPairTest, AcceptsAnIndexThatAlsoSpellsTheHeadwords) {
    folder_.Write("my.dict", "A\n  Alpha\n");
    folder_.Write("my.index", "a\tA\tK\tA\n");
    Read();
    EXPECT_EQ(report_.errors, std::vector<std::string>());
    EXPECT_EQ(records_, std::vector<std::string>{"A\tAlpha"});
}

TEST_F(ReadDictdPairTest, AppliesCorrections) {
    folder_.Write("my.dict", "A\n  Alpha\nB\n  Beta\n");
    folder_.Write("my.index", "b\tK\tJ\na\tA\tK\n");
    const std::string list = folder_.Write("changes.tsv", "A\tAlpha\nB\tBeta\tB\t\u00DF\n");
    Corrections corrections;
    corrections.ReadFile(PathOfUtf8(list), report_);
    ReadDictdPair(folder_.Path() / "my.index", records_, report_, &corrections);
    EXPECT_EQ(report_.errors, std::vector<std::string>());
    EXPECT_EQ(records_, std::vector<std::string>{"B\t\xDF"});
}

TEST_F(ReadDictdPairTest, AFolderWithAccentsInItsNameIsFine) {
    WriteCompressed("my.dict.dz", "A\n  Alpha\n");
    const std::filesystem::path inside = folder_.Path() / PathOfUtf8("W\xC3\xB6rter \xE5\xAD\x97");
    std::filesystem::create_directory(inside);
    std::filesystem::rename(folder_.Path() / "my.dict.dz", inside / "my.dict.dz");
    folder_.Write("my.index", "a\tA\tK\n");
    std::filesystem::rename(folder_.Path() / "my.index", inside / "my.index");
    ReadDictdPair(inside / "my.index", records_, report_);
    EXPECT_EQ(report_.errors, std::vector<std::string>());
    EXPECT_EQ(records_, std::vector<std::string>{"A\tAlpha"});
}

TEST_F(ReadDictdPairTest, FindsTheDictionaryWhateverTheCaseOfItsName) {
    folder_.Write("MY.Dict", "A\n  Alpha\n");
    folder_.Write("my.index", "a\tA\tK\n");
    Read();
    EXPECT_EQ(records_, std::vector<std::string>{"A\tAlpha"});
}

TEST_F(ReadDictdPairTest, AMissingHalfIsAnError) {
    folder_.Write("my.index", "a\tA\tK\n");
    Read();
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].ends_with("my.dict: cannot be read"));
}

TEST_F(ReadDictdPairTest, ADamagedCompressedFileIsAnError) {
    WriteCompressed("my.dict.dz", std::string(5000, 'x'));
    const std::string whole = ReadText(folder_.Path() / "my.dict.dz");
    folder_.Write("my.dict.dz", whole.substr(0, whole.size() / 2));
    folder_.Write("my.index", "a\tA\tK\n");
    Read();
    ASSERT_EQ(report_.errors.size(), 1U);
    EXPECT_TRUE(report_.errors[0].ends_with("my.dict.dz: is damaged"));
}

TEST_F(ReadDictdPairTest, AnEntryWithoutExpansionIsLeftOutWithAWarning) {
    folder_.Write("my.dict", "V\n  , \"v\"\n");
    folder_.Write("my.index", "v\tA\tK\n");
    Read();
    EXPECT_TRUE(report_.errors.empty());
    ASSERT_EQ(report_.warnings.size(), 1U);
    EXPECT_TRUE(report_.warnings[0].ends_with("my.index:1: no expansion; entry left out"));
}

}  // namespace
}  // namespace brelex
