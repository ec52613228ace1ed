// SPDX-License-Identifier: MIT
#include "database/integrity_check.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "database/file_io.h"
#include "database/modDataLoader.h"

namespace brelex {

namespace {

// The record block in an expanded file, as many bytes as the header says.
std::string_view RecordBlock(std::string_view file, std::size_t bytes, std::string& filledUp) {
    const std::string_view block = file.substr(std::min(kHeaderBytes, file.size()), bytes);
    if (block.size() == bytes) {
        return block;
    }
    filledUp = block;
    filledUp.resize(bytes);
    return filledUp;
}

}  // namespace

bool IsDataIntact(const ProgramValues& values, TemporaryFiles& files, CrcWatcher& watcher) {
    const std::filesystem::path temporary = PathOfUtf8(values.TempFilePath);
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);  // one that was left behind proves nothing
    std::size_t fileLength = 0;
    // Where this fails, the CRC will tell.
    (void)ExpandIntoTemporaryFile(values, files, fileLength);
    const auto file = ReadWholeFile(temporary);
    std::filesystem::remove(temporary, ignored);
    std::string filledUp;
    const std::string_view block =
        RecordBlock(file ? file->View() : std::string_view(),
                    static_cast<std::size_t>(std::max(values.Header.DataSize, 0)), filledUp);
    return GetCRCFromByteArray(block, &watcher) == values.Header.DataCRC;
}

}  // namespace brelex
