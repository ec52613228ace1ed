// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brelex {

/// An entry of a dictionary to write, in UTF-8.
struct DictionaryEntry {
    std::string abbreviation;
    std::string expansion;
};

/// A dictionary to write.
struct Dictionary {
    std::string title;
    std::string description;  ///< one line
    std::string date;         ///< in the form YYYY-MM-DD, or empty
    std::vector<DictionaryEntry> entries;
};

/// One of the files that make a dictionary.
struct DictionaryFile {
    std::string ending;  ///< of its name, with the period
    std::string bytes;
};

/// The dictionary for dictd: NAME.dict and NAME.index. Each entry has an article of its own.
[[nodiscard]] std::vector<DictionaryFile> DictdFiles(const Dictionary& dictionary);

/// The dictionary for StarDict: NAME.dict, NAME.idx and NAME.ifo. All entries with the same
/// abbreviation share an article, because some programs show only one for each headword.
[[nodiscard]] std::vector<DictionaryFile> StardictFiles(const Dictionary& dictionary);

}  // namespace brelex
