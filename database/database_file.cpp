// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <algorithm>
#include <utility>

namespace brelex {

std::string_view ReasonText(LoadFailure failure) {
    switch (failure) {
        case LoadFailure::None:
            break;
        case LoadFailure::CannotDecode:
            return "Cannot decode a corrupt database. Loading was aborted.";
        case LoadFailure::CorruptHeader:
            return "The database header is corrupt. Loading was aborted.";
        case LoadFailure::BadHeader:
            return "Bad database header or corrupt data. Loading was aborted.";
    }
    return {};
}

std::optional<ExpandedDatabase> ExpandDatabase(CompressedFile file) {
    const std::size_t fileLength = file.Length();
    auto content = std::move(file).Expand();
    if (!content) {
        return std::nullopt;
    }
    return ExpandedDatabase{std::move(*content), fileLength};
}

std::int32_t ProgressStepOf(std::int32_t recordCount) {
    return std::max(recordCount, 0) / 100 + 1;
}

LoadFailure ReadExpandedDatabase(ExpandedDatabase database, DatabaseHeader& header,
                                 RecordStore& store, WorkWatcher& progress,
                                 const std::function<void()>& onHeader) {
    const std::string_view expanded = database.content.View();
    if (expanded.size() == database.fileLength) {
        return LoadFailure::CannotDecode;
    }
    if (expanded.size() <= kHeaderBytes) {
        return LoadFailure::CorruptHeader;
    }
    header = DecodeHeader(expanded);
    if (header.DataSize != static_cast<std::int64_t>(expanded.size() - kHeaderBytes)) {
        return LoadFailure::BadHeader;
    }
    onHeader();
    return store.Fill(std::move(database.content), kHeaderBytes, header.RecordCount,
                      ProgressStepOf(header.RecordCount), progress)
               ? LoadFailure::None
               : LoadFailure::BadHeader;
}

LoadFailure ReadDatabase(CompressedFile file, DatabaseHeader& header, RecordStore& store) {
    auto database = ExpandDatabase(std::move(file));
    if (!database) {
        return LoadFailure::CannotDecode;
    }
    WorkWatcher nobody;
    return ReadExpandedDatabase(std::move(*database), header, store, nobody, [] {});
}

LoadFailure ReadDatabase(std::string_view file, DatabaseHeader& header, RecordStore& store) {
    return ReadDatabase(CompressedFile::Copy(file), header, store);
}

}  // namespace brelex
