// SPDX-License-Identifier: MIT
#include "platform/user_locale.h"

#include <array>
#include <filesystem>

#include <windows.h>

#include "database/file_io.h"

namespace brelex {

std::string UserGroupSeparator() {
    std::array<wchar_t, 16> separator{};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator.data(),
                                      static_cast<int>(separator.size()));
    if (length <= 1) {  // the terminating zero counts
        return ",";
    }
    return Utf8OfPath(std::filesystem::path(separator.data()));
}

}  // namespace brelex
