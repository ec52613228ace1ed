// SPDX-License-Identifier: MIT
#include "tools/dictionary_files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

#include "base/text.h"

namespace brelex {

namespace {

char AsciiSmall(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The small letters of a text in UTF-8. Of the letters outside ASCII, only those of Windows-1252
// occur.
std::string SmallLetters(std::string_view text) {
    static const std::map<std::string_view, std::string_view> kOthers = {
        {"\xC5\xA0", "\xC5\xA1"},
        {"\xC5\x92", "\xC5\x93"},  // S with caron, OE
        {"\xC5\xBD", "\xC5\xBE"},
        {"\xC5\xB8", "\xC3\xBF"},  // Z with caron, Y with diaeresis
    };
    std::string small;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view two = text.substr(i, 2);
        const auto last = static_cast<unsigned char>(two.back());
        const auto other = kOthers.find(two);
        if (other != kOthers.end()) {
            small += other->second;
            ++i;
        } else if (two.front() == '\xC3' && last >= 0x80 && last <= 0x9E && last != 0x97) {
            small +=
                {'\xC3', static_cast<char>(last + 0x20)};  // U+00C0 to U+00DE but the times sign
            ++i;
        } else {
            small.push_back(AsciiSmall(text[i]));
        }
    }
    return small;
}

// A text on one line.
std::string OneLine(std::string_view text) {
    std::string line(TrimWhitespace(text));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return line;
}

// A number as the index of dictd has it.
std::string Base64Number(std::size_t number) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string digits;
    do {
        digits.insert(digits.begin(), kDigits[number % 64]);
        number /= 64;
    } while (number != 0);
    return digits;
}

// Collects the articles of dictd's files and their lines in the index.
class DictdWriter {
  public:
    void Add(std::string_view headword, std::string_view text) {
        const std::string article = std::string(headword) + "\n  " + std::string(text) + "\n";
        const std::string key = SmallLetters(headword);
        std::string line =
            key + "\t" + Base64Number(articles_.size()) + "\t" + Base64Number(article.size());
        if (key != headword) {
            line += "\t" + std::string(headword);  // how dictd spells it in lists of matches
        }
        lines_.push_back(std::move(line));
        articles_ += article;
    }

    std::vector<DictionaryFile> Files() {
        // The order that dictd's search relies on: that of the bytes up to the first TAB.
        std::ranges::stable_sort(lines_, {}, [](const std::string& line) {
            return std::string_view(line).substr(0, line.find('\t'));
        });
        std::string index;
        for (const std::string& line : lines_) {
            index += line + "\n";
        }
        return {{".dict", std::move(articles_)}, {".index", std::move(index)}};
    }

  private:
    std::string articles_;
    std::vector<std::string> lines_;
};

// Numbers in StarDict's index have their highest byte first.
void AppendNumber(std::size_t number, std::string& bytes) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<char>((number >> static_cast<unsigned>(shift)) & 0xFFU));
    }
}

// The order of StarDict's index: ignoring the case of ASCII letters, then by bytes.
struct StardictOrder {
    bool operator()(const std::string& one, const std::string& other) const {
        const auto small = [](const std::string& text) {
            std::string result = text;
            std::transform(result.begin(), result.end(), result.begin(), AsciiSmall);
            return result;
        };
        const int order = small(one).compare(small(other));
        return order != 0 ? order < 0 : one < other;
    }
};

}  // namespace

std::vector<DictionaryFile> DictdFiles(const Dictionary& dictionary) {
    DictdWriter writer;
    // The first two tell dictd to compare all characters, and that they are UTF-8.
    writer.Add("00-database-allchars", "");
    writer.Add("00-database-utf8", "");
    writer.Add("00-database-short", dictionary.title);
    writer.Add("00-database-info", dictionary.description);
    for (const DictionaryEntry& entry : dictionary.entries) {
        writer.Add(OneLine(entry.abbreviation), OneLine(entry.expansion));
    }
    return writer.Files();
}

std::vector<DictionaryFile> StardictFiles(const Dictionary& dictionary) {
    std::map<std::string, std::string, StardictOrder> articles;
    for (const DictionaryEntry& entry : dictionary.entries) {
        std::string& article = articles[OneLine(entry.abbreviation)];
        article += (article.empty() ? "" : "\n") + OneLine(entry.expansion);
    }
    std::string content;
    std::string index;
    for (const auto& [headword, article] : articles) {
        index += headword;
        index.push_back('\0');
        AppendNumber(content.size(), index);
        AppendNumber(article.size(), index);
        content += article;
    }
    std::string info = "StarDict's dict ifo file\nversion=2.4.2\nbookname=" + dictionary.title +
                       "\nwordcount=" + std::to_string(articles.size()) +
                       "\nidxfilesize=" + std::to_string(index.size()) +
                       "\ndescription=" + dictionary.description + "\n";
    if (!dictionary.date.empty()) {
        info += "date=" + dictionary.date + "\n";
    }
    info += "sametypesequence=m\n";
    return {{".dict", std::move(content)}, {".idx", std::move(index)}, {".ifo", std::move(info)}};
}

}  // namespace brelex
