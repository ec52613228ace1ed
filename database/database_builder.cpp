// SPDX-License-Identifier: MIT
#include "database/database_builder.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/calendar_day.h"
#include "base/text.h"
#include "database/modCRC32.h"
#include "database/record_text.h"
#include "database/string_order.h"

namespace brelex {

namespace {

std::int32_t Int32(std::size_t number) {
    return static_cast<std::int32_t>(number);
}

std::int32_t NearestAverage(std::size_t sum, std::size_t count) {
    return count == 0 ? 0 : Int32((2 * sum + count) / (2 * count));
}

void ComputeLengths(const std::vector<std::string_view>& records, DatabaseHeader& header) {
    std::size_t abbreviationSum = 0;
    std::size_t expansionSum = 0;
    std::size_t mostAbbreviationLetters = 0;
    std::size_t mostExpansionLetters = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const std::string_view abbreviation = GetAbbreviation(records[i]);
        const std::string_view expansion = GetExpansion(records[i]);
        abbreviationSum += abbreviation.size();
        expansionSum += expansion.size();
        header.MaxAbbrvLength = std::max(header.MaxAbbrvLength, Int32(abbreviation.size()));
        header.MaxExpansionLength = std::max(header.MaxExpansionLength, Int32(expansion.size()));
        const std::size_t abbreviationLetters = LetterCount(abbreviation);
        const std::size_t expansionLetters = LetterCount(expansion);
        if (abbreviationLetters > mostAbbreviationLetters) {
            mostAbbreviationLetters = abbreviationLetters;
            header.LongestAbbrvIndex = Int32(i);
        }
        if (expansionLetters > mostExpansionLetters) {
            mostExpansionLetters = expansionLetters;
            header.LongestExpansionIndex = Int32(i);
        }
    }
    header.AvgAbbrvLength = NearestAverage(abbreviationSum, records.size());
    header.AvgExpansionLength = NearestAverage(expansionSum, records.size());
}

void CountFirstLetters(const std::vector<std::string_view>& records, DatabaseHeader& header) {
    std::array<std::int32_t, 256> counts{};
    for (const std::string_view record : records) {
        const std::string_view abbreviation = GetAbbreviation(record);
        if (!abbreviation.empty()) {
            ++counts[static_cast<unsigned char>(AsciiCapital(abbreviation.front()))];
        }
    }
    // A second pass, so that the first in the file wins among equally frequent letters.
    for (const std::string_view record : records) {
        const std::string_view abbreviation = GetAbbreviation(record);
        const char letter = abbreviation.empty() ? ' ' : AsciiCapital(abbreviation.front());
        const std::int32_t count = counts[static_cast<unsigned char>(letter)];
        if (count > header.CommonFirstLetterCount) {
            header.CommonFirstLetter = letter;
            header.CommonFirstLetterCount = count;
        }
    }
}

// Counts by exact spelling. Records whose abbreviations differ only in case may be interleaved, so
// equal ones are not always adjacent.
void CountExpansions(const std::vector<std::string_view>& records, DatabaseHeader& header) {
    std::vector<std::pair<std::string_view, std::size_t>> byAbbreviation;
    byAbbreviation.reserve(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        byAbbreviation.emplace_back(GetAbbreviation(records[i]), i);
    }
    std::sort(byAbbreviation.begin(), byAbbreviation.end());
    std::size_t begin = 0;
    while (begin < byAbbreviation.size()) {
        std::size_t end = begin;
        while (end < byAbbreviation.size() &&
               byAbbreviation[end].first == byAbbreviation[begin].first) {
            ++end;
        }
        const std::int32_t count = Int32(end - begin);
        const std::int32_t first = Int32(byAbbreviation[begin].second);
        const bool more = count > header.MostExpansionsCount;
        const bool sameButEarlier =
            count == header.MostExpansionsCount && first < header.MostExpansionsIndex;
        if (more || sameButEarlier) {
            header.MostExpansionsCount = count;
            header.MostExpansionsIndex = first;
        }
        begin = end;
    }
}

}  // namespace

DatabaseHeader ComputeStatistics(const std::vector<std::string_view>& records) {
    DatabaseHeader header;
    header.RecordCount = Int32(records.size());
    ComputeLengths(records, header);
    CountFirstLetters(records, header);
    CountExpansions(records, header);
    return header;
}

BuiltDatabase BuildDatabase(DatabaseContent content) {
    std::vector<std::string>& records = content.records;
    std::sort(records.begin(), records.end(), [](const std::string& a, const std::string& b) {
        const auto order = CompareTexts(a, b);
        return std::is_eq(order) ? a < b : std::is_lt(order);
    });
    const auto unique = std::unique(records.begin(), records.end());
    BuiltDatabase built;
    built.duplicatesDropped = static_cast<std::size_t>(records.end() - unique);
    records.erase(unique, records.end());

    std::string block;
    for (const std::string& record : records) {
        assert(!record.empty() && record.find('\0') == std::string::npos);
        block += record;
        block.push_back('\0');
    }
    built.header = ComputeStatistics({records.begin(), records.end()});
    built.header.Version = content.version;
    built.header.ReleaseDate = CountOfDay(content.releaseDate);
    built.header.DataSize = Int32(block.size());
    built.header.DataCRC = GetCRCFromByteArray(block);
    built.header.SearchListText = content.searchList;
    built.header.SearchListText.resize(kSearchListLength, ' ');
    built.expanded = EncodeHeader(built.header) + block;
    return built;
}

}  // namespace brelex
