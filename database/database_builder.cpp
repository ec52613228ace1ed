// SPDX-License-Identifier: MIT
#include "database/database_builder.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <utility>

#include "base/calendar_day.h"
#include "base/little_endian.h"
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
    std::string letters;
    for (const std::string_view record : records) {
        const std::string_view abbreviation = GetAbbreviation(record);
        if (!abbreviation.empty()) {
            letters.push_back(AsciiCapital(abbreviation.front()));
        }
    }
    std::map<char, std::int32_t> counts;
    for (const char letter : letters) {
        ++counts[letter];
    }
    // A second pass, so that the first in the file wins among equally frequent letters.
    for (const char letter : letters) {
        const std::int32_t count = counts[letter];
        if (count > header.CommonFirstLetterCount) {
            header.CommonFirstLetter = letter;
            header.CommonFirstLetterCount = count;
        }
    }
}

// Counts by exact spelling. Records whose abbreviations differ only in case may be interleaved, so
// equal ones are not always adjacent.
void CountExpansions(const std::vector<std::string_view>& records, DatabaseHeader& header) {
    std::unordered_map<std::string_view, std::int32_t> counts;
    for (const std::string_view record : records) {
        ++counts[GetAbbreviation(record)];
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        const std::int32_t count = counts[GetAbbreviation(records[i])];
        if (count > header.MostExpansionsCount) {
            header.MostExpansionsCount = count;
            header.MostExpansionsIndex = Int32(i);
        }
    }
}

// A record and the beginning of its text, which is enough for most comparisons. To look at the
// texts themselves takes much longer, because they lie all over the memory.
struct SortItem {
    std::uint64_t beginning;  // the weights of its first bytes, the first of them on top
    const std::string* record;
    bool isPlain;  // whether all these bytes are
};

SortItem SortItemOf(const std::string& record) {
    std::array<char, sizeof(std::uint64_t)> weights{};  // the end weighs less than any byte
    const std::string_view first = std::string_view(record).substr(0, weights.size());
    const auto end = std::transform(first.begin(), first.end(), weights.rbegin(),
                                    [](char c) { return static_cast<char>(PlainWeightOf(c)); });
    return {ReadLittleEndian<std::uint64_t>({weights.data(), weights.size()}), &record,
            std::find(weights.rbegin(), end, 0) == end};
}

bool ComesBefore(const SortItem& a, const SortItem& b) {
    if (a.beginning != b.beginning && a.isPlain && b.isPlain) {
        return a.beginning < b.beginning;
    }
    const auto order = CompareTexts(*a.record, *b.record);
    return std::is_eq(order) ? *a.record < *b.record : std::is_lt(order);
}

// The records in their final order, each once.
std::vector<const std::string*> UniqueInOrder(const std::vector<std::string>& records) {
    std::vector<SortItem> items;
    items.reserve(records.size());
    for (const std::string& record : records) {
        items.push_back(SortItemOf(record));
    }
    std::sort(items.begin(), items.end(), ComesBefore);
    std::vector<const std::string*> unique;
    unique.reserve(items.size());
    for (const SortItem& item : items) {
        if (unique.empty() || *unique.back() != *item.record) {
            unique.push_back(item.record);
        }
    }
    return unique;
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
    const std::vector<const std::string*> records = UniqueInOrder(content.records);
    BuiltDatabase built;
    built.duplicatesDropped = content.records.size() - records.size();
    std::string& expanded = built.expanded;
    expanded.resize(kHeaderBytes);  // the header comes last
    for (const std::string* record : records) {
        assert(!record->empty() && record->find('\0') == std::string::npos);
        expanded.append(*record).push_back('\0');
    }
    const std::string_view block = std::string_view(expanded).substr(kHeaderBytes);
    // From here on in the block, where they stand in the order in which they are read.
    std::vector<std::string_view> texts;
    texts.reserve(records.size());
    std::size_t position = 0;
    for (const std::string* record : records) {
        texts.push_back(block.substr(position, record->size()));
        position += record->size() + 1;
    }
    content.records = {};  // what is left to do takes enough memory without them
    built.header = ComputeStatistics(texts);
    built.header.Version = content.version;
    built.header.ReleaseDate = CountOfDay(content.releaseDate);
    built.header.DataSize = Int32(block.size());
    built.header.DataCRC = GetCRCFromByteArray(block);
    built.header.SearchListText = content.searchList;
    built.header.SearchListText.resize(kSearchListLength, ' ');
    expanded.replace(0, kHeaderBytes, EncodeHeader(built.header));
    return built;
}

}  // namespace brelex
