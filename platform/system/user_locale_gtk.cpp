// SPDX-License-Identifier: MIT
#include "platform/system/user_locale.h"

#include <algorithm>
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>

namespace brelex {

namespace {

std::string UserSeparator(nl_item item, const char* fallback) {
    const locale_t user =
        newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, "", static_cast<locale_t>(nullptr));
    if (user == static_cast<locale_t>(nullptr)) {
        return fallback;
    }
    const std::string separator = nl_langinfo_l(item, user);
    const std::string encoding = nl_langinfo_l(CODESET, user);
    freelocale(user);
    const bool ascii = std::all_of(separator.begin(), separator.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    // A separator in an older encoding would not be valid UTF-8.
    return separator.empty() || (!ascii && encoding != "UTF-8") ? fallback : separator;
}

}  // namespace

std::string UserGroupSeparator() {
    return UserSeparator(THOUSEP, ",");
}

std::string UserDecimalSeparator() {
    return UserSeparator(RADIXCHAR, ".");
}

}  // namespace brelex
