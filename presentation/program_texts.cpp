// SPDX-License-Identifier: MIT
#include "presentation/program_texts.h"

#include <string_view>

#include "embedded/kSmileyDictionary.h"

namespace brelex {

namespace {

constexpr unsigned kRed = 255;
constexpr int kTitlePoints = 12;

std::string Repeated(std::string_view character, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += character;
    }
    return text;
}

std::string Bulleted(std::string_view text) {
    return "  \u2022  " + std::string(text);
}

}  // namespace

std::vector<std::string> DonationLines() {
    return {"B e h i n d  t h e  S c e n e s",
            Repeated("\u00AF", 22),
            Bulleted("It costs the author to make Brevilexicon available for free"),
            "",
            Bulleted("It took 100+ man hours to build the database alone"),
            "",
            Bulleted("Anagrammatic Search facility is unique to Brevilexicon"),
            "",
            Bulleted("Brevilexicon offers state-of-the-art reverse lookup facility"),
            "",
            Bulleted("It took extra effort to make Brevilexicon lightweight"),
            "",
            Bulleted("You can donate as little as $1 to support Brevilexicon")};
}

std::vector<CreditRecord> Credits(const AppInfo& info) {
    const auto plain = [](std::string text) {
        return CreditRecord{.text = std::move(text), .colour = std::nullopt};
    };
    const auto rule = [](int dashes) {
        return CreditRecord{.text = Repeated("\u2014", dashes), .isBold = true, .colour = kRed};
    };
    return {{.text = kAppTitle, .pointSize = kTitlePoints, .isBold = true, .colour = std::nullopt},
            rule(11),
            plain("Program, help and pictures by the Brevilexicon developers"),
            plain("Entries by them and from V.E.R.A. by Oliver Heidelbach"),
            plain("Licenses: see the help, or type brelex --licenses"),
            plain("Dedicated to everyone who has to ask what it stands for"),
            plain("Brevilexicon is shareware"),
            plain("Suggestions for improvement are welcome"),
            plain(info.supportAddress),
            rule(14)};
}

std::string SmileyDictionaryText() {
    std::string_view text = kSmileyDictionary;
    text.remove_suffix(1);  // the source file ends with a line end, as text files do
    return std::string(text);
}

}  // namespace brelex
