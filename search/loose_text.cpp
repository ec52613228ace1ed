// SPDX-License-Identifier: MIT
#include "search/loose_text.h"

#include <vector>

namespace brelex {

namespace {

WildcardPattern::ByteSet Separators() {
    constexpr std::string_view kSeparators = "-,'\x92 ";  // 92 hex is the typographic apostrophe
    WildcardPattern::ByteSet bytes;
    for (const char separator : kSeparators) {
        bytes.set(static_cast<unsigned char>(separator));
    }
    return bytes;
}

bool IsSeparator(char c) {
    return LooseSeparators()[static_cast<unsigned char>(c)];
}

// The end of the run at `position`, or of the single character there.
std::size_t EndOfRun(std::string_view text, std::size_t position) {
    if (!IsSeparator(text[position])) {
        return position + 1;
    }
    while (position < text.size() && IsSeparator(text[position])) {
        ++position;
    }
    return position;
}

}  // namespace

const WildcardPattern::ByteSet& LooseSeparators() {
    static const WildcardPattern::ByteSet separators = Separators();
    return separators;
}

std::string LooseText(std::string_view text) {
    std::string loose;
    for (std::size_t i = 0; i < text.size(); i = EndOfRun(text, i)) {
        loose.push_back(IsSeparator(text[i]) ? ' ' : text[i]);
    }
    return loose;
}

std::size_t LengthBeforeLoosening(std::string_view text, std::size_t looseLength) {
    std::size_t length = 0;
    for (; looseLength > 0; --looseLength) {
        length = EndOfRun(text, length);
    }
    return length;
}

WildcardPattern LoosePattern(const WildcardPattern& pattern) {
    const WildcardPattern::ByteSet& separators = LooseSeparators();
    std::vector<WildcardPattern::Segment> segments;
    for (const WildcardPattern::Segment& segment : pattern.Segments()) {
        WildcardPattern::Segment& loose = segments.emplace_back();
        bool isInRun = false;
        for (WildcardPattern::ByteSet bytes : segment) {
            const bool wasInRun = isInRun;
            isInRun = bytes.any() && (bytes & ~separators).none();
            if (isInRun && wasInRun) {
                continue;
            }
            if ((bytes & separators).any()) {
                bytes.set(' ');
            }
            loose.push_back(bytes);
        }
    }
    return WildcardPattern(std::move(segments));
}

}  // namespace brelex
