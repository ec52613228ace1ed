// SPDX-License-Identifier: MIT
#include "lookup/desktop_answers.h"

#include <algorithm>
#include <compare>

#include "base/text.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "lookup/prefix_search.h"

namespace brelex {

namespace {

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

// Adds the rows from the first one on that begins with `text`, as long as they do.
void AddRowsBeginning(const RowList& rows, std::string_view text,
                      std::vector<std::int32_t>& answers) {
    std::int32_t row = FindFirstByPrefix(rows, text);
    for (; row < rows.RowCount() && answers.size() < kMostAnswers; ++row) {
        const std::string_view record = rows.RowText(row);
        if (!EqualIgnoringCase(record.substr(0, text.size()), text)) {
            return;
        }
        const bool isNew = std::none_of(answers.begin(), answers.end(), [&](std::int32_t other) {
            return rows.RowText(other) == record;
        });
        if (isNew) {
            answers.push_back(row);
        }
    }
}

}  // namespace

std::vector<std::int32_t> AnswersTo(const RowList& rows, std::string_view typed) {
    const auto [text, complete] = BytesOfUtf8(TrimBlanks(typed));
    if (text.empty() || !complete || text.size() > kLongestQuestion ||
        std::any_of(text.begin(), text.end(), IsControl)) {
        return {};
    }
    // A TAB follows the abbreviation. Some characters weigh less, so that entries with a longer
    // abbreviation may come first in the list.
    std::vector<std::int32_t> answers;
    AddRowsBeginning(rows, text + '\t', answers);
    AddRowsBeginning(rows, text, answers);
    return answers;
}

std::string AnswerId(std::string_view record) {
    return Utf8OfBytes(record);
}

std::optional<std::int32_t> RowOfAnswer(const RowList& rows, std::string_view id) {
    const auto [record, complete] = BytesOfUtf8(id);
    if (!complete) {
        return std::nullopt;
    }
    std::int32_t low = 0;
    std::int32_t count = rows.RowCount();
    while (count > 0) {
        const std::int32_t half = count / 2;
        if (std::is_lt(CompareTexts(rows.RowText(low + half), record))) {
            low += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    // Records that differ only in case are equal to each other.
    for (; low < rows.RowCount() && EqualIgnoringCase(rows.RowText(low), record); ++low) {
        if (rows.RowText(low) == record) {
            return low;
        }
    }
    return std::nullopt;
}

std::int32_t RowToShow(const RowList& rows, std::string_view id) {
    if (const auto row = RowOfAnswer(rows, id)) {
        return *row;
    }
    const std::string abbreviation = BytesOfUtf8(id.substr(0, id.find('\t'))).bytes;
    return FindFirstByPrefix(rows, std::string_view(abbreviation).substr(0, kLongestQuestion));
}

}  // namespace brelex
