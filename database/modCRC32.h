// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "base/long_work.h"

namespace brelex {

/// The CRC-32 of IEEE 802.3 and zip (reflected, polynomial EDB88320 hex) of `bytes`; 0 for none.
/// `watcher`, which may be null, is told of the progress and of a pause about 100 times from 0
/// percent on, and of 100 percent at the end, also at an early one. If it ends the computing, the
/// value means nothing.
[[nodiscard]] std::int32_t GetCRCFromByteArray(std::string_view bytes,
                                               WorkWatcher* watcher = nullptr);

}  // namespace brelex
