// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace brelex {

/// The CRC-32 of IEEE 802.3 and zip (reflected, polynomial EDB88320 hex) of `bytes`; 0 for none.
[[nodiscard]] std::int32_t GetCRCFromBytes(std::string_view bytes);

}  // namespace brelex
