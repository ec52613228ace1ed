// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace brelex {

/// The number that a file's bytes begin with, lowest byte first. There must be enough of them.
template <std::unsigned_integral Number>
[[nodiscard]] Number ReadLittleEndian(std::string_view bytes) {
    assert(bytes.size() >= sizeof(Number));
    Number number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        const Number byte = static_cast<unsigned char>(bytes[i]);
        number = static_cast<Number>(number | byte << (8 * i));
    }
    return number;
}

/// Appends a number to a file's bytes, lowest byte first.
template <std::unsigned_integral Number>
void AppendLittleEndian(std::string& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(number >> (8 * i))));
    }
}

}  // namespace brelex
