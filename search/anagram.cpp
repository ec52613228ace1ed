// SPDX-License-Identifier: MIT
#include "search/anagram.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <span>

#include "base/byte_table.h"
#include "base/letter_case.h"
#include "base/little_endian.h"
#include "base/number_text.h"
#include "base/scope.h"
#include "base/windows1252.h"
#include "database/program_values.h"

namespace brelex {

namespace {

constexpr std::int32_t kRowsBetweenPauses = 100;
constexpr std::int32_t kFewestDistinctLetters = 2;

// What each byte adds to a signature: any number, the same for both cases of a letter. Hyphens and
// NULs add nothing.
using SignatureParts = std::array<AnagramSignature, 256>;

SignatureParts MakeSignatureParts() {
    std::minstd_rand random;
    SignatureParts parts{};
    std::generate(parts.begin(), parts.end(),
                  [&random] { return static_cast<AnagramSignature>(random()); });
    parts.at('-') = 0;
    parts.at(0) = 0;
    return TableOfBytes([&parts](unsigned char byte) { return parts[SmallLetterOfByte(byte)]; });
}

const SignatureParts& Parts() {
    static const SignatureParts parts = MakeSignatureParts();
    return parts;
}

// The signature of the part of a text before its first TAB. If there is none, any number.
AnagramSignature SignatureOfBeginning(std::string_view text, const SignatureParts& parts) {
    constexpr std::uint64_t kEachByte = 0x0101010101010101;
    constexpr std::size_t kWord = sizeof(kEachByte);
    unsigned sum = 0;
    // Whole words, with no branch that depends on the length of a short abbreviation.
    for (; text.size() >= kWord; text.remove_prefix(kWord)) {
        auto word = ReadLittleEndian<std::uint64_t>(text);
        const std::uint64_t overTab = word ^ ('\t' * kEachByte);
        // The lowest bit that is set belongs to the first TAB.
        const std::uint64_t tabs = (overTab - kEachByte) & ~overTab & (0x80 * kEachByte);
        word &= tabs == 0 ? ~std::uint64_t{0} : (tabs ^ (tabs - 1)) >> 8U;
        for (std::size_t i = 0; i < kWord; ++i) {
            sum += parts[word >> (8 * i) & 0xFFU];
        }
        if (tabs != 0) {
            return static_cast<AnagramSignature>(sum);
        }
    }
    for (const char c : text.substr(0, text.find('\t'))) {
        sum += parts[static_cast<unsigned char>(c)];
    }
    return static_cast<AnagramSignature>(sum);
}

// Whether one of the signatures is the wanted one. Compares them all, which takes less time than
// stopping at the first.
bool HasSignature(std::span<const AnagramSignature> signatures, AnagramSignature wanted) {
    AnagramSignature any{};
    for (const AnagramSignature signature : signatures) {
        any |= static_cast<AnagramSignature>(signature == wanted);
    }
    return any != 0;
}

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
    for (std::int32_t i = 2; i <= n; ++i) {
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
    occurrences_ = TableOfBytes([letters](unsigned char byte) {
        return static_cast<std::uint32_t>(GetNumOccr(CharacterOfByte(byte), letters));
    });
    mayOccur_ =
        TableOfBytes([this](unsigned char byte) { return occurrences_[byte] > 0 || byte == '-'; });
    mayOccur_.at('\t') = false;  // a TAB ends the abbreviation, even if the user typed one
    for (const char32_t letter : letters) {
        if (const auto byte = ByteOfCharacter(letter)) {
            signature_ = static_cast<AnagramSignature>(signature_ + Parts()[*byte]);
        }
    }
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

// Signs the rows that are not signed yet.
void AnagramFinder::SignRowsBefore(std::int32_t end) {
    signatures_.resize(static_cast<std::size_t>(rows_.RowCount()));
    const SignatureParts& parts = Parts();
    std::string_view text = rows_.TextOfRows(signedRows_, rows_.RowCount());
    for (std::int32_t row = signedRows_; row < end; ++row) {
        signatures_[static_cast<std::size_t>(row)] = SignatureOfBeginning(text, parts);
        text.remove_prefix(rows_.RowText(row).size() + 1);
    }
    signedRows_ = std::max(signedRows_, end);
}

bool AnagramFinder::MayHaveHits(std::int32_t first, std::int32_t end, AnagramSignature wanted) {
    if (isFirst_) {
        return true;
    }
    SignRowsBefore(end);
    return HasSignature(
        std::span(signatures_)
            .subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(end - first)),
        wanted);
}

// Looks at the rows from `first` up to but not including `end`. Returns whether the work goes on.
bool AnagramFinder::FindAmong(std::int32_t first, std::int32_t end, const AnagramLetters& letters,
                              WorkWatcher* watcher, std::vector<std::int32_t>& hits) {
    if (!MayHaveHits(first, end, letters.Signature())) {
        return true;
    }
    for (std::int32_t row = first; row < end; ++row) {
        if (!letters.IsHit(rows_.RowText(row))) {
            continue;
        }
        hits.push_back(row);
        if (watcher != nullptr && !watcher->OnHit(row)) {
            return false;
        }
    }
    return true;
}

std::vector<std::int32_t> AnagramFinder::Find(const AnagramLetters& letters, WorkWatcher* watcher) {
    const OnLeaving next([this] { isFirst_ = false; });
    std::vector<std::int32_t> hits;
    for (std::int32_t row = 0; row < rows_.RowCount();) {
        // The rows up to the next pause, including the one after which it comes.
        const std::int32_t past = row % kRowsBetweenPauses;
        const std::int32_t left = past == 0 ? 0 : kRowsBetweenPauses - past;
        const std::int32_t last = std::min(row + left, rows_.RowCount() - 1);
        if (!FindAmong(row, last + 1, letters, watcher, hits)) {
            break;
        }
        if (watcher != nullptr && last % kRowsBetweenPauses == 0) {
            watcher->SetProgress(PercentOf(last, rows_.RowCount()));
            if (!watcher->OnPause()) {
                break;
            }
        }
        row = last + 1;
    }
    return hits;
}

}  // namespace brelex
