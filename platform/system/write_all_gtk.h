// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// Writes all `bytes` to an open file. Returns false, and leaves the reason in errno, if it could
/// not.
[[nodiscard]] bool WriteAll(int file, std::string_view bytes);

}  // namespace brelex
