// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/corrections.h"
#include "tools/input_entries.h"

namespace brelex {

/// An abbreviation and its expansion, UTF-8.
struct DictdEntry {
    std::string abbreviation;
    std::string expansion;

    bool operator==(const DictdEntry&) const = default;
};

/// Returns the entries in one article of a dictd dictionary of acronyms. Usually there is one, with
/// the headword on the first line and the wrapped expansion below. There are several if the article
/// gives more than one spelling or contains further entries. A spelling in quotes at the end ("3D
/// DDI") replaces the headword if it has the same letters. Has no blanks or
/// TABs around the parts. Omits entries without an expansion.
[[nodiscard]] std::vector<DictdEntry> EntriesOfArticle(std::string_view article);

/// Returns the entries in a header article of the dictionary, which come after the article's text.
[[nodiscard]] std::vector<DictdEntry> EntriesOfHeaderArticle(std::string_view article);

/// The other half of a dictionary, whatever the case of its name: NAME.dict.dz, or else NAME.dict,
/// for NAME.index, and the other way round.
[[nodiscard]] std::filesystem::path DictionaryOfIndex(const std::filesystem::path& index);
[[nodiscard]] std::filesystem::path IndexOfDictionary(const std::filesystem::path& dictionary);

/// A file in memory, and the name by which problems in it are reported (UTF-8).
struct NamedBytes {
    std::string name;
    std::string_view bytes;
};

/// Reads a dictionary from the content of its two files, of which the dictionary may be a gzip
/// file. Applies the corrections, if there are any, to its entries.
void ReadDictd(const NamedBytes& index, const NamedBytes& dictionary,
               std::vector<std::string>& records, InputReport& report,
               Corrections* corrections = nullptr);

/// Reads the dictionary whose index is at `indexPath` (name.index, in the same folder as
/// name.dict.dz or name.dict).
void ReadDictdPair(const std::filesystem::path& indexPath, std::vector<std::string>& records,
                   InputReport& report, Corrections* corrections = nullptr);

}  // namespace brelex
