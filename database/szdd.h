// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "database/compressed_file.h"

namespace brelex {

/// Expands the content of a file; see CompressedFile. Nothing if that refuses it.
[[nodiscard]] std::optional<ExpandedFile> ExpandSzdd(std::string_view file,
                                                     std::size_t mostBytes = kMaxExpandedBytes);

/// Compresses `bytes` into a file that ExpandSzdd and LZCopy can expand. The same bytes always give
/// the same file. Requires at most kMaxExpandedBytes.
[[nodiscard]] std::string CompressSzdd(std::string_view bytes);

}  // namespace brelex
