// SPDX-License-Identifier: MIT
#include "tests/data/entry_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <set>
#include <utility>

#include "base/text.h"
#include "base/windows1252.h"

namespace brelex {

namespace {

bool IsLetter(char c) {
    return c >= 'a' && c <= 'z';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// In small letters without accents; other characters outside ASCII are blanks.
std::string Folded(std::string_view utf8) {
    constexpr std::string_view kBase = "aaaaaaaceeeeiiiidnooooo ouuuuyts";  // C0 to DF, E0 to FF
    std::string text = BytesOfUtf8(utf8).bytes;
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        } else if (byte >= 0xC0) {
            c = kBase[(byte - 0xC0U) % kBase.size()];
        } else if (byte >= 0x80) {
            c = ' ';
        }
    }
    return text;
}

// The words of an expansion, parted by blanks; "&" and "+" are words, too.
std::string WordsOf(std::string_view expansion) {
    std::string words;
    for (const char c : Folded(WithoutNotes(expansion))) {
        if (c == '&') {
            words += " and ";
        } else if (c == '+') {
            words += " plus ";
        } else {
            words.push_back(IsLetter(c) || IsDigit(c) ? c : ' ');
        }
    }
    return words;
}

std::initializer_list<std::string_view> WordsOfDigit(char digit) {
    static const std::array<std::initializer_list<std::string_view>, 10> kWords = {{
        {"zero"},
        {"one", "first", "single"},
        {"two", "to", "too", "second", "double", "dual", "ii"},
        {"three", "third", "triple", "iii"},
        {"four", "for", "fourth", "quad", "iv"},
        {"five", "fifth", "v"},
        {"six", "sixth"},
        {"seven", "seventh"},
        {"eight", "eighth"},
        {"nine", "ninth"},
    }};
    return kWords.at(static_cast<std::size_t>(digit - '0'));
}

// Finds an abbreviation in words, character by character.
class InitialsMatch {
  public:
    InitialsMatch(std::string abbreviation, std::string words)
        : abbreviation_(std::move(abbreviation)),
          words_(std::move(words)) {}

    // From a character of the abbreviation and a place in the words on.
    bool From(std::size_t at, std::size_t place) {
        if (at == abbreviation_.size()) {
            return true;
        }
        if (!tried_.insert({at, place}).second) {
            return false;  // it failed before
        }
        const char c = abbreviation_[at];
        return AfterEach(std::string_view(&c, 1), at + 1, place) ||
               (IsDigit(c) && Digit(at, place)) ||
               (c == 'x' && Words({"ex", "cross", "trans", "extra", "by"}, at, place)) ||
               (c == 's' && at + 1 == abbreviation_.size());
    }

  private:
    // Goes on behind each place where `text` stands at the beginning of a word, or within the word
    // of the character before.
    bool AfterEach(std::string_view text, std::size_t next, std::size_t place) {
        const std::size_t wordEnd = place == 0 ? 0 : words_.find(' ', place - 1);
        for (std::size_t found = words_.find(text, place); found != std::string::npos;
             found = words_.find(text, found + 1)) {
            const bool begins = found == 0 || words_[found - 1] == ' ';
            if ((begins || found < wordEnd) && From(next, found + text.size())) {
                return true;
            }
        }
        return false;
    }

    // Goes on behind the first place of any of the words.
    bool Words(std::initializer_list<std::string_view> words, std::size_t at, std::size_t place) {
        return std::any_of(words.begin(), words.end(), [&](std::string_view word) {
            const std::size_t found = words_.find(word, place);
            return found != std::string::npos && From(at + 1, found + word.size());
        });
    }

    bool Digit(std::size_t at, std::size_t place) {
        const char digit = abbreviation_[at];
        if (Words(WordsOfDigit(digit), at, place)) {
            return true;
        }
        const int times = digit - '0';
        if (times < 2 || times > 4) {
            return false;
        }
        return (at + 1 < abbreviation_.size() &&
                Repeated(abbreviation_[at + 1], times, at + 2, place)) ||
               (at > 0 && Repeated(abbreviation_[at - 1], times - 1, at + 1, place));
    }

    bool Repeated(char letter, int times, std::size_t next, std::size_t place) {
        for (int i = 0; i < times; ++i) {
            place = words_.find(letter, place);
            if (place == std::string::npos) {
                return false;
            }
            ++place;
        }
        return From(next, place);
    }

    std::string abbreviation_;
    std::string words_;
    std::set<std::pair<std::size_t, std::size_t>> tried_;
};

// i18n: as many letters are left out of a word as the digits say.
bool IsNumeronym(std::string_view abbreviation, std::string_view words) {
    const std::size_t digits =
        std::min(abbreviation.find_first_of("0123456789"), abbreviation.size());
    std::size_t end = digits;
    std::size_t leftOut = 0;
    while (end < abbreviation.size() && IsDigit(abbreviation[end])) {
        leftOut = leftOut * 10 + static_cast<std::size_t>(abbreviation[end++] - '0');
    }
    const std::string_view word = words.substr(0, words.find(' '));
    return digits > 0 && end > digits && end < abbreviation.size() &&
           word.size() == digits + leftOut + abbreviation.size() - end &&
           word.starts_with(abbreviation.substr(0, digits)) &&
           word.ends_with(abbreviation.substr(end));
}

std::string Kept(const std::string& text, std::string_view alsoKept) {
    std::string kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept), [&](char c) {
        return IsLetter(c) || IsDigit(c) || alsoKept.find(c) != std::string_view::npos;
    });
    return kept;
}

void ReplaceAll(std::string& text, std::string_view old, std::string_view by) {
    for (std::size_t at = text.find(old); at != std::string::npos;
         at = text.find(old, at + by.size())) {
        text.replace(at, old.size(), by);
    }
}

void ReplaceEnd(std::string& text, std::string_view old, std::string_view by) {
    if (text.ends_with(old)) {
        text.replace(text.size() - old.size(), old.size(), by);
    }
}

// Makes singular and plural, and American and British spelling, equal. The result is no word.
std::string ComparableWord(std::string word) {
    if (word.size() > 3 && !word.ends_with("ss")) {
        ReplaceEnd(word, "s", "");
    }
    ReplaceEnd(word, "tre", "ter");  // centre, metre
    ReplaceEnd(word, "bre", "ber");  // fibre
    ReplaceEnd(word, "e", "");       // of boxes, also of "base" because of "bases"
    ReplaceEnd(word, "y", "i");      // technologies
    ReplaceAll(word, "z", "s");
    ReplaceAll(word, "our", "or");
    ReplaceAll(word, "enc", "ens");  // licence, defence
    return word;
}

}  // namespace

std::string_view WithoutNotes(std::string_view expansion) {
    while (expansion.ends_with(')')) {
        int depth = 0;
        std::size_t at = expansion.size();
        do {
            --at;
            depth += expansion[at] == ')' ? 1 : 0;
            depth -= expansion[at] == '(' ? 1 : 0;
        } while (at > 0 && depth > 0);
        const std::size_t end = expansion.find_last_not_of(' ', at == 0 ? 0 : at - 1);
        if (depth > 0 || at == 0 || end == std::string_view::npos) {
            break;
        }
        expansion = expansion.substr(0, end + 1);
    }
    return expansion;
}

bool HasBalancedBrackets(std::string_view text) {
    constexpr std::string_view kOpening = "([{";
    constexpr std::string_view kClosing = ")]}";
    std::string awaited;
    for (const char c : text) {
        if (const auto kind = kOpening.find(c); kind != std::string_view::npos) {
            awaited.push_back(kClosing[kind]);
        } else if (kClosing.find(c) != std::string_view::npos) {
            if (!awaited.ends_with(c)) {
                return false;
            }
            awaited.pop_back();
        }
    }
    return awaited.empty();
}

std::vector<std::string_view> NoteItems(std::string_view expansion) {
    std::vector<std::string_view> items;
    std::string_view notes = expansion.substr(WithoutNotes(expansion).size());
    const auto isEdge = [](char c) { return c == ' ' || c == '(' || c == ')'; };
    while (!notes.empty()) {
        const std::size_t end = std::min(notes.find(", "), notes.find(") ("));
        std::string_view item = notes.substr(0, end);
        notes.remove_prefix(std::min(notes.size(), end == std::string_view::npos ? end : end + 2));
        while (!item.empty() && isEdge(item.front())) {
            item.remove_prefix(1);
        }
        while (!item.empty() && isEdge(item.back())) {
            item.remove_suffix(1);
        }
        items.push_back(item);
    }
    return items;
}

std::string_view SmallWordInCapitals(std::string_view expansion) {
    static const std::set<std::string_view> kWords = {"Of", "The", "For", "And", "In", "On", "To"};
    std::string_view rest = WithoutNotes(expansion);
    bool begins = true;
    while (!rest.empty()) {
        const std::string_view word = TakePart(rest, ' ');
        if (!begins && !rest.empty() && kWords.contains(word)) {
            return word;
        }
        begins = word.ends_with(':') || word.ends_with(',');
    }
    return {};
}

std::string ComparableText(std::string_view abbreviation, std::string_view expansion) {
    static const std::set<std::string_view> kSmallWords = {"of", "the", "for", "and", "a",
                                                           "in", "on",  "to",  "+"};
    std::string text;
    std::string folded = Folded(WithoutNotes(expansion));
    std::replace_if(
        folded.begin(), folded.end(),
        [](char c) { return !IsLetter(c) && !IsDigit(c) && c != '+' && c != '#' && c != '\''; },
        ' ');
    for (std::string_view rest = folded; !rest.empty();) {
        const std::string_view word = TakePart(rest, ' ');
        if (!kSmallWords.contains(word)) {
            text += ComparableWord(Kept(std::string(word), "+#"));
        }
    }
    return Kept(Folded(abbreviation), "+#") + "|" + text;
}

bool HasPlausibleInitials(std::string_view abbreviation, std::string_view expansion) {
    const std::string letters = Kept(Folded(abbreviation), "");
    const std::string words = WordsOf(expansion);
    return IsNumeronym(letters, words) || InitialsMatch(letters, words).From(0, 0);
}

}  // namespace brelex
