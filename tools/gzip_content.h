// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brelex {

/// The content of a file, or why there is none.
struct GzipContent {
    std::string bytes;
    std::string fault;  ///< such as "is damaged"; empty on success
};

/// Expands the content of a gzip file (a dictzip file is one, too). Returns any other content
/// unchanged. Refuses one that expands to more than `mostBytes`.
[[nodiscard]] GzipContent ExpandGzip(std::string_view file, std::size_t mostBytes);

}  // namespace brelex
