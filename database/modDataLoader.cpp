// SPDX-License-Identifier: MIT
#include "database/modDataLoader.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

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

std::optional<ExpandedIntoFile> ExpandIntoTemporaryFile(const std::string& databasePath,
                                                        const std::string& firstFolder,
                                                        TemporaryFiles& files) {
    auto file = CompressedFile::Read(PathOfUtf8(databasePath));
    if (!file) {
        return std::nullopt;
    }
    auto database = ExpandDatabase(std::move(*file));
    if (!database) {
        return std::nullopt;
    }
    const std::string_view bytes = database->content.View();
    std::vector<std::string> folders = {firstFolder};
    for (std::string& folder : files.OtherFolders()) {
        if (folder != firstFolder) {
            folders.push_back(std::move(folder));
        }
    }
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const std::string path = folders[i] + kTempFileName;
        if (files.WriteNewFile(path, bytes)) {
            return ExpandedIntoFile{std::move(*database), std::move(folders[i])};
        }
        if (i + 1 < folders.size()) {
            std::error_code ignored;
            std::filesystem::remove(PathOfUtf8(path), ignored);  // what was written of it
        }
    }
    return std::nullopt;
}

bool LoadDatabase(ProgramValues& values, RecordStore& store,
                  const LoaderSurroundings& surroundings) {
    values.TempFolder = surroundings.files.GetTempFolder();
    if (values.TempFolder.empty()) {
        values.TempFolder = values.AppFolder;
    }
    values.TempFilePath = values.TempFolder + kTempFileName;

    auto expanded =
        ExpandIntoTemporaryFile(values.DatabasePath, values.TempFolder, surroundings.files);
    if (!expanded) {
        return ReportFailure(LoadFailure::CannotDecode, surroundings.messages);
    }
    values.TempFolder = expanded->folder;
    values.TempFilePath = values.TempFolder + kTempFileName;
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
    const LoadFailure failure = ReadExpandedDatabase(std::move(expanded->database), values.Header,
                                                     store, surroundings.progress, onHeader);
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
