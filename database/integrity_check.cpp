// SPDX-License-Identifier: MIT
#include "database/integrity_check.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/byte_buffer.h"
#include "base/file_io.h"
#include "database/modDataLoader.h"

namespace brelex {

namespace {

// The record block in an expanded file, as many bytes as the header says, filled up with zeros;
// less if there is not the memory for that.
std::string_view RecordBlock(std::string_view file, std::size_t bytes, ByteBuffer& filledUp) {
    const std::string_view block = file.substr(std::min(kHeaderBytes, file.size()), bytes);
    if (block.size() == bytes) {
        return block;
    }
    filledUp = ByteBuffer(bytes);
    if (filledUp.IsNull()) {
        return block;
    }
    std::copy(block.begin(), block.end(), filledUp.Data());
    std::fill(filledUp.Data() + block.size(), filledUp.Data() + bytes, '\0');
    return filledUp.View();
}

}  // namespace

bool IsDataIntact(const ProgramValues& values, TemporaryFiles& files, CrcWatcher& watcher) {
    const std::filesystem::path temporary = PathOfUtf8(values.TempFilePath);
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);  // one that was left behind proves nothing
    // Where this fails, the CRC will tell.
    (void)ExpandIntoTemporaryFile(values, files);
    const auto file = ReadWholeFile(temporary);
    std::filesystem::remove(temporary, ignored);
    ByteBuffer filledUp;
    const auto bytes = static_cast<std::size_t>(std::max(values.Header.DataSize, 0));
    const std::string_view block =
        RecordBlock(file ? file->View() : std::string_view(), bytes, filledUp);
    return GetCRCFromByteArray(block, &watcher) == values.Header.DataCRC && block.size() == bytes;
}

}  // namespace brelex
