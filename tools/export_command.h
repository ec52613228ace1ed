// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "tools/output_file.h"

namespace brelex {

enum class ExportFormat {
    Tsv,
    Csv,
    Json,
    Dictd,
    Stardict
};

/// The options of "brelex export".
struct ExportRequest {
    ExportFormat format = ExportFormat::Tsv;
    OutputRequest output{"-"};
};

/// Writes all entries of the database for other programs. A dictionary for dictd or StarDict
/// consists of several files, which are named like the output but for their endings; it cannot go
/// to standard output. Reports the result on `err`. Returns the exit code: kFound, kNothingFound if
/// there are no entries, or kFailed.
int RunExport(const std::string& database, const ExportRequest& request, std::ostream& out,
              std::ostream& err);

}  // namespace brelex
