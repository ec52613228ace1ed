// SPDX-License-Identifier: MIT
#include "platform/system/user_locale.h"

#include <array>

#include <windows.h>

#include "platform/system/wide_text.h"

namespace brelex {

namespace {

std::string UserSeparator(LCTYPE which, const char* fallback) {
    std::array<wchar_t, 16> separator{};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, which, separator.data(),
                                      static_cast<int>(separator.size()));
    if (length <= 1) {  // the terminating zero counts
        return fallback;
    }
    return Utf8OfWide(separator.data());
}

}  // namespace

std::string UserGroupSeparator() {
    return UserSeparator(LOCALE_STHOUSAND, ",");
}

std::string UserDecimalSeparator() {
    return UserSeparator(LOCALE_SDECIMAL, ".");
}

}  // namespace brelex
