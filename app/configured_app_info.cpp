// SPDX-License-Identifier: MIT
#include "app/configured_app_info.h"

#include <charconv>
#include <string>

namespace brelex {

AppInfo ConfiguredAppInfo() {
    return {BRELEX_VERSION_MAJOR, BRELEX_VERSION_MINOR, BRELEX_COPYRIGHT,
            BRELEX_HOME_PAGE,     BRELEX_DONATION_PAGE, BRELEX_SUPPORT_ADDRESS};
}

float AppVersionOf(const AppInfo& info) {
    const std::string text =
        std::to_string(info.majorVersion) + "." + std::to_string(info.minorVersion);
    float version = 0;
    std::from_chars(text.data(), text.data() + text.size(), version);
    return version;
}

}  // namespace brelex
