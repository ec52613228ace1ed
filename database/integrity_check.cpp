// SPDX-License-Identifier: MIT
#include "database/integrity_check.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

#include "database/file_io.h"
#include "database/modDataLoader.h"

namespace brelex {

namespace {

// The record block in the temporary file, as many bytes as the header says.
std::string ReadRecordBlock(const ProgramValues& values) {
    std::string block(static_cast<std::size_t>(std::max(values.Header.DataSize, 0)), '\0');
    const auto file = ReadWholeFile(PathOfUtf8(values.TempFilePath));
    if (file && file->Size() > kHeaderBytes) {
        const std::string_view data = file->View().substr(kHeaderBytes, block.size());
        std::copy(data.begin(), data.end(), block.begin());
    }
    return block;
}

}  // namespace

bool IsDataIntact(const ProgramValues& values, TemporaryFiles& files, CrcWatcher& watcher) {
    const std::filesystem::path temporary = PathOfUtf8(values.TempFilePath);
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);  // one that was left behind proves nothing
    std::size_t fileLength = 0;
    // Where this fails, the CRC will tell.
    (void)ExpandIntoTemporaryFile(values, files, fileLength);
    const std::string block = ReadRecordBlock(values);
    std::filesystem::remove(temporary, ignored);
    return GetCRCFromByteArray(block, &watcher) == values.Header.DataCRC;
}

}  // namespace brelex
