// SPDX-License-Identifier: MIT
// Input: a byte for the pause at which the second search ends (0: at none), letters (UTF-8), a NUL,
// more letters, a NUL, the rows as lines.
#include "search/anagram.h"

#include "base/letter_case.h"
#include "base/windows1252.h"
#include "fuzz/fuzz_support.h"

namespace brelex {

namespace {

using Rows = std::vector<std::int32_t>;

std::u32string Sorted(std::u32string letters) {
    letters = SmallLetters(letters);
    std::sort(letters.begin(), letters.end());
    return letters;
}

// The rows whose abbreviations have the same letters, which is what an anagram is.
Rows PlainAnagrams(const RowList& rows, const std::u32string& letters) {
    Rows hits;
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        const std::string_view record = rows.RowText(row);
        const std::size_t tab = record.find('\t');
        std::u32string abbreviation;
        for (const char c : record.substr(0, tab)) {
            if (c != '-') {
                abbreviation.push_back(CharacterOfByte(static_cast<unsigned char>(c)));
            }
        }
        if (tab != std::string_view::npos && Sorted(abbreviation) == Sorted(letters)) {
            hits.push_back(row);
        }
    }
    return hits;
}

// Ends a search at a pause, and counts the hits that it is told of.
class PauseWatcher final : public WorkWatcher {
  public:
    explicit PauseWatcher(unsigned endsAt) : endsAt_(endsAt) {}

    void SetProgress(int percent) override {
        Require(percent >= percent_ && percent <= 100, "progress is made");
        percent_ = percent;
    }

    bool OnHit(std::int32_t /*row*/) override {
        ++hits_;
        return true;
    }

    bool OnPause() override { return ++pauses_ != endsAt_; }

    [[nodiscard]] std::size_t Hits() const { return hits_; }

    [[nodiscard]] bool HasEnded() const { return endsAt_ != 0 && pauses_ >= endsAt_; }

  private:
    unsigned endsAt_;
    unsigned pauses_ = 0;
    int percent_ = 0;
    std::size_t hits_ = 0;
};

void Search(AnagramFinder& finder, const RowList& rows, const std::u32string& letters,
            unsigned endsAt) {
    PauseWatcher watcher(endsAt);
    const Rows found = finder.Find(AnagramLetters(letters), &watcher);
    Rows expected = PlainAnagrams(rows, letters);
    Require(found.size() == watcher.Hits(), "all hits are told");
    if (watcher.HasEnded()) {
        expected.resize(std::min(expected.size(), found.size()));
    }
    Require(found == expected, "an anagram has the same letters");
}

}  // namespace

}  // namespace brelex

// Searches the same rows several times, because later searches use what earlier ones have kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const unsigned endsAt = input.Byte();
    const std::u32string letters = brelex::DecodeUtf8(input.Text());
    const std::u32string more = brelex::DecodeUtf8(input.Text());
    brelex::RecordStore rows;
    brelex::FillWithLines(input.Rest(), rows);
    brelex::AnagramFinder finder(rows);
    brelex::Search(finder, rows, letters, 0);
    brelex::Search(finder, rows, more, endsAt);
    brelex::Search(finder, rows, letters, 0);
    brelex::Search(finder, rows, more, 0);
    // Beyond that many letters, the order decides how the divisions are rounded.
    constexpr std::size_t kLettersCountedExactly = 18;
    brelex::Require(letters.size() > kLettersCountedExactly ||
                        brelex::RearrangementsText(letters, ",") ==
                            brelex::RearrangementsText(brelex::Sorted(letters), ","),
                    "the number of rearrangements does not depend on the order");
    (void)brelex::AnagramRefusalOf(letters);
    return 0;
}
