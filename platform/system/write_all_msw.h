// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <windows.h>

namespace brelex {

/// Writes all `bytes` to an open file. Returns false if it could not.
[[nodiscard]] bool WriteAll(HANDLE file, std::string_view bytes);

}  // namespace brelex
