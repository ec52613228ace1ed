// SPDX-License-Identifier: MIT
#include "tools/json_records.h"

#include <string>
#include <string_view>

#include "base/windows1252.h"
#include "database/record_number.h"
#include "database/record_text.h"

namespace brelex {

namespace {

std::string JsonString(std::string_view bytes) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    std::string text = "\"";
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        const char32_t character = CharacterOfByte(code);
        // JSON demands it for the first kind. A terminal may obey the others.
        const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
        if (c == '"' || c == '\\') {
            text += {'\\', c};
        } else if (isControl) {
            text += "\\u00";
            text += {kHexDigits[code >> 4U], kHexDigits[code & 0xFU]};
        } else {
            text += Utf8OfBytes({&c, 1});
        }
    }
    return text + "\"";
}

}  // namespace

void PrintJsonRecords(const RowList& rows, const std::vector<std::int32_t>& hits,
                      std::ostream& out) {
    out << "[";
    const char* before = "\n";
    for (const std::int32_t row : hits) {
        const std::string_view record = rows.RowText(row);
        out << before << R"({"recordNumber":)" << TextOf(RecordNumberOf(row))
            << R"(,"abbreviation":)" << JsonString(GetAbbreviation(record)) << R"(,"expansion":)"
            << JsonString(GetExpansion(record)) << "}";
        before = ",\n";
    }
    out << (hits.empty() ? "]\n" : "\n]\n");
}

}  // namespace brelex
