// SPDX-License-Identifier: MIT
#include "tools/dictd_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

#include "base/file_io.h"
#include "base/text.h"
#include "database/compressed_file.h"
#include "tools/gzip_content.h"
#include "tools/input_file.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        lines.push_back(TakePart(text, '\n'));
    }
    return lines;
}

// The letters and digits of a spelling, in capitals. The dictionary's headwords contain no other
// characters.
std::string HeadwordForm(std::string_view spelling) {
    std::string form;
    for (const char c : spelling) {
        const char capital = AsciiCapital(c);
        if ((capital >= 'A' && capital <= 'Z') || (c >= '0' && c <= '9')) {
            form.push_back(capital);
        }
    }
    return form;
}

// Removes a final quoted part, and the comma before it, from `text`. Returns the quoted text.
std::optional<std::string> TakeLastQuoted(std::string_view& text) {
    if (!text.ends_with('"') || text.size() < 2) {
        return std::nullopt;
    }
    const auto open = text.rfind('"', text.size() - 2);
    if (open == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view before = TrimWhitespace(text.substr(0, open));
    if (!before.ends_with(',')) {
        return std::nullopt;
    }
    std::string quoted(text.substr(open + 1, text.size() - open - 2));
    text = TrimWhitespace(before.substr(0, before.size() - 1));
    return quoted;
}

void AddSense(std::string_view headword, std::string_view text, std::vector<DictdEntry>& entries) {
    std::string_view rest = text;
    std::vector<std::string> spellings;
    while (auto quoted = TakeLastQuoted(rest)) {
        spellings.push_back(std::move(*quoted));
    }
    std::reverse(spellings.begin(), spellings.end());
    const std::string headwordForm = HeadwordForm(headword);
    const bool spellsHeadword =
        !spellings.empty() &&
        std::all_of(spellings.begin(), spellings.end(), [&](const std::string& spelling) {
            return HeadwordForm(spelling) == headwordForm;
        });
    if (!spellsHeadword) {
        spellings = {std::string(headword)};
        rest = text;  // a quoted part that spells something else stays in the text
    }
    if (rest.empty() || rest.starts_with(',')) {
        return;
    }
    for (const std::string& spelling : spellings) {
        entries.push_back({std::string(TrimWhitespace(spelling)), std::string(rest)});
    }
}

// Reads a further entry from one line of an article: its abbreviation, a wide gap, its expansion.
// Only such lines are both indented and divided by a gap.
std::optional<DictdEntry> EntryOnLine(std::string_view line) {
    constexpr std::string_view kGap = "    ";
    const std::string_view text = TrimWhitespace(line);
    const auto gap = text.find(kGap);
    if (!line.starts_with(kGap) || gap == std::string_view::npos) {
        return std::nullopt;
    }
    return DictdEntry{std::string(text.substr(0, gap)),
                      std::string(TrimWhitespace(text.substr(gap)))};
}

bool IsHeadword(std::string_view line) {
    return !line.empty() && line.front() != ' ' && line.find(' ') == std::string_view::npos &&
           !line.starts_with("00-database");
}

std::optional<std::uint64_t> DecodeBase64Number(std::string_view text) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t kMaxDigits = 6;
    if (text.empty() || text.size() > kMaxDigits) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (const char c : text) {
        const auto digit = kDigits.find(c);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        number = number * 64 + digit;
    }
    return number;
}

// Finds the article for a line of the index (headword, offset, length, separated by TABs). A fourth
// part, the headword as it is shown, is not needed: the article begins with it.
std::optional<std::string_view> ArticleOfIndexLine(std::string_view line,
                                                   std::string_view dictionary) {
    const auto first = line.find('\t');
    const auto second = line.find('\t', first + 1);
    if (first == std::string_view::npos || second == std::string_view::npos) {
        return std::nullopt;
    }
    const auto offset = DecodeBase64Number(line.substr(first + 1, second - first - 1));
    const auto length =
        DecodeBase64Number(line.substr(second + 1, line.find('\t', second + 1) - second - 1));
    if (!offset || !length || *offset > dictionary.size() ||
        *length > dictionary.size() - *offset) {
        return std::nullopt;
    }
    return dictionary.substr(static_cast<std::size_t>(*offset), static_cast<std::size_t>(*length));
}

void AddCorrected(const std::vector<DictdEntry>& entries, Corrections* corrections,
                  const std::string& place, std::vector<std::string>& records,
                  InputReport& report) {
    for (const DictdEntry& entry : entries) {
        std::optional<Corrections::Entry> corrected(std::in_place, entry.abbreviation,
                                                    entry.expansion);
        if (corrections != nullptr) {
            corrected = corrections->Apply(std::move(*corrected));
        }
        if (corrected) {
            AddEntry(corrected->first, corrected->second, place, records, report);
        }
    }
}

}  // namespace

std::vector<DictdEntry> EntriesOfArticle(std::string_view article) {
    const std::vector<std::string_view> lines = SplitLines(article);
    std::vector<DictdEntry> entries;
    if (lines.empty()) {
        return entries;
    }
    std::string text;
    std::vector<DictdEntry> further;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (auto entry = EntryOnLine(lines[i])) {
            further.push_back(std::move(*entry));
        } else if (const std::string_view part = TrimWhitespace(lines[i]); !part.empty()) {
            if (!text.empty()) {
                text.push_back(' ');
            }
            text.append(part);
        }
    }
    AddSense(TrimWhitespace(lines.front()), text, entries);
    entries.insert(entries.end(), further.begin(), further.end());
    return entries;
}

std::vector<DictdEntry> EntriesOfHeaderArticle(std::string_view article) {
    const std::vector<std::string_view> lines = SplitLines(article);
    std::vector<DictdEntry> entries;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const bool expansionFollows =
            lines[i + 1].starts_with(' ') && !TrimWhitespace(lines[i + 1]).empty();
        if (IsHeadword(lines[i]) && expansionFollows) {
            AddSense(lines[i], TrimWhitespace(lines[i + 1]), entries);
        }
    }
    return entries;
}

fs::path DictionaryOfIndex(const fs::path& index) {
    const auto named = [&](const char* extension) {
        return FileBeside(index, fs::path(index.filename()).replace_extension(extension));
    };
    fs::path compressed = named(".dict.dz");
    std::error_code error;
    return fs::exists(compressed, error) ? compressed : named(".dict");
}

fs::path IndexOfDictionary(const fs::path& dictionary) {
    fs::path name = dictionary.filename();
    const std::string extension = Utf8OfPath(name.extension());
    if (extension == ".dz" || extension == ".DZ") {
        name.replace_extension();
    }
    return FileBeside(dictionary, name.replace_extension(".index"));
}

void ReadDictd(const NamedBytes& index, const NamedBytes& dictionary,
               std::vector<std::string>& records, InputReport& report, Corrections* corrections) {
    const GzipContent articles = ExpandGzip(dictionary.bytes, kMaxExpandedBytes);
    if (!articles.fault.empty()) {
        report.errors.push_back(dictionary.name + ": " + articles.fault);
        return;
    }
    std::size_t lineNumber = 0;
    for (const std::string_view line : SplitLines(index.bytes)) {
        const std::string place = index.name + ":" + std::to_string(++lineNumber);
        const auto article = ArticleOfIndexLine(line, articles.bytes);
        if (!article) {
            report.errors.push_back(place + ": does not point into the dictionary");
            continue;
        }
        const bool header = line.starts_with("00database") || line.starts_with("00-database");
        const auto entries = header ? EntriesOfHeaderArticle(*article) : EntriesOfArticle(*article);
        if (entries.empty() && !header) {
            report.warnings.push_back(place + ": no expansion; entry left out");
        }
        AddCorrected(entries, corrections, place, records, report);
    }
}

void ReadDictdPair(const fs::path& indexPath, std::vector<std::string>& records,
                   InputReport& report, Corrections* corrections) {
    const fs::path dictionaryPath = DictionaryOfIndex(indexPath);
    const auto index = ReadInputFile(indexPath, report);
    const auto dictionary = index ? ReadInputFile(dictionaryPath, report) : std::nullopt;
    if (dictionary) {
        ReadDictd({Utf8OfPath(indexPath), index->View()},
                  {Utf8OfPath(dictionaryPath), dictionary->View()}, records, report, corrections);
    }
}

}  // namespace brelex
