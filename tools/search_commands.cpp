// SPDX-License-Identifier: MIT
#include "tools/search_commands.h"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <variant>

#include "base/windows1252.h"
#include "database/record_text.h"
#include "search/anagram.h"
#include "search/database_search.h"
#include "search/prepared_search.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

// Says what the window would say, in the terms of a terminal and without the way to the help.
int Refuse(const Message& refusal, std::ostream& err) {
    constexpr std::string_view kInWindow = "Either uncheck the 'Search Whole Word Only' option or";
    std::string reason = refusal.text.substr(0, refusal.text.find("\n\n"));
    if (const std::size_t at = reason.find(kInWindow); at != std::string::npos) {
        reason.replace(at, kInWindow.size(), "Leave out --whole-word or");
    }
    PrintMessage(err, reason);
    return kFailed;
}

}  // namespace

int RunSearch(const std::string& database, const SearchOptions& options,
              const OutputOptions& output, std::ostream& out, std::ostream& err) {
    if (options.request.text.empty()) {
        PrintMessage(err, "the search text is empty");
        return kFailed;
    }
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const RecordStore& store = opened.store;
    const PreparedSearch prepared = PrepareSearch(options.request, store);
    if (const auto* const refusal = std::get_if<Message>(&prepared)) {
        return Refuse(*refusal, err);
    }
    const std::int32_t limit = options.all ? std::numeric_limits<std::int32_t>::max() : kMaxHits;
    const auto& finder = std::get<RecordFinder>(prepared);
    const SearchOutcome outcome =
        SearchDatabase(finder, store, RowOf(options.from), limit, nullptr);
    PrintRecords(
        store, outcome.hits, output,
        [&finder](std::string_view record) { return finder.MatchIn(record); }, out);
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

int RunAnagram(const std::string& database, const std::string& letters, const OutputOptions& output,
               std::ostream& out, std::ostream& err) {
    const std::u32string typed = DecodeUtf8(letters);
    if (const auto refusal = AnagramRefusalOf(typed)) {
        return Refuse(*refusal, err);
    }
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    const RecordStore& store = opened.store;
    const auto hits = AnagramFinder(store).Find(AnagramLetters(typed), nullptr);
    PrintRecords(
        store, hits, output, [](std::string_view record) { return ColumnText(record, 0); }, out);
    err << "Number of possible rearrangements: " << RearrangementsText(typed, ",") << "\n";
    return hits.empty() ? kNothingFound : kFound;
}

}  // namespace brelex
