// SPDX-License-Identifier: MIT
#include "tools/search_commands.h"

#include <limits>
#include <variant>

#include "base/windows1252.h"
#include "search/anagram.h"
#include "search/database_search.h"
#include "search/prepared_search.h"
#include "tools/json_records.h"
#include "tools/open_database.h"

namespace brelex {

int RunSearch(const std::string& database, const SearchOptions& options, std::ostream& out,
              std::ostream& err) {
    if (options.request.text.empty()) {
        err << "brelex: the search text is empty\n";
        return kFailed;
    }
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const RecordStore& store = opened.store;
    const PreparedSearch prepared = PrepareSearch(options.request, store);
    if (const auto* const refusal = std::get_if<Message>(&prepared)) {
        err << refusal->text << "\n";
        return kFailed;
    }
    const std::int32_t limit = options.all ? std::numeric_limits<std::int32_t>::max() : kMaxHits;
    const SearchOutcome outcome = SearchDatabase(std::get<RecordFinder>(prepared), store,
                                                 RowOf(options.from), limit, nullptr);
    if (options.json) {
        PrintJsonRecords(store, outcome.hits, out);
    } else {
        for (const std::int32_t row : outcome.hits) {
            out << Utf8OfBytes(store.RowText(row)) << "\n";
        }
    }
    if (outcome.hits.empty()) {
        err << kNothingFoundText << "\n";
    }
    err << NumberOfHitsText(static_cast<std::int32_t>(outcome.hits.size())) << "\n";
    if (outcome.limitReached) {
        err << "There are more hits: continue with --from "
            << TextOf(RecordNumberOf(outcome.nextPosition)) << ", or use --all.\n";
    }
    return outcome.hits.empty() ? kNothingFound : kFound;
}

int RunAnagram(const std::string& database, const std::string& letters, bool json,
               std::ostream& out, std::ostream& err) {
    const std::u32string typed = DecodeUtf8(letters);
    if (const auto refusal = AnagramRefusalOf(typed)) {
        err << refusal->text << "\n";
        return kFailed;
    }
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const RecordStore& store = opened.store;
    const auto hits = AnagramFinder(store).Find(AnagramLetters(typed), nullptr);
    if (json) {
        PrintJsonRecords(store, hits, out);
    } else {
        for (const std::int32_t row : hits) {
            out << TextOf(RecordNumberOf(row)) << "\t" << Utf8OfBytes(store.RowText(row)) << "\n";
        }
    }
    err << "Number of possible rearrangements: " << RearrangementsText(typed, ",") << "\n";
    return hits.empty() ? kNothingFound : kFound;
}

}  // namespace brelex
