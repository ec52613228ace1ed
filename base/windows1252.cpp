// SPDX-License-Identifier: MIT
#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace brelex {

namespace {

// Bytes 80 to 9F. Every other byte is the character of its own number.
constexpr auto kUpperControls = std::to_array<char16_t>(
    {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
     0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
     0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178});

constexpr char32_t kReplacement = 0xFFFD;

struct Utf8Lead {
    std::size_t following;
    char32_t bits;
    char32_t smallest;  // anything below is an overlong form
};

std::optional<Utf8Lead> ReadLead(unsigned char byte) {
    if (byte < 0x80) {
        return Utf8Lead{0, byte, 0};
    }
    if ((byte & 0xE0U) == 0xC0) {
        return Utf8Lead{1, byte & 0x1FU, 0x80};
    }
    if ((byte & 0xF0U) == 0xE0) {
        return Utf8Lead{2, byte & 0x0FU, 0x800};
    }
    if ((byte & 0xF8U) == 0xF0) {
        return Utf8Lead{3, byte & 0x07U, 0x10000};
    }
    return std::nullopt;
}

// Removes the bytes of the first character from `rest`, which is not empty, and returns it.
char32_t TakeCharacter(std::string_view& rest) {
    const auto lead = ReadLead(static_cast<unsigned char>(rest.front()));
    if (!lead || rest.size() <= lead->following) {
        rest.remove_prefix(1);
        return kReplacement;
    }
    char32_t character = lead->bits;
    for (std::size_t i = 1; i <= lead->following; ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        if ((byte & 0xC0U) != 0x80) {
            rest.remove_prefix(1);
            return kReplacement;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < lead->smallest || surrogate || character > 0x10FFFF) {
        rest.remove_prefix(1);
        return kReplacement;
    }
    rest.remove_prefix(lead->following + 1);
    return character;
}

void AppendUtf8(std::string& utf8, char32_t character) {
    const auto append = [&utf8](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
    const auto bits = std::bit_width(static_cast<std::uint32_t>(character));
    if (bits <= 7) {
        append(character);
    } else if (bits <= 11) {
        append(0xC0U | (character >> 6U));
        append(0x80U | (character & 0x3FU));
    } else {  // Windows-1252 has nothing above FFFF
        append(0xE0U | (character >> 12U));
        append(0x80U | ((character >> 6U) & 0x3FU));
        append(0x80U | (character & 0x3FU));
    }
}

}  // namespace

char32_t CharacterOfByte(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? char32_t{kUpperControls[byte - 0x80U]} : char32_t{byte};
}

std::optional<unsigned char> ByteOfCharacter(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<unsigned char>(character);
    }
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    if (found == kUpperControls.end()) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(0x80 + std::distance(kUpperControls.begin(), found));
}

std::u32string DecodeUtf8(std::string_view utf8) {
    std::u32string characters;
    characters.reserve(utf8.size());
    while (!utf8.empty()) {
        characters.push_back(TakeCharacter(utf8));
    }
    return characters;
}

std::string Utf8OfBytes(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char byte : bytes) {
        AppendUtf8(utf8, CharacterOfByte(static_cast<unsigned char>(byte)));
    }
    return utf8;
}

EncodedText BytesOfUtf8(std::string_view utf8) {
    EncodedText encoded;
    while (!utf8.empty()) {
        const auto byte = ByteOfCharacter(TakeCharacter(utf8));
        if (!byte) {
            encoded.complete = false;
            return encoded;
        }
        encoded.bytes.push_back(static_cast<char>(*byte));
    }
    return encoded;
}

}  // namespace brelex
