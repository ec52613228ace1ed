// SPDX-License-Identifier: MIT
// Input: a byte of options (1: abbreviations, 2: match case, 4: whole word, 8: loose, the next two
// bits: the position), a byte for the first row, one for the last, one for the limit, the search
// text (UTF-8), a NUL, the rows as lines.
#include "search/record_finder.h"

#include "database/record_text.h"
#include "fuzz/fuzz_support.h"
#include "fuzz/plain_search.h"
#include "fuzz/search_options.h"
#include "search/database_search.h"
#include "search/whole_word.h"

namespace brelex {

namespace {

using Rows = std::vector<std::int32_t>;

// Follows a search and compares its hits with those expected.
class HitWatcher final : public WorkWatcher {
  public:
    // Ends the search at the hit `last`, which counts from 1, unless that is 0.
    HitWatcher(const Rows& expected, std::size_t last) : expected_(expected), last_(last) {}

    bool OnHit(std::int32_t row) override {
        Require(told_ < expected_.size() && row == expected_[told_], "each hit is told in turn");
        ++told_;
        return told_ != last_;
    }

    [[nodiscard]] std::size_t Told() const { return told_; }

  private:
    const Rows& expected_;
    std::size_t last_;
    std::size_t told_ = 0;
};

// Ends a search at the first pause.
class ImpatientWatcher final : public WorkWatcher {
  public:
    bool OnPause() override { return false; }
};

// Returns whether the record is a hit.
bool CheckHit(const RecordFinder& finder, const PlainSearch& search, std::string_view record) {
    const bool isHit = finder.IsHit(record);
    if (const auto expected = search.IsHit(record)) {
        Require(isHit == *expected, "a record is a hit if it is one by definition");
    }
    if (isHit) {
        const std::string_view match = finder.MatchIn(record);
        Require(match.empty() || (match.data() >= record.data() &&
                                  match.data() + match.size() <= record.data() + record.size()),
                "what matches is a part of the record");
    }
    return isHit;
}

// The rows of `all` from `first` on up to but not including `last`, at most `limit` of them.
Rows Part(const Rows& all, std::int32_t first, std::int32_t last, std::size_t limit) {
    Rows part;
    for (const std::int32_t row : all) {
        if (row >= first && row < last && part.size() < limit) {
            part.push_back(row);
        }
    }
    return part;
}

void CheckWholeSearch(const RecordFinder& finder, const RowList& rows, std::int32_t first,
                      std::int32_t limit, const Rows& all) {
    const Rows hits = Part(all, first, rows.RowCount(), all.size());
    const Rows expected = Part(hits, 0, rows.RowCount(), static_cast<std::size_t>(limit));
    HitWatcher watcher(expected, 0);
    for (WorkWatcher* const who :
         {static_cast<WorkWatcher*>(nullptr), static_cast<WorkWatcher*>(&watcher)}) {
        const SearchOutcome outcome = SearchDatabase(finder, rows, first, limit, who);
        Require(outcome.hits == expected, "a search returns the hits up to its limit");
        Require(outcome.limitReached == (hits.size() > expected.size()),
                "a search tells that there are more hits");
        Require(!outcome.limitReached || outcome.nextPosition == hits[expected.size()],
                "a search goes on at the next hit");
    }
    Require(watcher.Told() == expected.size(), "all hits are told");
}

// A search that is ended has the hits up to there.
void CheckEndedSearch(const RecordFinder& finder, const RowList& rows, std::size_t last,
                      const Rows& all) {
    const auto count = static_cast<std::int32_t>(all.size());
    HitWatcher watcher(all, last);
    const Rows hits = SearchDatabase(finder, rows, 0, count, &watcher).hits;
    Require(hits == Part(all, 0, rows.RowCount(), last == 0 ? all.size() : last),
            "a search ends at the hit at which it is ended");
    ImpatientWatcher impatient;
    const Rows first = SearchDatabase(finder, rows, 0, count, &impatient).hits;
    Require(first == Part(all, 0, 1, 1), "a search ends at the pause at which it is ended");
    const std::string text = ResultText(rows, hits);
    Require(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) >= hits.size(),
            "each hit is a line of the result");
}

// A word is whole in either case if it is by definition.
void CheckWholeWord(std::string_view field, std::string_view word) {
    Require(IsWholeWord(field, word, ComparisonMode::Text) ==
                HasPlainWord(Folded(CharactersOfBytes(field), false),
                             Folded(CharactersOfBytes(word), false)),
            "a word is whole if it is by definition");
}

}  // namespace

}  // namespace brelex

// Searches all rows, a range of them and with a limit, and compares with the definition of a hit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const unsigned options = input.Byte();
    const unsigned from = input.Byte();
    const unsigned to = input.Byte();
    const auto limit = static_cast<std::int32_t>(input.Byte() % 16);
    const brelex::SearchRequest request = brelex::RequestOf(options, input.Text());
    brelex::RecordStore rows;
    brelex::FillWithLines(input.Rest(), rows);
    const brelex::PlainSearch search(request);
    const auto finder = brelex::RecordFinder::Compile(request, rows);
    brelex::Require(finder.has_value() == search.IsValid(),
                    "a search text is refused only if it is no pattern");
    if (!finder) {
        return 0;
    }
    brelex::Rows hits;
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        if (brelex::CheckHit(*finder, search, rows.RowText(row))) {
            hits.push_back(row);
        }
    }
    const auto count = static_cast<unsigned>(rows.RowCount());
    const auto first = static_cast<std::int32_t>(from % (count + 1));
    const auto last = std::max(first, static_cast<std::int32_t>(count - to % (count + 1)));
    brelex::Rows found;
    const std::size_t most = static_cast<std::size_t>(limit) + 1;
    finder->FindHits(first, last, most, found);
    brelex::Require(found == brelex::Part(hits, first, last, most),
                    "a range of rows has the hits that its records are");
    brelex::CheckWholeSearch(*finder, rows, first, limit, hits);
    brelex::CheckWholeSearch(*finder, rows, 0, rows.RowCount(), hits);
    brelex::CheckEndedSearch(*finder, rows, static_cast<std::size_t>(limit), hits);
    brelex::CheckWholeWord(rows.RowText(first % rows.RowCount()), request.text);
    const brelex::RecordStore none;
    brelex::Require(brelex::SearchDatabase(*brelex::RecordFinder::Compile(request, none), none, 0,
                                           limit, nullptr)
                        .hits.empty(),
                    "no rows have no hits");
    return 0;
}
