// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/input_entries.h"

namespace brelex {

/// An abbreviation and its expansion, UTF-8.
struct DictdEntry {
    std::string abbreviation;
    std::string expansion;

    bool operator==(const DictdEntry&) const = default;
};

/// The entries in one article of a dictd dictionary of acronyms: usually one, with the headword in
/// the first line and the expansion, wrapped, below. Several if the article gives more than one
/// spelling or has further entries in it. A spelling in quotes at the end ("3D DDI") replaces the
/// headword if it has the same letters. An entry without an expansion is left out.
[[nodiscard]] std::vector<DictdEntry> EntriesOfArticle(std::string_view article);

/// The entries that stand in a header article of the dictionary, behind its text.
[[nodiscard]] std::vector<DictdEntry> EntriesOfHeaderArticle(std::string_view article);

/// Reads the dictionary whose index is at `indexPath` (name.index, beside name.dict.dz or
/// name.dict).
void ReadDictdPair(const std::filesystem::path& indexPath, std::vector<std::string>& records,
                   InputReport& report);

}  // namespace brelex
