// SPDX-License-Identifier: MIT
#include "tools/input_entries.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/file_io.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "database/string_order.h"
#include "tools/input_file.h"

namespace brelex {

namespace {

std::size_t LengthInUtf8(char32_t c) {
    return c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
}

bool IsControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F);
}

// Whether every byte is a character of its own that both codes share and any part may contain. Most
// texts are like that.
bool IsPrintableAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// Why a text cannot be part of a record, and which of its characters is to blame.
struct Fault {
    std::string reason;
    std::size_t character = 0;
};

std::string Hexadecimal(std::uint32_t value, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text.push_back("0123456789ABCDEF"[(value >> static_cast<unsigned>(shift)) & 0xFU]);
    }
    return text;
}

// Names a character that cannot be stored. `bytes` are the bytes of the text from there on.
std::string ReasonAgainst(char32_t c, std::string_view bytes) {
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // the decoder's for a stray byte
    if (c == 0xFFFD && !bytes.starts_with(kReplacement)) {
        return "contains the byte " + Hexadecimal(static_cast<unsigned char>(bytes.front()), 2) +
               ", which is not UTF-8";
    }
    const std::string code = "U+" + Hexadecimal(c, c > 0xFFFF ? 6 : 4);
    if (c == '\t') {
        return "contains a TAB";
    }
    if (IsControl(c)) {
        return "contains the control character " + code;
    }
    return "contains " + std::string(bytes.substr(0, LengthInUtf8(c))) + " (" + code +
           "), which Windows-1252 lacks";
}

// Nothing if `text` can be part of a record.
std::optional<Fault> FaultIn(std::string_view text, bool tabAllowed) {
    if (text.find_first_not_of(" \t") == std::string_view::npos) {
        return Fault{"is empty"};
    }
    if (IsPrintableAscii(text)) {
        return std::nullopt;
    }
    const std::u32string characters = DecodeUtf8(text);
    std::size_t at = 0;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char32_t c = characters[i];
        const bool storable = c == '\t' ? tabAllowed : !IsControl(c) && ByteOfCharacter(c);
        if (!storable) {
            return Fault{ReasonAgainst(c, text.substr(at)), i};
        }
        at += LengthInUtf8(c);
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

// Where an entry stands.
struct Place {
    std::string name;
    bool isLine = false;  // whether it is a line that consists of the entry and nothing else
};

// `part` is "abbreviation" or "expansion". It begins at character `start` of its line.
void ReportFault(const Place& place, const char* part, const Fault& fault, std::size_t start,
                 InputReport& report) {
    const std::string column =
        place.isLine ? ":" + std::to_string(start + fault.character + 1) : std::string();
    report.errors.push_back(place.name + column + ": the " + part + " " + fault.reason);
}

void WarnOfHiddenAbbreviation(std::string_view abbreviation, std::string_view bytes,
                              const std::string& place, InputReport& report) {
    const auto warn = [&](const char* reason) {
        report.warnings.push_back(place + ": the abbreviation " + std::string(abbreviation) +
                                  reason);
    };
    if (!IsPlain(bytes)) {
        warn(" contains an accent, ligature, superscript or soft hyphen; look-ups may miss it");
    }
    if (TrimBlanks(abbreviation).size() != abbreviation.size()) {
        warn(" begins or ends with a blank; look-ups may miss it");
    }
}

void AppendEntry(std::string_view abbreviation, std::string_view expansion, const Place& place,
                 std::vector<std::string>& records, InputReport& report) {
    if (const auto fault = FaultIn(abbreviation, false)) {
        ReportFault(place, "abbreviation", *fault, 0, report);
        return;
    }
    if (const auto fault = FaultIn(expansion, true)) {
        ReportFault(place, "expansion", *fault, DecodeUtf8(abbreviation).size() + 1, report);
        return;
    }
    std::string record;
    record.reserve(abbreviation.size() + 1 + expansion.size());
    AppendBytes(abbreviation, record);
    WarnOfHiddenAbbreviation(abbreviation, record, place.name, report);
    record.push_back('\t');
    AppendBytes(expansion, record);
    records.push_back(std::move(record));
}

}  // namespace

void AddEntry(std::string_view abbreviation, std::string_view expansion, const std::string& place,
              std::vector<std::string>& records, InputReport& report) {
    AppendEntry(abbreviation, expansion, {place}, records, report);
}

void ForEachLine(const std::string& name, std::string_view text, InputReport& report,
                 const std::function<void(std::string_view, const std::string&)>& use) {
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        report.errors.push_back(name + ": is UTF-16; save it as UTF-8");
        return;
    }
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    for (std::size_t number = 1; !text.empty(); ++number) {
        std::string_view line = TakePart(text, '\n');
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!line.empty()) {
            use(line, name + ":" + std::to_string(number));
        }
    }
}

void ReadTsv(const std::string& name, std::string_view text, std::vector<std::string>& records,
             InputReport& report) {
    ForEachLine(name, text, report, [&](std::string_view line, const std::string& place) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string_view::npos) {
            report.errors.push_back(place + ": no TAB between abbreviation and expansion");
            return;
        }
        AppendEntry(line.substr(0, tab), line.substr(tab + 1), {place, true}, records, report);
    });
}

void ReadTsvFile(const std::filesystem::path& path, std::vector<std::string>& records,
                 InputReport& report) {
    if (const auto file = ReadInputFile(path, report)) {
        ReadTsv(Utf8OfPath(path), file->View(), records, report);
    }
}

}  // namespace brelex
