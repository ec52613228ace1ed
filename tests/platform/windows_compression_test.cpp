// SPDX-License-Identifier: MIT
// Our expander and compressor against the system's own functions.
#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>
#include <lzexpand.h>

#include "database/szdd.h"
#include "platform/system/program_folder.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

// What LZCopy makes of a file: its result, and the bytes it wrote. Nothing if the file could not
// even be opened.
struct Expansion {
    LONG result = 0;
    std::string bytes;
};

std::optional<Expansion> ExpandWithSystem(const std::string& file) {
    const TestFolder folder;
    std::string source = folder.Write("source", file);
    std::string target = folder.Text() + "target";
    OFSTRUCT opened{};
    const INT from = LZOpenFileA(source.data(), &opened, OF_READ);
    const INT to = LZOpenFileA(target.data(), &opened, OF_CREATE);
    if (from < 0 || to < 0) {
        LZClose(from);
        LZClose(to);
        return std::nullopt;
    }
    Expansion expansion;
    expansion.result = LZCopy(from, to);
    LZClose(from);
    LZClose(to);
    expansion.bytes = ReadText(folder.Path() / "target");
    return expansion;
}

struct ContentCase {
    const char* name;
    std::string bytes;
};

std::string Repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

class CompressSzddOnWindowsTest : public testing::TestWithParam<ContentCase> {};

TEST_P(CompressSzddOnWindowsTest, TheSystemExpandsItAgain) {
    const auto expansion = ExpandWithSystem(CompressSzdd(GetParam().bytes));
    ASSERT_TRUE(expansion);
    EXPECT_GE(expansion->result, 0);
    EXPECT_EQ(expansion->bytes, GetParam().bytes);
}

// Lengths below, at and above a group of eight, the longest match and the ring.
INSTANTIATE_TEST_SUITE_P(
    Contents, CompressSzddOnWindowsTest,
    testing::Values(ContentCase{"OneByte", "x"}, ContentCase{"EightBytes", "abcdefgh"},
                    ContentCase{"NineBytes", "abcdefghi"},
                    ContentCase{"Blanks", Repeated(" ", 5000)},
                    ContentCase{"LongestMatches", Repeated("x", 18 * 40 + 1)},
                    ContentCase{"ARingOfText", Repeated("abcdefghijklmnop", 256)},
                    ContentCase{"MoreThanARing", Repeated("0123456789ABCDEFG", 900)},
                    ContentCase{"Incompressible", Incompressible(20000)},
                    ContentCase{"Zeros", std::string(10000, '\0')},
                    ContentCase{"ADatabase", ExpandedBytes(NumberedRecords(3000))}),
    CaseName());

TEST(CompressSzddOnWindows, TheSystemExpandsTheRealDatabase) {
    const std::string file = ReadText(ProgramFolder() + "Acronyms.dat");
    const auto expanded = ExpandSzdd(file);
    ASSERT_TRUE(expanded);
    ASSERT_GT(expanded->View().size(), 100000U) << "scripts/make_database.sh makes it";
    const auto expansion = ExpandWithSystem(file);
    ASSERT_TRUE(expansion);
    EXPECT_TRUE(expansion->bytes == expanded->View());
}

class ExpandSzddOnWindowsTest : public testing::TestWithParam<ContentCase> {};

TEST_P(ExpandSzddOnWindowsTest, DoesWhatTheSystemDoes) {
    const auto theirs = ExpandWithSystem(GetParam().bytes);
    const auto ours = ExpandSzdd(GetParam().bytes);
    ASSERT_TRUE(ours);
    ASSERT_TRUE(theirs);
    EXPECT_EQ(std::string(ours->View()), theirs->bytes);
}

std::string WithDeclaredLength(std::string file, char lowByte) {
    constexpr std::size_t kLengthAt = 10;
    file[kLengthAt] = lowByte;
    return file;
}

std::string Cut(std::string file, std::size_t bytes) {
    file.resize(file.size() - bytes);
    return file;
}

INSTANTIATE_TEST_SUITE_P(
    Files, ExpandSzddOnWindowsTest,
    testing::Values(ContentCase{"NotCompressedIsCopied", ExpandedBytes(NumberedRecords(20))},
                    ContentCase{"NothingIsCopied", ""},
                    ContentCase{"ShorterThanAHeaderIsCopied", std::string("SZDD\x88\xF0\x27\x33"
                                                                          "A",
                                                                          9)},
                    ContentCase{"AnotherSignatureIsCopied", "SZDX and more than fourteen bytes"},
                    ContentCase{"CutInAReference", Cut(CompressSzdd(Repeated("abcabcabd", 40)), 1)},
                    ContentCase{"CutBeforeAReference",
                                Cut(CompressSzdd(Repeated("abcabcabd", 40)), 2)},
                    ContentCase{"CutInLiterals", Cut(CompressSzdd(Incompressible(400)), 5)},
                    ContentCase{"ADeclaredLengthTooShort",
                                WithDeclaredLength(CompressSzdd(Incompressible(300)), 1)}),
    CaseName());

}  // namespace
}  // namespace brelex
