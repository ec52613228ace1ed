// SPDX-License-Identifier: MIT
#include "tools/corrections.h"

#include <string_view>

#include "base/file_io.h"
#include "base/text.h"
#include "tools/input_file.h"

namespace brelex {

namespace {

std::vector<std::string> PartsOf(std::string_view line) {
    std::vector<std::string> parts;
    while (!line.empty()) {
        parts.emplace_back(TrimWhitespace(TakePart(line, '\t')));
    }
    return parts;
}

bool CanBeStored(const Corrections::Entry& entry, const std::string& place, InputReport& report) {
    const std::size_t errors = report.errors.size();
    InputReport found;
    std::vector<std::string> records;
    AddEntry(entry.first, entry.second, place, records, found);
    report.errors.insert(report.errors.end(), found.errors.begin(), found.errors.end());
    return report.errors.size() == errors;
}

}  // namespace

void Corrections::ReadFile(const std::filesystem::path& path, InputReport& report) {
    const auto file = ReadInputFile(path, report);
    if (!file) {
        return;
    }
    ForEachLine(Utf8OfPath(path), file->View(), report,
                [&](std::string_view line, const std::string& place) {
                    AddLine(TrimWhitespace(line), place, report);
                });
}

void Corrections::AddLine(std::string_view line, const std::string& place, InputReport& report) {
    std::vector<std::string> parts = PartsOf(line);
    const bool complete =
        (parts.size() == 2 || parts.size() == 4) && !parts.front().empty() && !parts[1].empty();
    if (!complete) {
        report.errors.push_back(place +
                                ": neither an entry to leave out (abbreviation, TAB, expansion) "
                                "nor one to replace (the same, TAB, and the new entry)");
        return;
    }
    Correction correction{place, std::nullopt};
    if (parts.size() == 4) {
        correction.replacement = Entry(std::move(parts[2]), std::move(parts[3]));
        if (!CanBeStored(*correction.replacement, place, report)) {
            return;
        }
    }
    const auto [known, isNew] =
        indexOf_.try_emplace(Entry(std::move(parts[0]), std::move(parts[1])), corrections_.size());
    if (!isNew) {
        report.errors.push_back(place + ": corrects the same entry as " +
                                corrections_[known->second].place);
        return;
    }
    corrections_.push_back(std::move(correction));
}

std::optional<Corrections::Entry> Corrections::Apply(Entry entry) {
    const auto found = indexOf_.find(entry);
    if (found == indexOf_.end()) {
        return entry;
    }
    Correction& correction = corrections_[found->second];
    correction.used = true;
    return correction.replacement;
}

void Corrections::ReportUnused(InputReport& report) const {
    for (const Correction& correction : corrections_) {
        if (!correction.used) {
            report.errors.push_back(correction.place + ": matches no entry of the dictionaries");
        }
    }
}

}  // namespace brelex
