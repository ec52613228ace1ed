// SPDX-License-Identifier: MIT
#include "platform/user_locale.h"

#include <array>

#include <windows.h>

#include "platform/wide_text.h"

namespace brelex {

std::string UserGroupSeparator() {
    std::array<wchar_t, 16> separator{};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator.data(),
                                      static_cast<int>(separator.size()));
    if (length <= 1) {  // the terminating zero counts
        return ",";
    }
    return Utf8OfWide(separator.data());
}

}  // namespace brelex
