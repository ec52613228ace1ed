// SPDX-License-Identifier: MIT
#include "tools/open_database.h"

#include <utility>

#include "base/file_io.h"
#include "database/database_file.h"
#include "tools/visible_text.h"

namespace brelex {

int Load(const std::string& path, OpenDatabase& database, std::ostream& err, int unloadable) {
    auto file = CompressedFile::Read(PathOfUtf8(path));
    if (!file) {
        PrintMessage(err, "cannot read " + path);
        return kFailed;
    }
    const LoadFailure failure = ReadDatabase(std::move(*file), database.header, database.store);
    if (failure != LoadFailure::None) {
        PrintMessage(err, path + ": " + std::string(ReasonText(failure)));
        return unloadable;
    }
    return kFound;
}

}  // namespace brelex
