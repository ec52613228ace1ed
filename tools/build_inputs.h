// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <istream>
#include <string>
#include <vector>

#include "tools/corrections.h"
#include "tools/input_entries.h"

namespace brelex {

/// Reads the inputs of "brelex build", whose names tell their format, one after the other.
class InputReader {
  public:
    /// The input "-" is the list that `standardInput` delivers. The corrections apply to
    /// dictionaries.
    InputReader(std::istream& standardInput, Corrections& corrections,
                std::vector<std::string>& records, InputReport& report);

    /// Appends the entries of an input to the records. Reports errors.
    void Read(const std::string& input);

  private:
    void ReadStandardInput();

    std::istream& standardInput_;
    Corrections& corrections_;
    std::vector<std::string>& records_;
    InputReport& report_;
    bool standardInputIsRead_ = false;
};

/// The files that reading an input reads.
[[nodiscard]] std::vector<std::filesystem::path> FilesOfInput(const std::string& input);

}  // namespace brelex
