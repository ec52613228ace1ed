// SPDX-License-Identifier: MIT
#include "platform/system/write_all_msw.h"

#include <algorithm>
#include <cstddef>

namespace brelex {

bool WriteAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kChunk = std::size_t{1} << 24U;
    while (!bytes.empty()) {
        const auto count = static_cast<DWORD>(std::min(bytes.size(), kChunk));
        DWORD done = 0;
        if (WriteFile(file, bytes.data(), count, &done, nullptr) == 0 || done != count) {
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

}  // namespace brelex
