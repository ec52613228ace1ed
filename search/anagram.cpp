// SPDX-License-Identifier: MIT
#include "search/anagram.h"

#include <algorithm>
#include <cmath>

#include "base/letter_case.h"
#include "base/number_text.h"
#include "base/windows1252.h"
#include "database/program_values.h"

namespace brelex {

namespace {

constexpr std::int32_t kRowsBetweenPauses = 100;
constexpr std::int32_t kFewestDistinctLetters = 2;

}  // namespace

std::int32_t GetNumOccr(char32_t character, std::u32string_view text) {
    const char32_t small = SmallLetterOf(character);
    return static_cast<std::int32_t>(std::count_if(
        text.begin(), text.end(), [small](char32_t c) { return SmallLetterOf(c) == small; }));
}

std::int32_t CountDistinctLetters(std::u32string_view text) {
    std::int32_t distinct = 0;
    for (char32_t letter = U'A'; letter <= U'Z'; ++letter) {
        distinct += GetNumOccr(letter, text) > 0 ? 1 : 0;
    }
    return distinct;
}

double Factorial(std::int32_t n) {
    double product = 1;
    for (std::int32_t i = 1; i <= n; ++i) {
        product *= i;
    }
    return product;
}

double CountRearrangements(std::u32string_view text) {
    if (text.empty()) {
        return 0;
    }
    const auto length = static_cast<std::int32_t>(text.size());
    double count = Factorial(length);
    if (CountDistinctLetters(text) == length) {
        return count;
    }
    std::u32string seen;
    for (const char32_t character : text) {
        if (GetNumOccr(character, seen) == 0) {
            count /= Factorial(GetNumOccr(character, text));
            seen.push_back(character);
        }
    }
    return count;
}

std::string RearrangementsText(std::u32string_view text, std::string_view separator) {
    const double count = CountRearrangements(text);
    return std::isfinite(count) ? FormatGrouped(count, separator) : "too many to count";
}

std::optional<Message> AnagramRefusalOf(std::u32string_view letters) {
    if (CountDistinctLetters(letters) >= kFewestDistinctLetters) {
        return std::nullopt;
    }
    return Message{"Type at least 2 distinct letters", kAppTitle, MessageIcon::Exclamation,
                   MessageButtons::Ok};
}

AnagramLetters::AnagramLetters(std::u32string_view letters) : length_(letters.size()) {
    // A letter outside the code page counts toward the length but has no byte, so no candidate
    // matches.
    for (std::size_t byte = 0; byte < occurrences_.size(); ++byte) {
        const char32_t character = CharacterOfByte(static_cast<unsigned char>(byte));
        occurrences_.at(byte) = static_cast<std::uint32_t>(GetNumOccr(character, letters));
        mayOccur_.at(byte) = occurrences_.at(byte) > 0 || character == U'-';
    }
    mayOccur_.at('\t') = false;  // a TAB ends the abbreviation, even if the user typed one
}

bool AnagramLetters::IsAnagram(std::string_view candidate) const {
    if (candidate.size() != length_) {
        return false;
    }
    std::array<std::uint32_t, 256> left = occurrences_;
    return std::all_of(candidate.begin(), candidate.end(), [&left](char c) {
        return left.at(SmallLetterOfByte(static_cast<unsigned char>(c)))-- > 0;
    });
}

bool AnagramLetters::IsHit(std::string_view recordText) const {
    std::size_t end = 0;
    while (end < recordText.size() && mayOccur_[static_cast<unsigned char>(recordText[end])]) {
        ++end;
    }
    // A shorter abbreviation cannot match. A longer one can match only if it has hyphens.
    if (end == recordText.size() || recordText[end] != '\t' || end < length_) {
        return false;
    }
    std::string candidate(recordText.substr(0, end));
    std::erase(candidate, '-');
    return IsAnagram(candidate);
}

std::vector<std::int32_t> FindAnagrams(const RowList& rows, const AnagramLetters& letters,
                                       WorkWatcher* watcher) {
    std::vector<std::int32_t> hits;
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        if (letters.IsHit(rows.RowText(row))) {
            hits.push_back(row);
            if (watcher != nullptr && !watcher->OnHit(row)) {
                break;
            }
        }
        if (watcher != nullptr && row % kRowsBetweenPauses == 0) {
            watcher->SetProgress(PercentOf(row, rows.RowCount()));
            if (!watcher->OnPause()) {
                break;
            }
        }
    }
    return hits;
}

}  // namespace brelex
