// SPDX-License-Identifier: MIT
#include "database/modDataLoader.h"

#include <cmath>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/file_io.h"
#include "base/number_text.h"
#include "database/database_file.h"

namespace brelex {

namespace {

bool ReportFailure(LoadFailure failure, MessageSink& messages) {
    messages.Show({std::string(ReasonText(failure)) + "\n\nPlease, reinstall " + kAppTitle + ".",
                   kAppTitle, MessageIcon::Stop, MessageButtons::Ok});
    return false;
}

}  // namespace

std::optional<ExpandedFile> ExpandIntoTemporaryFile(const ProgramValues& values,
                                                    TemporaryFiles& files,
                                                    std::size_t& fileLength) {
    const auto file = ReadWholeFile(PathOfUtf8(values.DatabasePath));
    if (!file) {
        return std::nullopt;
    }
    fileLength = file->Size();
    auto expanded = ExpandSzdd(file->View());
    if (!expanded || !files.WriteNewFile(values.TempFilePath, expanded->View())) {
        return std::nullopt;
    }
    return expanded;
}

bool LoadDatabase(ProgramValues& values, RecordStore& store,
                  const LoaderSurroundings& surroundings) {
    values.TempFolder = surroundings.files.GetTempFolder();
    if (values.TempFolder.empty()) {
        values.TempFolder = values.AppFolder;
    }
    values.TempFilePath = values.TempFolder + kTempFileName;

    std::size_t fileLength = 0;
    auto expanded = ExpandIntoTemporaryFile(values, surroundings.files, fileLength);
    if (!expanded) {
        return ReportFailure(LoadFailure::CannotDecode, surroundings.messages);
    }
    const LoadFailure failure = CheckExpandedFile(fileLength, expanded->View(), values.Header);
    if (failure != LoadFailure::None) {
        return ReportFailure(failure, surroundings.messages);
    }
    values.RecordCount = values.Header.RecordCount;
    values.ProgressStep = ProgressStepOf(values.RecordCount);
    std::error_code ignored;
    std::filesystem::remove(PathOfUtf8(values.TempFilePath), ignored);

    surroundings.progress.SetStatusText("Loading database (" +
                                        FormatGrouped(values.RecordCount, values.groupSeparator) +
                                        " records). Please, wait...");
    if (!store.Fill(std::move(*expanded), kHeaderBytes, values.RecordCount, values.ProgressStep,
                    surroundings.progress)) {
        return ReportFailure(LoadFailure::BadHeader, surroundings.messages);
    }
    // A count below zero is a damaged header's: there are no entries then.
    values.RecordCount = store.RowCount();
    surroundings.progress.SetProgress(100);
    return true;
}

float LoadingTimeBetween(float before, float after) {
    return static_cast<float>(std::nearbyint(static_cast<double>(after - before) * 100) / 100);
}

}  // namespace brelex
