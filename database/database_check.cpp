// SPDX-License-Identifier: MIT
#include "database/database_check.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/windows1252.h"
#include "database/database_builder.h"
#include "database/modCRC32.h"
#include "database/record_number.h"
#include "database/record_text.h"
#include "database/string_order.h"

namespace brelex {

namespace {

constexpr std::size_t kMostOfAKind = 10;

// Collects the findings of one kind. At the end, says how many more there were.
class Findings {
  public:
    Findings(std::vector<std::string>& lines, std::string kind)
        : lines_(lines),
          kind_(std::move(kind)) {}

    Findings(const Findings&) = delete;
    Findings& operator=(const Findings&) = delete;

    ~Findings() {
        if (count_ > kMostOfAKind) {
            lines_.push_back("... and " + std::to_string(count_ - kMostOfAKind) + " more " + kind_);
        }
    }

    void Add(std::string line) {
        if (++count_ <= kMostOfAKind) {
            lines_.push_back(std::move(line));
        }
    }

  private:
    std::vector<std::string>& lines_;
    std::string kind_;
    std::size_t count_ = 0;
};

std::string RecordName(std::int32_t row) {
    return "record " + TextOf(RecordNumberOf(row));
}

void CheckBlock(const DatabaseHeader& header, const RecordStore& store,
                std::vector<std::string>& lines) {
    if (GetCRCFromByteArray(store.Block()) != header.DataCRC) {
        lines.emplace_back("the CRC of the records is not the header's DataCRC");
    }
    const auto nuls = std::count(store.Block().begin(), store.Block().end(), '\0');
    if (nuls != header.RecordCount) {
        lines.push_back("the record block holds " + std::to_string(nuls) +
                        " NULs, RecordCount is " + std::to_string(header.RecordCount));
    }
}

// The control character in a text, apart from TABs, or nothing. Windows-1252 leaves five bytes to
// control characters, too.
std::optional<unsigned char> ControlCharacterIn(std::string_view text) {
    const auto found = std::find_if(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        const char32_t character = CharacterOfByte(byte);
        return byte != '\t' && (character < 0x20 || (character >= 0x7F && character < 0xA0));
    });
    return found == text.end() ? std::nullopt : std::optional(static_cast<unsigned char>(*found));
}

std::string HexDigits(unsigned char byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {kDigits[byte >> 4U], kDigits[byte & 0xFU]};
}

void CheckRecords(const RecordStore& store, std::vector<std::string>& lines) {
    Findings malformed(lines, "records without TAB");
    Findings controls(lines, "records with control characters");
    Findings disorder(lines, "records out of order");
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        const std::string_view text = store.RowText(row);
        if (text.find('\t') == std::string_view::npos) {
            malformed.Add(RecordName(row) + " has no TAB");
        }
        if (const auto control = ControlCharacterIn(text)) {
            controls.Add(RecordName(row) + " contains the control character " +
                         HexDigits(*control));
        }
        if (row > 0 && std::is_gt(CompareTexts(store.RowText(row - 1), text))) {
            disorder.Add(RecordName(row) +
                         " stands behind a greater one: " + Utf8OfBytes(GetAbbreviation(text)));
        }
    }
}

template <typename Number>
std::string ValueText(Number value) {
    return std::to_string(value);
}

std::string ValueText(char letter) {
    return "'" + Utf8OfBytes({&letter, 1}) + "'";
}

std::string ValueText(const std::string& text) {
    return Utf8OfBytes(text);
}

void CheckStatistics(const DatabaseHeader& header, const RecordStore& store,
                     std::vector<std::string>& lines) {
    std::vector<std::string_view> records;
    records.reserve(static_cast<std::size_t>(store.RowCount()));
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        records.push_back(store.RowText(row));
    }
    const DatabaseHeader counted = ComputeStatistics(records);
    VisitFields([&](const char* name, auto member, FieldSource source) {
        if (source == FieldSource::Records && header.*member != counted.*member) {
            lines.push_back(std::string(name) + " is " + ValueText(header.*member) +
                            ", the records give " + ValueText(counted.*member));
        }
    });
}

// Nobody types more of an abbreviation to find it. Each longer beginning takes longer to look up,
// so that all of a very long one would take forever.
constexpr std::size_t kMostTypedBytes = 100;

// How many steps the look-ups may take on average for each record. In a good database, they take a
// few dozen. In a small one, all may take as many as they need.
constexpr std::int64_t kMostStepsPerRecord = 1000;
constexpr std::int64_t kStepsOfSmallDatabase = 1'000'000;

// A prefix that the previous record shares leads to the same row, so each is looked up only once in
// a run of records.
void CheckReachability(const RecordStore& store, const PrefixFinder& find,
                       std::vector<std::string>& lines) {
    Findings unreachable(lines, "unreachable beginnings");
    const std::int64_t mostSteps = kStepsOfSmallDatabase + kMostStepsPerRecord * store.RowCount();
    std::int64_t steps = 0;
    std::string_view previous;
    for (std::int32_t row = 0; row < store.RowCount(); ++row) {
        if (steps > mostSteps) {
            lines.push_back("the beginnings from " + RecordName(row) +
                            " on were not looked up: that takes too many steps in this order");
            return;
        }
        const std::string_view abbreviation = GetAbbreviation(store.RowText(row));
        const auto shared =
            static_cast<std::size_t>(std::mismatch(abbreviation.begin(), abbreviation.end(),
                                                   previous.begin(), previous.end())
                                         .first -
                                     abbreviation.begin());
        previous = abbreviation;
        const std::size_t most = std::min(abbreviation.size(), kMostTypedBytes);
        for (std::size_t bytes = shared + 1; bytes <= most; ++bytes) {
            const std::string_view beginning = abbreviation.substr(0, bytes);
            const std::string_view found = store.RowText(find(store, beginning, &steps));
            if (!EqualIgnoringCase(found.substr(0, bytes), beginning)) {
                unreachable.Add("typing " + Utf8OfBytes(beginning) + " does not reach " +
                                RecordName(row));
            }
        }
    }
}

}  // namespace

std::vector<std::string> CheckDatabase(const DatabaseHeader& header, const RecordStore& store,
                                       const PrefixFinder& find) {
    std::vector<std::string> lines;
    CheckBlock(header, store, lines);
    CheckRecords(store, lines);
    if (const auto control = ControlCharacterIn(header.SearchListText)) {
        lines.push_back("the search list contains the control character " + HexDigits(*control));
    }
    CheckStatistics(header, store, lines);
    CheckReachability(store, find, lines);
    return lines;
}

}  // namespace brelex
