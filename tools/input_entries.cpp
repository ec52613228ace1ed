// SPDX-License-Identifier: MIT
#include "tools/input_entries.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "base/file_io.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "database/string_order.h"

namespace brelex {

namespace {

bool IsControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F);
}

// Whether every byte is a character of its own that both codes share and any part may contain. Most
// texts are like that.
bool IsPrintableAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// The reason why `text` cannot be part of a record; nothing if it can.
std::optional<std::string> ReasonAgainst(std::string_view text, bool tabAllowed) {
    if (text.find_first_not_of(" \t") == std::string_view::npos) {
        return "is empty";
    }
    if (IsPrintableAscii(text)) {
        return std::nullopt;
    }
    for (const char32_t c : DecodeUtf8(text)) {
        if (c == '\t') {
            if (!tabAllowed) {
                return "contains a TAB";
            }
        } else if (c == 0) {
            return "contains a NUL";
        } else if (IsControl(c)) {
            return "contains a control character";
        } else if (!ByteOfCharacter(c)) {
            return "contains a character outside Windows-1252, or is not UTF-8";
        }
    }
    return std::nullopt;
}

// Appends a text that can be part of a record.
void AppendBytes(std::string_view utf8, std::string& record) {
    if (IsPrintableAscii(utf8)) {
        record += utf8;
    } else {
        record += BytesOfUtf8(utf8).bytes;
    }
}

bool IsPlain(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return PlainWeightOf(c) != 0; });
}

}  // namespace

void AddEntry(std::string_view abbreviation, std::string_view expansion, const std::string& place,
              std::vector<std::string>& records, InputReport& report) {
    if (const auto reason = ReasonAgainst(abbreviation, false)) {
        report.errors.push_back(place + ": the abbreviation " + *reason);
        return;
    }
    if (const auto reason = ReasonAgainst(expansion, true)) {
        report.errors.push_back(place + ": the expansion " + *reason);
        return;
    }
    std::string record;
    record.reserve(abbreviation.size() + 1 + expansion.size());
    AppendBytes(abbreviation, record);
    if (!IsPlain(record)) {
        report.warnings.push_back(place + ": the abbreviation " + std::string(abbreviation) +
                                  " contains an accent, ligature, superscript or soft hyphen; "
                                  "look-ups may miss it");
    }
    record.push_back('\t');
    AppendBytes(expansion, record);
    records.push_back(std::move(record));
}

void ForEachLine(const std::filesystem::path& path, InputReport& report,
                 const std::function<void(std::string_view, const std::string&)>& use) {
    const std::string name = Utf8OfPath(path);
    const auto file = ReadWholeFile(path);
    if (!file) {
        report.errors.push_back(name + ": cannot be read");
        return;
    }
    std::string_view rest = file->View();
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (rest.starts_with(kByteOrderMark)) {
        rest.remove_prefix(kByteOrderMark.size());
    }
    for (std::size_t line = 1; !rest.empty(); ++line) {
        std::string_view text = TakePart(rest, '\n');
        if (text.ends_with('\r')) {
            text.remove_suffix(1);
        }
        if (!text.empty()) {
            use(text, name + ":" + std::to_string(line));
        }
    }
}

void ReadTsvFile(const std::filesystem::path& path, std::vector<std::string>& records,
                 InputReport& report) {
    ForEachLine(path, report, [&](std::string_view text, const std::string& place) {
        const std::size_t tab = text.find('\t');
        if (tab == std::string_view::npos) {
            report.errors.push_back(place + ": no TAB between abbreviation and expansion");
            return;
        }
        AddEntry(text.substr(0, tab), text.substr(tab + 1), place, records, report);
    });
}

}  // namespace brelex
