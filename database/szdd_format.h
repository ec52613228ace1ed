// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace brelex {

/// The compressed file format "SZDD": a 14-byte header and LZSS data over a ring of 4096 bytes.
/// docs/data-format.md describes it.

/// The header's first bytes. The last of them means the LZSS method.
inline constexpr std::string_view kSzddSignature{"SZDD\x88\xF0\x27\x33\x41", 9};

/// All of the header: signature, missing character of the name, length of the expanded file.
inline constexpr std::size_t kSzddHeaderBytes = 14;

inline constexpr std::size_t kRingBytes = 4096;
inline constexpr std::size_t kRingStart =
    kRingBytes - 16;  ///< where the first byte goes in the ring
inline constexpr std::size_t kMinMatch = 3;
inline constexpr std::size_t kMaxMatch = 18;

}  // namespace brelex
