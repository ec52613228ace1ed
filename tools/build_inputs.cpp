// SPDX-License-Identifier: MIT
#include "tools/build_inputs.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/file_io.h"
#include "base/text.h"
#include "tools/dictd_reader.h"
#include "tools/input_file.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

// Whether `name` ends in `ending`, which is in small letters, whatever the case of its own.
bool HasEnding(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           std::equal(ending.begin(), ending.end(), name.end() - std::ssize(ending),
                      [](char a, char b) { return AsciiCapital(a) == AsciiCapital(b); });
}

bool IsDictionary(const std::string& input) {
    return HasEnding(input, ".dict.dz") || HasEnding(input, ".dict");
}

}  // namespace

InputReader::InputReader(std::istream& standardInput, Corrections& corrections,
                         std::vector<std::string>& records, InputReport& report)
    : standardInput_(standardInput),
      corrections_(corrections),
      records_(records),
      report_(report) {}

void InputReader::Read(const std::string& input) {
    const fs::path path = PathOfUtf8(input);
    if (input == kStandardStream) {
        ReadStandardInput();
    } else if (HasEnding(input, ".tsv")) {
        ReadTsvFile(path, records_, report_);
    } else if (HasEnding(input, ".index")) {
        ReadDictdPair(path, records_, report_, &corrections_);
    } else if (IsDictionary(input)) {
        ReadDictdPair(IndexOfDictionary(path), records_, report_, &corrections_);
    } else {
        report_.errors.push_back(input +
                                 ": neither a .tsv file nor a dictd dictionary (.index, .dict.dz)");
    }
}

void InputReader::ReadStandardInput() {
    if (standardInputIsRead_) {
        report_.errors.emplace_back("standard input can be read only once");
        return;
    }
    standardInputIsRead_ = true;
    std::string text;
    std::string chunk(std::size_t{1} << 16U, '\0');
    do {
        standardInput_.read(chunk.data(), std::ssize(chunk));
        text.append(chunk, 0, static_cast<std::size_t>(standardInput_.gcount()));
    } while (standardInput_.good());
    if (standardInput_.bad()) {
        report_.errors.emplace_back("standard input cannot be read");
        return;
    }
    ReadTsv("standard input", text, records_, report_);
}

std::vector<fs::path> FilesOfInput(const std::string& input) {
    const fs::path path = PathOfUtf8(input);
    if (HasEnding(input, ".index")) {
        return {path, DictionaryOfIndex(path)};
    }
    if (IsDictionary(input)) {
        const fs::path index = IndexOfDictionary(path);
        return {path, index, DictionaryOfIndex(index)};
    }
    return {path};
}

}  // namespace brelex
