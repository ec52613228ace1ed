// SPDX-License-Identifier: MIT
// The entries in data/ themselves, as they are in the source tree, and the package as corrected
// there.
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/text.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "search/search_list.h"
#include "tests/data/entry_files.h"
#include "tests/data/entry_rules.h"
#include "tools/build_command.h"
#include "tools/input_entries.h"

namespace brelex {
namespace {

TEST(Entries, ThereAreThreeThousandAndMore) {
    int count = 0;
    ForEachEntry([&](const std::string&, const std::string&) { ++count; });
    EXPECT_GE(count, 3000);
    EXPECT_EQ(EntryFiles().size(), 15U);
}

TEST(Entries, HaveTwoPartsWithoutStrayBlanks) {
    ForEachEntry([](const std::string& line, const std::string& place) {
        EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 1) << place;
        EXPECT_EQ(line.find("  "), std::string::npos) << place;
        for (const std::string_view part : {GetAbbreviation(line), GetExpansion(line)}) {
            EXPECT_FALSE(part.empty() || part.starts_with(' ') || part.ends_with(' ')) << place;
        }
    });
}

TEST(Entries, CanBeStoredAndHavePlainAbbreviations) {
    ForEachEntry([](const std::string& line, const std::string& place) {
        std::vector<std::string> records;
        InputReport report;
        AddEntry(GetAbbreviation(line), GetExpansion(line), place, records, report);
        EXPECT_EQ(report.errors, std::vector<std::string>());
        EXPECT_EQ(report.warnings, std::vector<std::string>());
        for (const char c : GetAbbreviation(line)) {
            EXPECT_TRUE(c >= ' ' && c <= '~') << place;
        }
    });
}

TEST(Entries, EndInANoteThatIsClosed) {
    ForEachEntry([](const std::string& line, const std::string& place) {
        EXPECT_TRUE(HasBalancedBrackets(GetExpansion(line)))
            << place << ": a parenthesis is not closed, or not opened";
        EXPECT_FALSE(NoteItems(GetExpansion(line)).empty())
            << place << ": there is no note in parentheses at the end";
    });
}

TEST(Entries, NameFieldsInTheirNotesAsTheListDoes) {
    const std::vector<std::string> lines = LinesOf(DataFolder() / "fields.txt");
    EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end()));
    const std::set<std::string_view> fields(lines.begin(), lines.end());
    EXPECT_EQ(fields.size(), lines.size()) << "a field is listed twice";
    ForEachEntry([&](const std::string& line, const std::string& place) {
        for (const std::string_view item : NoteItems(GetExpansion(line))) {
            const bool small = !item.empty() && item.front() >= 'a' && item.front() <= 'z';
            EXPECT_TRUE(!small || fields.contains(item))
                << place << ": " << item << " is not in fields.txt";
        }
    });
}

TEST(Entries, WriteSmallWordsInSmallLettersButForTheKnownOnes) {
    const std::vector<std::string> lines = LinesOf(DataFolder() / "unusual-capitals.txt");
    std::set<std::string> unusual(lines.begin(), lines.end());
    ForEachEntry([&](const std::string& line, const std::string& place) {
        const std::string_view word = SmallWordInCapitals(GetExpansion(line));
        if (!word.empty()) {
            EXPECT_EQ(unusual.erase(std::string(WithoutNotes(line))), 1U)
                << place << ": write " << word << " in small letters";
        }
    });
    for (const std::string& line : unusual) {
        ADD_FAILURE() << "no such entry, or its small words are usual: " << line;
    }
}

TEST(Entries, AreInTheOrderOfTheList) {
    for (const auto& file : EntryFiles()) {
        const std::vector<std::string> lines = LinesOf(file);
        for (std::size_t i = 1; i < lines.size(); ++i) {
            EXPECT_FALSE(std::is_gt(
                CompareTexts(BytesOfUtf8(lines[i - 1]).bytes, BytesOfUtf8(lines[i]).bytes)))
                << file.filename() << ": " << lines[i - 1] << " stands before " << lines[i];
        }
    }
}

TEST(Entries, StandThereOnce) {
    std::map<std::string, std::string> seen;
    ForEachEntry([&](const std::string& line, const std::string& place) {
        const auto [first, isNew] =
            seen.try_emplace(ComparableText(GetAbbreviation(line), GetExpansion(line)), place);
        EXPECT_TRUE(isNew) << place << " is as " << first->second;
    });
}

TEST(Entries, AreNotInThePackageInTheSameWords) {
    if (!HasPackage()) {
        GTEST_SKIP() << "the package is not there";
    }
    std::map<std::string, std::string> package;
    for (const std::string& text : CorrectedPackage()) {
        package.try_emplace(ComparableText(GetAbbreviation(text), GetExpansion(text)), text);
    }
    ForEachEntry([&](const std::string& line, const std::string& place) {
        const auto found = package.find(ComparableText(GetAbbreviation(line), GetExpansion(line)));
        EXPECT_TRUE(found == package.end()) << place << " is there as " << found->second;
    });
}

TEST(Corrections, ChangeSomethingAndAreInTheOrderOfTheList) {
    std::string before;
    for (const std::string& line : LinesOf(CorrectionsFile())) {
        std::string_view rest = line;
        std::string entry(TakePart(rest, '\t'));
        entry += "\t" + std::string(TakePart(rest, '\t'));
        EXPECT_NE(entry, rest) << "changes nothing";
        EXPECT_TRUE(std::is_lt(CompareTexts(BytesOfUtf8(before).bytes, BytesOfUtf8(entry).bytes)))
            << before << " stands before " << entry;
        before = std::move(entry);
    }
}

TEST(Corrections, MatchThePackageAndLeaveNoKnownFaults) {
    if (!HasPackage()) {
        GTEST_SKIP() << "the package is not there";
    }
    for (const std::string& entry : CorrectedPackage()) {
        for (const std::string_view part : {GetAbbreviation(entry), GetExpansion(entry)}) {
            EXPECT_EQ(part, TrimWhitespace(part)) << "blanks around it: " << entry;
            EXPECT_EQ(part.find_first_of("\t\r\n"), std::string_view::npos) << entry;
        }
        EXPECT_NE(TrimWhitespace(WithoutNotes(GetExpansion(entry))), "???") << entry;
        EXPECT_TRUE(HasBalancedBrackets(GetExpansion(entry))) << entry;
    }
}

TEST(Entries, HavePlausibleInitialsButForTheKnownOnes) {
    const std::vector<std::string> lines = LinesOf(DataFolder() / "unusual-initials.txt");
    std::set<std::string> unusual(lines.begin(), lines.end());
    EXPECT_FALSE(unusual.empty());
    ForEachEntry([&](const std::string& line, const std::string& place) {
        if (!HasPlausibleInitials(GetAbbreviation(line), GetExpansion(line))) {
            EXPECT_EQ(unusual.erase(line), 1U) << place;
        }
    });
    for (const std::string& line : unusual) {
        ADD_FAILURE() << "no such entry, or its initials are usual: " << line;
    }
}

TEST(SearchWords, FitTheHeaderAndFindSomething) {
    const std::vector<std::string> words = LinesOf(DataFolder() / "search-words.txt");
    EXPECT_GE(words.size(), 40U);
    EXPECT_LE(words.size(), 60U);
    std::string commaSeparated;
    for (const std::string& word : words) {
        EXPECT_EQ(word.find('1'), std::string::npos) << word;
        commaSeparated += word + ",";
        int hits = 0;
        ForEachEntry([&](const std::string& line, const std::string&) {
            std::string small = line;
            std::transform(small.begin(), small.end(), small.begin(), [](char c) {
                return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            });
            hits += small.find(word) != std::string::npos ? 1 : 0;
        });
        EXPECT_GE(hits, 1) << word;
    }
    const EncodedSearchList stored = EncodeSearchList(commaSeparated);
    ASSERT_EQ(stored.reason, "");
    EXPECT_EQ(SearchListItems(stored.list).size(), words.size());
}

}  // namespace
}  // namespace brelex
