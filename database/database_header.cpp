// SPDX-License-Identifier: MIT
#include "database/database_header.h"

#include <bit>
#include <cassert>

namespace brelex {

namespace {

// The one list of the fields in file order: reading and writing both walk it.
template <typename Header, typename Codec>
void VisitFields(Header& header, Codec& codec) {
    codec.Float(header.Version);
    codec.Double(header.ReleaseDate);
    codec.Int(header.MaxAbbrvLength);
    codec.Int(header.MaxExpansionLength);
    codec.Int(header.RecordCount);
    codec.Int(header.DataSize);
    codec.Int(header.Reserved);
    codec.Int(header.DataCRC);
    codec.Int(header.AvgAbbrvLength);
    codec.Int(header.AvgExpansionLength);
    codec.Int(header.LongestAbbrvIndex);
    codec.Int(header.LongestExpansionIndex);
    codec.Char(header.CommonFirstLetter);
    codec.Int(header.CommonFirstLetterCount);
    codec.Int(header.MostExpansionsIndex);
    codec.Int(header.MostExpansionsCount);
    codec.Text(header.SearchListText);
}

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    void Float(float& value) { value = std::bit_cast<float>(Take<std::uint32_t>()); }

    void Double(double& value) { value = std::bit_cast<double>(Take<std::uint64_t>()); }

    void Int(std::int32_t& value) { value = std::bit_cast<std::int32_t>(Take<std::uint32_t>()); }

    void Char(char& value) { value = std::bit_cast<char>(Take<std::uint8_t>()); }

    void Text(std::string& value) {
        value = bytes_.substr(0, kSearchListLength);
        bytes_.remove_prefix(kSearchListLength);
    }

  private:
    template <typename Unsigned>
    Unsigned Take() {
        Unsigned value = 0;
        for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
            const auto byte = static_cast<unsigned char>(bytes_[i]);
            value = static_cast<Unsigned>(value | static_cast<Unsigned>(Unsigned{byte} << (8 * i)));
        }
        bytes_.remove_prefix(sizeof(Unsigned));
        return value;
    }

    std::string_view bytes_;
};

class Writer {
  public:
    void Float(float value) { Put(std::bit_cast<std::uint32_t>(value)); }

    void Double(double value) { Put(std::bit_cast<std::uint64_t>(value)); }

    void Int(std::int32_t value) { Put(std::bit_cast<std::uint32_t>(value)); }

    void Char(char value) { bytes_.push_back(value); }

    void Text(std::string value) {
        value.resize(kSearchListLength, ' ');
        bytes_ += value;
    }

    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

  private:
    template <typename Unsigned>
    void Put(Unsigned value) {
        for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
            bytes_.push_back(static_cast<char>(static_cast<unsigned char>(value >> (8 * i))));
        }
    }

    std::string bytes_;
};

}  // namespace

DatabaseHeader DecodeHeader(std::string_view bytes) {
    assert(bytes.size() >= kHeaderBytes);
    DatabaseHeader header;
    Reader reader(bytes);
    VisitFields(header, reader);
    return header;
}

std::string EncodeHeader(const DatabaseHeader& header) {
    Writer writer;
    VisitFields(header, writer);
    assert(writer.Bytes().size() == kHeaderBytes);
    return writer.Bytes();
}

std::int32_t RowOfHeaderIndex(std::int32_t index, std::int32_t rowCount) {
    const auto row = static_cast<std::int16_t>(static_cast<std::uint32_t>(index) & 0xFFFFU);
    return row >= 0 && row < rowCount ? row : -1;
}

}  // namespace brelex
