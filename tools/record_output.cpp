// SPDX-License-Identifier: MIT
#include "tools/record_output.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "base/windows1252.h"
#include "database/record_number.h"
#include "database/record_text.h"
#include "tools/json_records.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

constexpr std::size_t kGap = 2;  // between columns

std::string NumberOf(std::int32_t row) {
    return TextOf(RecordNumberOf(row));
}

// Prints records in columns. Each byte takes up one column of the terminal.
class ColumnPrinter {
  public:
    ColumnPrinter(const RowList& rows, const std::vector<std::int32_t>& hits,
                  const OutputOptions& options, const MatchOf& match, std::ostream& out)
        : rows_(rows),
          hasStyles_(options.terminal.hasStyles),
          match_(match),
          out_(out) {
        // The columns of most look-ups are in line, although each is printed for itself.
        constexpr std::size_t kUsualAbbreviation = 8;
        abbreviationWidth_ = kUsualAbbreviation;
        for (const std::int32_t row : hits) {
            if (options.numbers) {
                numberWidth_ = std::max(numberWidth_, NumberOf(row).size());
            }
            abbreviationWidth_ =
                std::max(abbreviationWidth_, ColumnText(rows.RowText(row), 0).size());
        }
        constexpr std::size_t kFewestColumns = 20;
        const auto columns =
            std::max(static_cast<std::size_t>(options.terminal.columns), kFewestColumns);
        const std::size_t numbers = numberWidth_ > 0 ? numberWidth_ + kGap : 0;
        // A single long abbreviation does not push all expansions to the right.
        abbreviationWidth_ = std::min(abbreviationWidth_, (columns - numbers) / 3);
        indent_ = numbers + abbreviationWidth_ + kGap;
        room_ = columns - indent_;
    }

    void Print(std::int32_t row) {
        const std::string_view record = rows_.RowText(row);
        const std::string_view abbreviation = ColumnText(record, 0);
        const std::string_view match = match_(record);
        if (numberWidth_ > 0) {
            const std::string number = NumberOf(row);
            out_ << std::string(numberWidth_ - number.size(), ' ') << number
                 << std::string(kGap, ' ');
        }
        PrintPiece(abbreviation, match);
        std::string_view rest = ColumnText(record, 1);
        if (abbreviation.size() <= abbreviationWidth_ && !rest.empty()) {
            out_ << std::string(abbreviationWidth_ - abbreviation.size() + kGap, ' ');
            PrintPiece(TakeLine(rest), match);
        }
        while (!rest.empty()) {
            out_ << "\n" << std::string(indent_, ' ');
            PrintPiece(TakeLine(rest), match);
        }
        out_ << "\n";
    }

  private:
    // Removes as many words from the front of `rest` as fit on a line, at least a part of one.
    std::string_view TakeLine(std::string_view& rest) const {
        if (rest.size() <= room_) {
            return std::exchange(rest, {});
        }
        const std::size_t blank = rest.rfind(' ', room_);
        const bool hasBlank = blank != std::string_view::npos && blank > 0;
        const std::string_view line = rest.substr(0, hasBlank ? blank : room_);
        rest.remove_prefix(line.size() + (hasBlank ? 1 : 0));
        return line;
    }

    // Prints a piece of a record. The part of it that is in `match`, which is a piece of the same
    // record, is bold.
    void PrintPiece(std::string_view piece, std::string_view match) {
        if (match.empty() || !hasStyles_) {
            PrintText(piece);
            return;
        }
        const char* const end = piece.data() + piece.size();
        const char* const bold = std::clamp(match.data(), piece.data(), end);
        const char* const boldEnd = std::clamp(match.data() + match.size(), bold, end);
        if (bold == boldEnd) {
            PrintText(piece);
            return;
        }
        PrintText({piece.data(), static_cast<std::size_t>(bold - piece.data())});
        out_ << "\x1B[1m";
        PrintText({bold, static_cast<std::size_t>(boldEnd - bold)});
        out_ << "\x1B[0m";
        PrintText({boldEnd, static_cast<std::size_t>(end - boldEnd)});
    }

    void PrintText(std::string_view bytes) { out_ << VisibleText(Utf8OfBytes(bytes)); }

    const RowList& rows_;
    bool hasStyles_;
    const MatchOf& match_;
    std::ostream& out_;
    std::size_t numberWidth_ = 0;  // 0: no numbers
    std::size_t abbreviationWidth_ = 0;
    std::size_t indent_ = 0;  // where the expansions begin
    std::size_t room_ = 0;    // for the expansions
};

}  // namespace

void PrintRecords(const RowList& rows, const std::vector<std::int32_t>& hits,
                  const OutputOptions& options, const MatchOf& match, std::ostream& out) {
    if (options.json) {
        PrintJsonRecords(rows, hits, out);
        return;
    }
    if (options.terminal.columns > 0) {
        ColumnPrinter printer(rows, hits, options, match, out);
        for (const std::int32_t row : hits) {
            printer.Print(row);
        }
        return;
    }
    for (const std::int32_t row : hits) {
        if (options.numbers) {
            out << NumberOf(row) << "\t";
        }
        out << Utf8OfBytes(rows.RowText(row)) << "\n";
    }
}

}  // namespace brelex
