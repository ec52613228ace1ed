// SPDX-License-Identifier: MIT
#include "tests/support/test_files.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <random>

#include "base/file_io.h"
#include "database/database_builder.h"
#include "database/szdd.h"

namespace brelex {

namespace fs = std::filesystem;

TestFolder::TestFolder() {
    static std::mt19937_64 random(std::random_device{}());
    path_ = fs::temp_directory_path() / ("brelex-test-" + std::to_string(random()));
    fs::create_directory(path_);
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::permissions(path_, fs::perms::owner_all, ignored);
    fs::remove_all(path_, ignored);
}

std::string TestFolder::Text() const {
    return WithTrailingSeparator(Utf8OfPath(path_));
}

std::string TestFolder::Write(const std::string& name, std::string_view bytes) const {
    const fs::path path = path_ / PathOfUtf8(name);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return Utf8OfPath(path);
}

std::string ReadText(const fs::path& path) {
    const auto file = ReadWholeFile(path);
    return file ? std::string(file->View()) : "(unreadable)";
}

std::string ExpandedBytes(const std::vector<std::string>& records) {
    DatabaseContent content;
    content.version = 1.5F;
    content.releaseDate = std::chrono::year(2005) / 2 / 3;
    content.records = records;
    content.searchList = "network1memory";
    return BuildDatabase(std::move(content)).expanded;
}

std::string DatabaseBytes(const std::vector<std::string>& records) {
    return CompressSzdd(ExpandedBytes(records));
}

std::string DatabaseBytes(const std::vector<std::string>& records,
                          const std::function<void(DatabaseHeader&)>& change) {
    std::string expanded = ExpandedBytes(records);
    DatabaseHeader header = DecodeHeader(expanded);
    change(header);
    expanded.replace(0, kHeaderBytes, EncodeHeader(header));
    return CompressSzdd(expanded);
}

std::string Incompressible(std::size_t length) {
    std::string text;
    std::uint32_t value = 12345;
    for (std::size_t i = 0; i < length; ++i) {
        value = value * 1664525U + 1013904223U;
        text.push_back(static_cast<char>(0x21 + (value >> 16U) % 94));
    }
    return text;
}

std::string RecordOfEqualLengths() {
    // Eight incompressible characters take nine bytes. So each eight bring the two lengths closer
    // by a byte, and the two are equal for eight successive lengths.
    std::size_t length = 1;
    while (true) {
        std::string record = "A\t" + Incompressible(length);
        const std::string expanded = ExpandedBytes({record});
        const std::size_t gap = expanded.size() - CompressSzdd(expanded).size();
        if (gap == 0) {
            return record;
        }
        length += gap > 1 ? 8 * (gap - 1) : 1;
    }
}

std::vector<std::string> NumberedRecords(int count) {
    std::vector<std::string> records;
    records.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const std::string digits = std::to_string(100000 + i);
        std::string record = "A";
        record += digits;
        record += "\tEntry number ";
        record += digits;
        records.push_back(std::move(record));
    }
    return records;
}

}  // namespace brelex
