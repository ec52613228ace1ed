// SPDX-License-Identifier: MIT
// What the fuzz targets share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/byte_buffer.h"
#include "base/file_io.h"
#include "base/long_work.h"
#include "database/compressed_file.h"
#include "database/record_store.h"
#include "database/string_order.h"
#include "database/szdd_format.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace brelex {

/// Ends the run if what a target expects does not hold.
inline void Require(bool holds, const char* expectation) {
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s\n", expectation);
        std::abort();
    }
}

/// Takes an input apart from its beginning to its end. When it is used up, numbers are 0 and texts
/// are empty.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    /// The number in the next byte.
    unsigned Byte() {
        const unsigned byte = rest_.empty() ? 0 : static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(std::min<std::size_t>(rest_.size(), 1));
        return byte;
    }

    /// The number in the next two bytes, the lower one first.
    unsigned TwoBytes() {
        const unsigned low = Byte();
        return low | Byte() << 8U;
    }

    /// The text up to the next NUL or the end.
    std::string_view Text() { return Part('\0'); }

    /// The text up to the next line end or the end.
    std::string_view Line() { return Part('\n'); }

    /// Everything that is left.
    [[nodiscard]] std::string_view Rest() const { return rest_; }

    [[nodiscard]] bool IsAtEnd() const { return rest_.empty(); }

  private:
    std::string_view Part(char separator) {
        const std::string_view part = rest_.substr(0, rest_.find(separator));
        rest_.remove_prefix(std::min(rest_.size(), part.size() + 1));
        return part;
    }

    std::string_view rest_;
};

/// Fills a store with the lines of a text. NULs end a line, too. Tells the store of `more` lines
/// than there are, and returns whether it takes that.
inline bool FillWithLines(std::string_view lines, RecordStore& store, std::int64_t more) {
    ByteBuffer block(lines.size() + 1);
    Require(block.Data() != nullptr, "there is memory for the rows");
    char* const end = std::copy(lines.begin(), lines.end(), block.Data());
    *end = '\0';
    std::replace(block.Data(), end, '\n', '\0');
    const auto count = std::count(block.Data(), end + 1, '\0') + more;
    WorkWatcher nobody;
    ExpandedFile file(std::move(block), 0, lines.size() + 1);
    return store.Fill(std::move(file), 0, static_cast<std::int32_t>(count), 1, nobody);
}

inline void FillWithLines(std::string_view lines, RecordStore& store) {
    Require(FillWithLines(lines, store, 0), "rows can be stored");
}

/// Whether each byte of a text is a single element of the order of the entries. Texts of such bytes
/// stay in order when they are cut.
inline bool IsPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return PlainWeightOf(c) != 0; });
}

/// Expands the data of a compressed file as the format describes it, item by item with a ring.
inline std::string ExpandedWithARing(std::string_view data) {
    std::string ring(kRingBytes, ' ');
    std::size_t at = kRingStart;
    std::string out;
    const auto put = [&](char c) {
        out.push_back(c);
        ring[at] = c;
        at = (at + 1) % ring.size();
    };
    std::size_t next = 0;
    while (next < data.size()) {
        auto flags = static_cast<unsigned char>(data[next++]);
        for (int item = 0; item < 8; ++item, flags = static_cast<unsigned char>(flags >> 1U)) {
            const bool literal = (flags & 1U) != 0;
            if (data.size() - next < (literal ? 1 : 2)) {
                return out;
            }
            if (literal) {
                put(data[next++]);
                continue;
            }
            const auto first = static_cast<unsigned char>(data[next++]);
            const auto second = static_cast<unsigned char>(data[next++]);
            const std::size_t from = first | ((second & 0xF0U) << 4U);
            for (std::size_t i = 0; i < (second & 0x0FU) + kMinMatch; ++i) {
                put(ring[(from + i) % ring.size()]);
            }
        }
    }
    return out;
}

/// A temporary folder for code that takes the name of a file. It goes with the program.
class FuzzFolder {
  public:
    FuzzFolder() {
        std::random_device random;
        do {
            folder_ = std::filesystem::temp_directory_path() /
                      ("brelex-fuzz-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(folder_));
    }

    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;

    ~FuzzFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return folder_; }

    /// The path of the file called `name` (UTF-8).
    [[nodiscard]] std::string PathOf(const std::string& name) const {
        return Utf8OfPath(folder_ / PathOfUtf8(name));
    }

    /// Writes a file and returns its path.
    std::string Write(const std::string& name, std::string_view bytes) const {
        std::string path = PathOf(name);
        std::ofstream file(PathOfUtf8(path), std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        Require(file.flush().good(), "files can be written in the temporary folder");
        return path;
    }

    /// Removes all files.
    void Clear() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
            std::filesystem::remove_all(entry.path());
        }
    }

  private:
    std::filesystem::path folder_;
};

/// Requires what every record in a database has to be, whatever the input was.
inline void RequireStorable(const std::string& record) {
    const std::size_t tab = record.find('\t');
    Require(tab != std::string::npos && tab > 0 && tab + 1 < record.size(),
            "a record has an abbreviation and an expansion");
    Require(record.find_first_of(std::string_view("\0\n\r\x1b", 4)) == std::string::npos,
            "a record is free of control characters");
}

}  // namespace brelex
