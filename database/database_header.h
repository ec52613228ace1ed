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

/// The header of the expanded database file. Lengths are in characters, record indexes are 0-based.
/// Nothing in it is trusted: in a damaged file, any field can have any value.
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

    /// How many characters an abbreviation can have: MaxAbbrvLength, but never negative.
    [[nodiscard]] std::size_t AbbreviationLimit() const;
};

/// Where the value of a header field comes from.
enum class FieldSource {
    Maker,    ///< from the maker of the database, or a matter of the file format
    Records,  ///< counted over the records (see ComputeStatistics)
    Checksum  ///< a checksum of the record block
};

/// The one list of the header's fields: calls visit(name, member, source) for each of them, in file
/// order. `member` is a pointer to the data member.
template <typename Visitor>
void VisitFields(Visitor&& visit) {
    using Header = DatabaseHeader;
    visit("Version", &Header::Version, FieldSource::Maker);
    visit("ReleaseDate", &Header::ReleaseDate, FieldSource::Maker);
    visit("MaxAbbrvLength", &Header::MaxAbbrvLength, FieldSource::Records);
    visit("MaxExpansionLength", &Header::MaxExpansionLength, FieldSource::Records);
    visit("RecordCount", &Header::RecordCount, FieldSource::Records);
    visit("DataSize", &Header::DataSize, FieldSource::Maker);
    visit("Reserved", &Header::Reserved, FieldSource::Maker);
    visit("DataCRC", &Header::DataCRC, FieldSource::Checksum);
    visit("AvgAbbrvLength", &Header::AvgAbbrvLength, FieldSource::Records);
    visit("AvgExpansionLength", &Header::AvgExpansionLength, FieldSource::Records);
    visit("LongestAbbrvIndex", &Header::LongestAbbrvIndex, FieldSource::Records);
    visit("LongestExpansionIndex", &Header::LongestExpansionIndex, FieldSource::Records);
    visit("CommonFirstLetter", &Header::CommonFirstLetter, FieldSource::Records);
    visit("CommonFirstLetterCount", &Header::CommonFirstLetterCount, FieldSource::Records);
    visit("MostExpansionsIndex", &Header::MostExpansionsIndex, FieldSource::Records);
    visit("MostExpansionsCount", &Header::MostExpansionsCount, FieldSource::Records);
    visit("SearchListText", &Header::SearchListText, FieldSource::Maker);
}

/// Reads the header from its bytes. Requires at least kHeaderBytes of them; any others are ignored.
[[nodiscard]] DatabaseHeader DecodeHeader(std::string_view bytes);

/// The header as its kHeaderBytes bytes, little-endian and packed. Cuts or pads SearchListText to
/// its length in the file.
[[nodiscard]] std::string EncodeHeader(const DatabaseHeader& header);

/// The row (0-based) that a record index from the header refers to: its low 16 bits as a signed
/// number, which is how the list's items are addressed. -1 if that is not one of `rowCount` rows.
[[nodiscard]] std::int32_t RowOfHeaderIndex(std::int32_t index, std::int32_t rowCount);

}  // namespace brelex
