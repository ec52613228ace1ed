// SPDX-License-Identifier: MIT
#include "base/letter_case.h"

#include <algorithm>

#include "base/windows1252.h"

namespace brelex {

char32_t SmallLetterOf(char32_t character) {
    constexpr char32_t kStep = 0x20;
    const bool latin = (character >= U'A' && character <= U'Z') ||
                       (character >= 0xC0 && character <= 0xDE && character != 0xD7);
    if (latin) {
        return character + kStep;
    }
    switch (character) {
        case 0x152:  // the ligature OE
        case 0x160:  // S with caron
        case 0x17D:  // Z with caron
            return character + 1;
        case 0x178:  // Y with diaeresis
            return 0xFF;
        default:
            return character;
    }
}

unsigned char SmallLetterOfByte(unsigned char byte) {
    return ByteOfCharacter(SmallLetterOf(CharacterOfByte(byte))).value_or(byte);
}

std::u32string SmallLetters(std::u32string_view text) {
    std::u32string small(text);
    std::transform(small.begin(), small.end(), small.begin(), SmallLetterOf);
    return small;
}

}  // namespace brelex
