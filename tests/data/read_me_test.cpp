// SPDX-License-Identifier: MIT
// The numbers that data/README.md states.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/data/entry_files.h"

namespace brelex {
namespace {

// With a comma after the thousands.
std::string Grouped(std::size_t number) {
    std::string digits = std::to_string(number);
    if (digits.size() > 3) {
        digits.insert(digits.size() - 3, ",");
    }
    return digits;
}

// The cells of the first table row that begins with `first`.
std::vector<std::string> RowOf(std::string_view first) {
    std::vector<std::string> cells;
    for (const std::string& line : LinesOf(DataFolder() / "README.md")) {
        std::string_view rest = line;
        if (rest.starts_with("| " + std::string(first))) {
            rest.remove_prefix(1);
            while (!rest.empty()) {
                cells.emplace_back(TrimBlanks(TakePart(rest, '|')));
            }
            break;
        }
    }
    return cells;
}

TEST(ReadMeOfTheEntries, CountsTheEntriesOfEachFile) {
    std::size_t total = 0;
    for (const auto& file : EntryFiles()) {
        const std::size_t count = LinesOf(file).size();
        total += count;
        const std::string name = "`" + file.filename().string() + "`";
        const std::vector<std::string> row = RowOf(name);
        ASSERT_EQ(row.size(), 3U) << "data/README.md has no row for " << name;
        EXPECT_EQ(row[2], Grouped(count))
            << "data/README.md has to say that " << name << " has " << Grouped(count) << " entries";
    }
    const std::vector<std::string> row = RowOf("`*.tsv`");
    ASSERT_EQ(row.size(), 3U);
    EXPECT_EQ(row[1], Grouped(total))
        << "data/README.md has to say that all files have " << Grouped(total) << " entries";
}

TEST(ReadMeOfTheEntries, CountsTheCorrectedPackageInTens) {
    if (!HasPackage()) {
        GTEST_SKIP() << "the package is not there";
    }
    const std::string left = Grouped((CorrectedPackage().size() + 5) / 10 * 10);
    const std::vector<std::string> row = RowOf("V.E.R.A.");
    ASSERT_EQ(row.size(), 3U);
    EXPECT_NE(row[1].find("about " + left + " remain"), std::string::npos)
        << "data/README.md has to say that about " << left << " entries remain";
}

}  // namespace
}  // namespace brelex
