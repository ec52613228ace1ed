// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

// The side windows, by the numbers that OpenModalForm takes.
inline constexpr int kSearchWindow = 0;
inline constexpr int kAnagramWindow = 1;
inline constexpr int kDataInfoWindow = 2;
inline constexpr int kSmileyWindow = 3;
inline constexpr int kAboutWindow = 4;
inline constexpr int kCheckDataWindow = 5;
inline constexpr int kDonationWindow = 6;

}  // namespace brelex
