// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <optional>
#include <utility>

namespace brelex {

std::string_view ReasonText(LoadFailure failure) {
    switch (failure) {
        case LoadFailure::CannotDecode:
            return "Cannot decode a corrupt database. Loading was aborted.";
        case LoadFailure::CorruptHeader:
            return "The database header is corrupt. Loading was aborted.";
        case LoadFailure::BadHeader:
            return "Bad database header or corrupt data. Loading was aborted.";
        case LoadFailure::None:
            break;
    }
    return {};
}

LoadFailure CheckExpandedFile(std::size_t fileLength, std::string_view expanded,
                              DatabaseHeader& header) {
    if (fileLength == expanded.size()) {
        return LoadFailure::CannotDecode;
    }
    if (expanded.size() <= kHeaderBytes) {
        return LoadFailure::CorruptHeader;
    }
    header = DecodeHeader(expanded);
    const auto blockBytes = static_cast<std::int64_t>(expanded.size() - kHeaderBytes);
    return header.DataSize == blockBytes ? LoadFailure::None : LoadFailure::BadHeader;
}

std::int32_t ProgressStepOf(std::int32_t recordCount) {
    return recordCount > 0 ? recordCount / 100 + 1 : 1;
}

LoadFailure ReadDatabase(std::string_view file, DatabaseHeader& header, RecordStore& store) {
    std::optional<ExpandedFile> expanded = ExpandSzdd(file);
    if (!expanded) {
        return LoadFailure::CannotDecode;
    }
    const LoadFailure failure = CheckExpandedFile(file.size(), expanded->View(), header);
    if (failure != LoadFailure::None) {
        return failure;
    }
    NoProgress progress;
    return store.Fill(std::move(*expanded), kHeaderBytes, header.RecordCount,
                      ProgressStepOf(header.RecordCount), progress)
               ? LoadFailure::None
               : LoadFailure::BadHeader;
}

}  // namespace brelex
