// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brelex {

/// Size of the encoded header in bytes; the record block follows it.
inline constexpr std::size_t kHeaderBytes = 1089;

/// Size of SearchListText in characters.
inline constexpr std::size_t kSearchListLength = 1024;

/// The header of the expanded database file. Lengths are in characters, record indexes 0-based.
/// Nothing in it is trusted: a damaged file can hold any value in any field.
struct DatabaseHeader {
    float Version = 0;
    double ReleaseDate = 0;  ///< days since 30 December 1899; the fraction is the time of day
    std::int32_t MaxAbbrvLength = 0;
    std::int32_t MaxExpansionLength = 0;
    std::int32_t RecordCount = 0;
    std::int32_t DataSize = 0;  ///< bytes of the record block
    std::int32_t Reserved = 0;
    std::int32_t DataCRC = 0;  ///< CRC-32 of the record block
    std::int32_t AvgAbbrvLength = 0;
    std::int32_t AvgExpansionLength = 0;
    std::int32_t LongestAbbrvIndex = 0;
    std::int32_t LongestExpansionIndex = 0;
    char CommonFirstLetter = ' ';  ///< a Windows-1252 byte
    std::int32_t CommonFirstLetterCount = 0;
    std::int32_t MostExpansionsIndex = 0;
    std::int32_t MostExpansionsCount = 0;
    /// Suggested search texts separated by the digit 1, as Windows-1252 bytes, padded with blanks.
    std::string SearchListText = std::string(kSearchListLength, ' ');

    bool operator==(const DatabaseHeader&) const = default;
};

/// Reads the header from its bytes; `bytes` holds kHeaderBytes at least.
[[nodiscard]] DatabaseHeader DecodeHeader(std::string_view bytes);

/// The header's kHeaderBytes bytes, little-endian and packed. A SearchListText of another length
/// is cut or padded.
[[nodiscard]] std::string EncodeHeader(const DatabaseHeader& header);

/// The row (0-based) that a record index in the header stands for: its low 16 bits as a signed
/// number, as the list's items are addressed. -1 if there is no such row among `rowCount`.
[[nodiscard]] std::int32_t RowOfHeaderIndex(std::int32_t index, std::int32_t rowCount);

}  // namespace brelex
