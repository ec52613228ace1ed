// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// What is wrong with a command line that the parser refused. Names the word that is to blame and
/// the nearest known one.
[[nodiscard]] std::string ParserMessage(const CLI::App& app, const CLI::ParseError& error);

[[nodiscard]] bool IsUtf8(std::string_view text);

/// What is wrong with arguments that are not UTF-8. Empty if they are, or name files that exist:
/// where paths are bytes, files have such names, too.
[[nodiscard]] std::string EncodingMessage(const std::vector<std::string>& arguments);

}  // namespace brelex
