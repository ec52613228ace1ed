// SPDX-License-Identifier: MIT
#include "tests/data/entry_files.h"

#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "base/windows1252.h"
#include "tools/corrections.h"
#include "tools/dictd_reader.h"
#include "tools/input_entries.h"

namespace brelex {

namespace {

std::filesystem::path PackageIndex() {
    return std::filesystem::exists(PACKAGE_INDEX) ? PACKAGE_INDEX : "/usr/share/dictd/vera.index";
}

}  // namespace

std::filesystem::path DataFolder() {
    return DATA_FOLDER;
}

std::filesystem::path CorrectionsFile() {
    return DataFolder() / "vera-corrections.tsv";
}

std::vector<std::string> LinesOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::filesystem::path> EntryFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(DataFolder())) {
        if (entry.path().extension() == ".tsv" && entry.path() != CorrectionsFile()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void ForEachEntry(
    const std::function<void(const std::string& line, const std::string& place)>& check) {
    for (const auto& file : EntryFiles()) {
        int number = 0;
        for (const std::string& line : LinesOf(file)) {
            check(line, file.filename().string() + ":" + std::to_string(++number) + ": " + line);
        }
    }
}

bool HasPackage() {
    return std::filesystem::exists(PackageIndex());
}

std::vector<std::string> CorrectedPackage() {
    Corrections corrections;
    std::vector<std::string> records;
    InputReport report;
    corrections.ReadFile(CorrectionsFile(), report);
    ReadDictdPair(PackageIndex(), records, report, &corrections);
    corrections.ReportUnused(report);
    EXPECT_EQ(report.errors, std::vector<std::string>());
    EXPECT_GT(records.size(), 10000U);
    std::transform(records.begin(), records.end(), records.begin(), Utf8OfBytes);
    return records;
}

}  // namespace brelex
