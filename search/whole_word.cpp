// SPDX-License-Identifier: MIT
#include "search/whole_word.h"

#include <algorithm>

#include "base/letter_case.h"

namespace brelex {

namespace {

constexpr std::string_view kDelimiters = " ,:;./\\(){}[]-_+!?'\"~@#$";

std::size_t Find(std::string_view field, std::string_view word, ComparisonMode mode) {
    if (mode == ComparisonMode::Binary) {
        return field.find(word);
    }
    const auto same = [](char a, char b) {
        return SmallLetterOfByte(static_cast<unsigned char>(a)) ==
               SmallLetterOfByte(static_cast<unsigned char>(b));
    };
    const auto found = std::search(field.begin(), field.end(), word.begin(), word.end(), same);
    return found == field.end() && !word.empty() ? std::string_view::npos
                                                 : static_cast<std::size_t>(found - field.begin());
}

bool IsDelimiter(char c) {
    return kDelimiters.find(c) != std::string_view::npos;
}

}  // namespace

bool IsWholeWord(std::string_view field, std::string_view word, ComparisonMode mode) {
    const std::size_t begin = Find(field, word, mode);
    if (begin == std::string_view::npos) {
        return false;
    }
    const std::size_t end = begin + word.size();
    return (begin == 0 || IsDelimiter(field[begin - 1])) &&
           (end == field.size() || IsDelimiter(field[end]));
}

}  // namespace brelex
