// SPDX-License-Identifier: MIT
#include "tools/dictionary_files.h"

#include <string_view>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/test_files.h"
#include "tools/dictd_reader.h"

namespace brelex {
namespace {

std::string BytesOf(const std::vector<DictionaryFile>& files, std::string_view ending) {
    for (const DictionaryFile& file : files) {
        if (file.ending == ending) {
            return file.bytes;
        }
    }
    ADD_FAILURE() << "no file ends in " << ending;
    return {};
}

Dictionary Of(std::vector<DictionaryEntry> entries) {
    return {"Title", "About it", "2005-02-03", std::move(entries)};
}

TEST(DictdFiles, PointFromTheIndexToTheArticles) {
    const auto files = DictdFiles(Of({{"RAM", "Random Access Memory"}}));
    const std::string index = BytesOf(files, ".index");
    const std::string articles = BytesOf(files, ".dict");
    EXPECT_TRUE(articles.ends_with("RAM\n  Random Access Memory\n"));
    EXPECT_TRUE(index.starts_with("00-database-allchars\tA\tY\n")) << index;
    // 98 bytes come before the article, which has 27.
    EXPECT_TRUE(index.ends_with("\nram\tBi\tb\tRAM\n")) << index;
}

TEST(DictdFiles, AreSortedByTheBytesOfTheSmallLetters) {
    const std::string index = BytesOf(
        DictdFiles(Of({{"b", "1"}, {"\u00C9", "2"}, {"A-B", "3"}, {"AB", "4"}, {"#", "5"}})),
        ".index");
    std::vector<std::string> keys;
    for (std::size_t at = 0; at < index.size(); at = index.find('\n', at) + 1) {
        const std::string key = index.substr(at, index.find('\t', at) - at);
        if (!key.starts_with("00-")) {
            keys.push_back(key);
        }
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"#", "a-b", "ab", "b", "\u00E9"}));
}

TEST(DictdFiles, KnowTheSmallLettersOfTheWholeCodePage) {
    const std::string index = BytesOf(
        DictdFiles(Of({{"\u00C0\u00D6\u00D7\u00D8\u00DE\u00DF\u0152\u0160\u017D\u0178", "x"}})),
        ".index");
    EXPECT_NE(index.find("\n\u00E0\u00F6\u00D7\u00F8\u00FE\u00DF\u0153\u0161\u017E\u00FF\t"),
              std::string::npos)
        << index;
}

TEST(DictdFiles, AreReadBackByTheBuilder) {
    const TestFolder folder;
    for (const DictionaryFile& file : DictdFiles(
             Of({{"TCP/IP", "Transmission (RFC 793)"}, {"AI", "One"}, {"AI", "Two\nlines"}}))) {
        folder.Write("my" + file.ending, file.bytes);
    }
    std::vector<std::string> records;
    InputReport report;
    ReadDictdPair(folder.Path() / "my.index", records, report);
    EXPECT_EQ(report.errors, std::vector<std::string>());
    EXPECT_EQ(records, (std::vector<std::string>{"AI\tOne", "AI\tTwo lines",
                                                 "TCP/IP\tTransmission (RFC 793)"}));
}

TEST(StardictFiles, HaveAnArticleForEachAbbreviation) {
    const auto files = StardictFiles(
        Of({{"b", "1"}, {"RAM", "Random"}, {"RAM", "Resource"}, {"A", "2"}, {"a", "3"}}));
    EXPECT_EQ(BytesOf(files, ".dict"), "231Random\nResource");
    EXPECT_EQ(BytesOf(files, ".idx"), std::string("A\0\0\0\0\0\0\0\0\1"
                                                  "a\0\0\0\0\1\0\0\0\1"
                                                  "b\0\0\0\0\2\0\0\0\1"
                                                  "RAM\0\0\0\0\3\0\0\0\x0F",
                                                  42));
    EXPECT_EQ(BytesOf(files, ".ifo"),
              "StarDict's dict ifo file\nversion=2.4.2\nbookname=Title\nwordcount=4\n"
              "idxfilesize=42\ndescription=About it\ndate=2005-02-03\nsametypesequence=m\n");
}

}  // namespace
}  // namespace brelex
