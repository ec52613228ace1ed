// SPDX-License-Identifier: MIT
#include "database/integrity_check.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "base/byte_buffer.h"
#include "base/file_io.h"
#include "base/scope.h"
#include "database/modCRC32.h"
#include "database/modDataLoader.h"

namespace brelex {

namespace {

// The record block of an expanded file, as many bytes as the header says.
struct RecordBlock {
    std::string_view bytes;
    ByteBuffer filledUp;  // has the bytes if the file has too few of them
};

// What is missing is filled up with zeros.
RecordBlock RecordBlockOf(std::string_view file, std::size_t length) {
    RecordBlock block{file.substr(std::min(kHeaderBytes, file.size()), length), {}};
    if (block.bytes.size() == length) {
        return block;
    }
    block.filledUp = ByteBuffer(length);
    char* const rest = std::copy(block.bytes.begin(), block.bytes.end(), block.filledUp.Data());
    std::fill(rest, block.filledUp.Data() + length, '\0');
    block.bytes = block.filledUp.View();
    return block;
}

// What the temporary file contains after the database was expanded into it. The file is gone before
// any events run, so nothing that ends the program then leaves it behind.
std::optional<ByteBuffer> ExpandedThroughTemporaryFile(const ProgramValues& values,
                                                       TemporaryFiles& files) {
    const auto expanded = ExpandIntoTemporaryFile(values.DatabasePath, values.TempFolder, files);
    const std::filesystem::path temporary =
        PathOfUtf8((expanded ? expanded->folder : values.TempFolder) + kTempFileName);
    const OnLeaving removed([&temporary] {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
    });
    // What stands there if that failed proves nothing.
    return expanded ? ReadWholeFile(temporary) : std::nullopt;
}

}  // namespace

bool IsDataIntact(const ProgramValues& values, TemporaryFiles& files, WorkWatcher& watcher) {
    // Where this fails, the CRC will tell.
    const auto file = ExpandedThroughTemporaryFile(values, files);
    const auto length = static_cast<std::size_t>(std::max(values.Header.DataSize, 0));
    const RecordBlock block = RecordBlockOf(file ? file->View() : std::string_view(), length);
    return GetCRCFromByteArray(block.bytes, &watcher) == values.Header.DataCRC &&
           block.bytes.size() == length;
}

}  // namespace brelex
