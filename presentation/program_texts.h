// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "database/program_values.h"

namespace brelex {

/// The text that slides in beside the donation button.
inline constexpr const char* kDonateText = "Click to donate via PayPal";

/// The lines of the donation window (UTF-8), in order.
[[nodiscard]] std::vector<std::string> DonationLines();

/// A line of the credits.
struct CreditRecord {
    std::string text;  ///< UTF-8
    int pointSize = 9;
    bool isBold = false;
    std::optional<unsigned> colour;  ///< red in the low byte, then green, blue; none: the user's
};

/// The credits, in order.
[[nodiscard]] std::vector<CreditRecord> Credits(const AppInfo& info);

/// The text of the smiley dictionary, in ASCII. Line ends separate lines, TABs separate columns.
[[nodiscard]] std::string SmileyDictionaryText();

}  // namespace brelex
