// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>

namespace brelex {

/// A table of what `valueOf` returns for each byte.
template <typename ValueOf>
[[nodiscard]] constexpr auto TableOfBytes(ValueOf valueOf) {
    std::array<std::invoke_result_t<ValueOf, unsigned char>, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = valueOf(static_cast<unsigned char>(byte));
    }
    return table;
}

}  // namespace brelex
