// SPDX-License-Identifier: MIT
#include "database/modDataLoader.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/file_io.h"
#include "base/number_text.h"

namespace brelex {

namespace {

bool ReportFailure(LoadFailure failure, MessageSink& messages) {
    messages.Show({std::string(ReasonText(failure)) + "\n\nPlease, reinstall " + kAppTitle + ".",
                   kAppTitle, MessageIcon::Stop, MessageButtons::Ok});
    return false;
}

}  // namespace

std::optional<ExpandedDatabase> ExpandIntoTemporaryFile(const ProgramValues& values,
                                                        TemporaryFiles& files) {
    auto file = CompressedFile::Read(PathOfUtf8(values.DatabasePath));
    if (!file) {
        return std::nullopt;
    }
    auto database = ExpandDatabase(std::move(*file));
    if (!database || !files.WriteNewFile(values.TempFilePath, database->content.View())) {
        return std::nullopt;
    }
    return database;
}

bool LoadDatabase(ProgramValues& values, RecordStore& store,
                  const LoaderSurroundings& surroundings) {
    values.TempFolder = surroundings.files.GetTempFolder();
    if (values.TempFolder.empty()) {
        values.TempFolder = values.AppFolder;
    }
    values.TempFilePath = values.TempFolder + kTempFileName;

    auto database = ExpandIntoTemporaryFile(values, surroundings.files);
    if (!database) {
        return ReportFailure(LoadFailure::CannotDecode, surroundings.messages);
    }
    const auto onHeader = [&values, &surroundings] {
        const std::int32_t recordCount = values.Header.RecordCount;
        values.RecordCount = std::max(recordCount, 0);  // only a damaged header has less than none
        values.ProgressStep = ProgressStepOf(recordCount);
        std::error_code ignored;
        std::filesystem::remove(PathOfUtf8(values.TempFilePath), ignored);
        surroundings.progress.SetStatusText("Loading database (" +
                                            FormatGrouped(recordCount, values.groupSeparator) +
                                            " records). Please, wait...");
    };
    const LoadFailure failure = ReadExpandedDatabase(std::move(*database), values.Header, store,
                                                     surroundings.progress, onHeader);
    if (failure != LoadFailure::None) {
        return ReportFailure(failure, surroundings.messages);
    }
    assert(values.RecordCount == store.RowCount());
    store.MeasureOrder();
    surroundings.progress.SetProgress(100);
    return true;
}

float LoadingTimeBetween(float before, float after) {
    return static_cast<float>(std::nearbyint(static_cast<double>(after - before) * 100) / 100);
}

}  // namespace brelex
