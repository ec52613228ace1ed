// SPDX-License-Identifier: MIT
#include "database/database_header.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "base/little_endian.h"

namespace brelex {

namespace {

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    void Read(float& value) { value = std::bit_cast<float>(Take<std::uint32_t>()); }

    void Read(double& value) { value = std::bit_cast<double>(Take<std::uint64_t>()); }

    void Read(std::int32_t& value) { value = std::bit_cast<std::int32_t>(Take<std::uint32_t>()); }

    void Read(char& value) { value = std::bit_cast<char>(Take<std::uint8_t>()); }

    void Read(std::string& value) {
        value = bytes_.substr(0, kSearchListLength);
        bytes_.remove_prefix(kSearchListLength);
    }

  private:
    template <typename Unsigned>
    Unsigned Take() {
        const auto value = ReadLittleEndian<Unsigned>(bytes_);
        bytes_.remove_prefix(sizeof(Unsigned));
        return value;
    }

    std::string_view bytes_;
};

class Writer {
  public:
    void Write(float value) { AppendLittleEndian(bytes_, std::bit_cast<std::uint32_t>(value)); }

    void Write(double value) { AppendLittleEndian(bytes_, std::bit_cast<std::uint64_t>(value)); }

    void Write(std::int32_t value) {
        AppendLittleEndian(bytes_, std::bit_cast<std::uint32_t>(value));
    }

    void Write(char value) { bytes_.push_back(value); }

    void Write(std::string value) {
        value.resize(kSearchListLength, ' ');
        bytes_ += value;
    }

    [[nodiscard]] const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

}  // namespace

std::size_t DatabaseHeader::AbbreviationLimit() const {
    return static_cast<std::size_t>(std::max(MaxAbbrvLength, 0));
}

DatabaseHeader DecodeHeader(std::string_view bytes) {
    assert(bytes.size() >= kHeaderBytes);
    DatabaseHeader header;
    Reader reader(bytes);
    VisitFields([&](const char* /*name*/, auto member, FieldSource /*source*/) {
        reader.Read(header.*member);
    });
    return header;
}

std::string EncodeHeader(const DatabaseHeader& header) {
    Writer writer;
    VisitFields([&](const char* /*name*/, auto member, FieldSource /*source*/) {
        writer.Write(header.*member);
    });
    assert(writer.Bytes().size() == kHeaderBytes);
    return writer.Bytes();
}

std::int32_t RowOfHeaderIndex(std::int32_t index, std::int32_t rowCount) {
    const auto row = static_cast<std::int16_t>(static_cast<std::uint32_t>(index) & 0xFFFFU);
    return row >= 0 && row < rowCount ? row : -1;
}

}  // namespace brelex
