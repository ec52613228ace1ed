// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "base/app_info.h"
#include "database/database_header.h"
#include "database/row_list.h"

namespace brelex {

/// The values that the whole program shares. app/ owns the only instance. Paths are UTF-8; folders
/// end in the system's separator.
struct ProgramValues {
    const RowList* AcronymList = nullptr;  ///< the entries; set before loading begins
    std::int32_t RecordCount = 0;          ///< number of entries, as AcronymList->RowCount()
    std::string AppFolder;                 ///< the program's own folder
    std::string TempFolder;                ///< the user's temporary folder
    std::string DatabasePath;              ///< the database file
    std::string TempFilePath;              ///< where the database file is expanded to
    float LoadingTime = 0;                 ///< seconds that loading took, rounded to 2 decimals
    float AppVersion = 0;                  ///< major and minor version as one number, as 6.1
    DatabaseHeader Header;
    std::int32_t ProgressStep = 1;  ///< records between two progress reports
    AppInfo info;
    std::string groupSeparator = ",";    ///< between thousands in shown numbers, UTF-8
    std::string decimalSeparator = ".";  ///< before the decimals of shown numbers, UTF-8
};

}  // namespace brelex
