// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The application title, in captions and messages.
inline constexpr const char* kAppTitle = "Brevilexicon";

/// What Linux desktops call the application: the name of its desktop entry and of its icon.
inline constexpr const char* kApplicationId = "example.brevilexicon.Brevilexicon";

/// The same for the help viewer, which is a program of its own.
inline constexpr const char* kHelpApplicationId = "example.brevilexicon.Brevilexicon.Help";

/// What the program says about itself. Texts are UTF-8.
struct AppInfo {
    int majorVersion = 0;
    int minorVersion = 0;      ///< below 10, so that "major.minor" as a number sorts correctly
    std::string copyright;     ///< the legal-rights text
    std::string homePage;      ///< a web address
    std::string donationPage;  ///< a web address
    std::string supportAddress;
};

}  // namespace brelex
