// SPDX-License-Identifier: MIT
#include "tools/lookup_command.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "lookup/abbreviation_finder.h"
#include "lookup/prefix_search.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace brelex {

namespace {

// The text in Windows-1252. A NUL, which no record contains, stands for each character that the
// code page lacks. Typing such a character ends the text, and so does a NUL.
std::string BytesOfTyped(const std::string& text) {
    std::string bytes;
    for (const char32_t character : DecodeUtf8(text)) {
        bytes.push_back(static_cast<char>(ByteOfCharacter(character).value_or(0)));
    }
    return bytes;
}

// The beginning of a record that it shares with a text.
std::string_view SharedBeginning(std::string_view record, std::string_view text) {
    std::size_t size = text.size();
    while (size > 0 && !EqualIgnoringCase(record.substr(0, size), text.substr(0, size))) {
        --size;
    }
    return record.substr(0, size);
}

std::string Alternatives(const std::vector<std::string_view>& abbreviations) {
    std::string text;
    for (std::size_t i = 0; i < abbreviations.size(); ++i) {
        const char* const separator = i + 1 == abbreviations.size() ? " or " : ", ";
        text += (i == 0 ? "" : separator) + VisibleText(Utf8OfBytes(abbreviations[i]));
    }
    return text;
}

// Looks up one text after the other.
class Answers {
  public:
    Answers(const RowList& rows, bool first, const OutputOptions& output, std::ostream& out,
            std::ostream& err)
        : rows_(rows),
          output_(output),
          out_(out),
          err_(err) {
        if (!first) {
            finder_.emplace(rows);
        }
    }

    void Add(const std::string& text) {
        const std::string bytes = BytesOfTyped(text);
        if (!finder_) {
            found_ |= PrintSelected(bytes);
            return;
        }
        const std::vector<std::int32_t> hits = finder_->Find(bytes);
        if (hits.empty()) {
            SayThatThereIsNone(text, bytes);
            PrintSelected(bytes);
            return;
        }
        found_ = true;
        Print(hits, [](std::string_view record) { return ColumnText(record, 0); });
    }

    // Prints what has to wait for the last text.
    int Finish() {
        if (output_.json) {
            PrintRecords(rows_, all_, output_, {}, out_);
        }
        return found_ ? kFound : kNothingFound;
    }

  private:
    // Prints the row that typing the text would select. Returns whether it begins as the text does.
    bool PrintSelected(std::string_view bytes) {
        if (rows_.RowCount() == 0) {
            return false;
        }
        const std::int32_t row = FindFirstByPrefix(rows_, bytes);
        const auto match = [bytes](std::string_view record) {
            return SharedBeginning(record, bytes);
        };
        Print({row}, match);
        return bytes.empty() || !match(rows_.RowText(row)).empty();
    }

    void SayThatThereIsNone(const std::string& text, std::string_view bytes) {
        err_ << "No entry has the abbreviation \"" << VisibleText(text) << "\"";
        if (rows_.RowCount() > 0) {
            const std::string_view record = rows_.RowText(FindFirstByPrefix(rows_, bytes));
            err_ << "; typing it selects " << VisibleText(Utf8OfBytes(ColumnText(record, 0)));
        }
        err_ << ".\n";
        constexpr std::size_t kMostAlternatives = 8;
        const auto similar = finder_->FindSimilar(bytes, kMostAlternatives);
        if (!similar.empty()) {
            err_ << "Did you mean " << Alternatives(similar) << "?\n";
        }
    }

    void Print(const std::vector<std::int32_t>& hits, const MatchOf& match) {
        if (output_.json) {
            all_.insert(all_.end(), hits.begin(), hits.end());
        } else {
            PrintRecords(rows_, hits, output_, match, out_);
        }
    }

    const RowList& rows_;
    const OutputOptions& output_;
    std::ostream& out_;
    std::ostream& err_;
    std::optional<AbbreviationFinder> finder_;  // empty if only the row that typing selects counts
    std::vector<std::int32_t> all_;             // the rows of all answers, if they wait
    bool found_ = false;
};

}  // namespace

int RunLookup(const std::string& database, const LookupOptions& options,
              const OutputOptions& output, std::istream& in, std::ostream& out, std::ostream& err) {
    OpenDatabase opened;
    if (const int failure = Load(database, opened, err); failure != kFound) {
        return failure;
    }
    Answers answers(opened.store, options.first, output, out, err);
    for (const std::string& text : options.texts) {
        if (text != "-") {
            answers.Add(text);
            continue;
        }
        opened.store.MeasureOrder();  // for as many look-ups as there may be
        std::string line;
        while (std::getline(in, line)) {
            if (line.ends_with('\r')) {
                line.pop_back();
            }
            if (!line.empty() || options.first) {
                answers.Add(line);
            }
        }
        if (in.bad()) {
            PrintMessage(err, "standard input cannot be read");
            return kFailed;
        }
    }
    return answers.Finish();
}

}  // namespace brelex
