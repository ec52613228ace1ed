// SPDX-License-Identifier: MIT
#include "platform/user_locale.h"

#include <algorithm>
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>

namespace brelex {

std::string UserGroupSeparator() {
    const locale_t user =
        newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, "", static_cast<locale_t>(nullptr));
    if (user == static_cast<locale_t>(nullptr)) {
        return ",";
    }
    const std::string separator = nl_langinfo_l(THOUSEP, user);
    const std::string encoding = nl_langinfo_l(CODESET, user);
    freelocale(user);
    const bool ascii = std::all_of(separator.begin(), separator.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    // A separator in an older encoding would not be UTF-8.
    return separator.empty() || (!ascii && encoding != "UTF-8") ? "," : separator;
}

}  // namespace brelex
