// SPDX-License-Identifier: MIT
#include "presentation/program_texts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/windows1252.h"

namespace brelex {
namespace {

std::vector<std::string> SmileyLines() {
    std::vector<std::string> lines;
    std::string_view text;
    const std::string all = SmileyDictionaryText();
    text = all;
    for (;;) {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

// The lines from the one that begins with `heading` to the next that begins in column 1, without
// both and without empty ones.
std::vector<std::string> Section(std::string_view heading) {
    const std::vector<std::string> lines = SmileyLines();
    auto line = std::find_if(lines.begin(), lines.end(),
                             [&](const std::string& text) { return text.starts_with(heading); });
    std::vector<std::string> rows;
    while (line != lines.end() && ++line != lines.end() &&
           (line->empty() || line->front() == ' ' || line->front() == '\t')) {
        if (!line->empty()) {
            rows.push_back(*line);
        }
    }
    return rows;
}

// A long smiley reaches beyond the first tab stop.
bool IsSmileyRow(const std::string& line) {
    constexpr std::size_t kLong = 8;
    const std::size_t end = std::min(line.find('\t', 1), line.size());
    const std::string between = end > kLong ? "\t" : "\t\t";
    return line.starts_with('\t') && end > 1 && line.substr(end).starts_with(between) &&
           line.find_first_not_of('\t', end) == end + between.size() &&
           line.find('\t', end + between.size()) == std::string::npos;
}

TEST(SmileyDictionary, HasItsSize) {
    const std::string text = SmileyDictionaryText();
    EXPECT_EQ(text.size() + SmileyLines().size() - 1, 6129U);  // with two characters to a line end
    EXPECT_EQ(SmileyLines().size(), 249U);
    EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
        return c == '\n' || c == '\t' || (c >= ' ' && c <= '~');
    }));
}

TEST(SmileyDictionary, HasItsSixSections) {
    std::vector<std::string> headings;
    for (const std::string& line : SmileyLines()) {
        for (const std::string_view heading :
             {"What is a Smiley?",
              "The basic construction of a smiley:", "The basic smileys:", "Some common Smileys:",
              "Note that a lot of these can be typed without noses to make midget smileys:",
              "Here are some less common ones:"}) {
            if (line == heading) {
                headings.push_back(line);
            }
        }
    }
    EXPECT_EQ(headings.size(), 6U);
    EXPECT_EQ(SmileyLines().front(), "What is a Smiley?");
    EXPECT_TRUE(SmileyLines()[2].starts_with(
        "A smiley is a combination of two or more keyboard characters that can emulate a wide "
        "range of "));
}

TEST(SmileyDictionary, TellsHowASmileyIsBuilt) {
    EXPECT_EQ(Section("The basic construction"),
              (std::vector<std::string>{"\tEyes\t\t: ; | =", "\tNose\t\t- * ^ (or blank)",
                                        "\tMouth\t\t> ) o ( <", "\tMale\t\t:-", "\tFemale\t\t>-",
                                        "\tInfinity\t\t8"}));
}

TEST(SmileyDictionary, ExplainsTheSevenBasicOnes) {
    const std::vector<std::string> rows = Section("The basic smileys:");
    const auto smileys = std::count_if(rows.begin(), rows.end(), [](const std::string& row) {
        return row.starts_with("  ") && row.find('\t') != std::string::npos;
    });
    EXPECT_EQ(smileys, 7);
    EXPECT_EQ(rows.front(),
              "  :-)\tYour basic smiley. This smiley is used to inflect a sarcastic or");
    for (const std::string& row : rows) {
        EXPECT_TRUE(row.starts_with("  ") || row.starts_with(" \t")) << row;
    }
}

TEST(SmileyDictionary, ListsTheCommonOnes) {
    const std::vector<std::string> rows = Section("Some common Smileys:");
    EXPECT_EQ(rows.size(), 73U);
    EXPECT_TRUE(std::all_of(rows.begin(), rows.end(), IsSmileyRow));
    EXPECT_EQ(rows.front(), "\t'-)\t\tWink");
    EXPECT_EQ(rows.back(), "\to:-)\t\tAngelic");
}

TEST(SmileyDictionary, ListsTheMidgets) {
    const std::vector<std::string> rows = Section("Note that");
    EXPECT_EQ(rows.size(), 13U);
    EXPECT_TRUE(std::all_of(rows.begin(), rows.end(), IsSmileyRow));
    EXPECT_EQ(rows.front(), "\t:(\t\tSad");
    EXPECT_EQ(rows.back(), "\t[]\t\tHugs");
}

TEST(SmileyDictionary, ListsTheLessCommonOnes) {
    const std::vector<std::string> rows = Section("Here are some less common ones:");
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), IsSmileyRow), 110);
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(),
                            [](const std::string& row) { return row.starts_with("\t\t\t"); }),
              1);
    ASSERT_EQ(rows.size(), 112U);
    EXPECT_EQ(rows.front(), "\t(:I\t\tAn egghead");
    EXPECT_EQ(rows[rows.size() - 2], "\t: *>\t\tA cat");
    EXPECT_EQ(rows.back(), "\t<//");
}

TEST(DonationLines, AreThirteen) {
    const std::vector<std::string> lines = DonationLines();
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines[0], "B e h i n d  t h e  S c e n e s");
    EXPECT_EQ(DecodeUtf8(lines[1]), std::u32string(22, U'\u00AF'));
    EXPECT_EQ(lines[2], "  \u2022  It costs the author to make Brevilexicon available for free");
    EXPECT_EQ(lines[4], "  \u2022  It took 100+ man hours to build the database alone");
    EXPECT_EQ(lines[6], "  \u2022  Anagrammatic Search facility is unique to Brevilexicon");
    EXPECT_EQ(lines[8], "  \u2022  Brevilexicon offers state-of-the-art reverse lookup facility");
    EXPECT_EQ(lines[10], "  \u2022  It took extra effort to make Brevilexicon lightweight");
    EXPECT_EQ(lines[12], "  \u2022  You can donate as little as $1 to support Brevilexicon");
    for (const std::size_t empty : {3U, 5U, 7U, 9U, 11U}) {
        EXPECT_EQ(lines[empty], "");
    }
}

TEST(CreditRecords, AreTen) {
    AppInfo info;
    info.supportAddress = "help@example.org";
    const std::vector<CreditRecord> credits = Credits(info);
    ASSERT_EQ(credits.size(), 10U);
    EXPECT_EQ(credits.front().text, "Brevilexicon");
    EXPECT_EQ(credits.front().pointSize, 12);
    EXPECT_EQ(DecodeUtf8(credits[1].text), std::u32string(11, U'\u2014'));
    EXPECT_EQ(DecodeUtf8(credits.back().text), std::u32string(14, U'\u2014'));
    EXPECT_EQ(credits[1].colour, 255U);
    EXPECT_EQ(credits.back().colour, 255U);
    for (const CreditRecord& credit : credits) {
        const bool isTitleOrRule = credit.text == "Brevilexicon" || credit.colour.has_value();
        EXPECT_EQ(credit.isBold, isTitleOrRule) << credit.text;
    }
    for (const char* text : {"Brevilexicon is shareware", "Suggestions for improvement are welcome",
                             "help@example.org"}) {
        EXPECT_EQ(std::count_if(credits.begin(), credits.end(),
                                [&](const CreditRecord& record) { return record.text == text; }),
                  1)
            << text;
    }
}

}  // namespace
}  // namespace brelex
