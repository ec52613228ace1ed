// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// A text whose letters slide in from the right and close up, over and over.
class SlidingText {
  public:
    explicit SlidingText(std::string text) : text_(std::move(text)) {}

    /// Goes on by one step and returns what is to be shown.
    [[nodiscard]] std::string Next();

    /// How long what was shown last is to stay, in milliseconds.
    [[nodiscard]] int IntervalMs() const;

  private:
    std::string text_;
    int spread_ = 0;
};

/// `text` (ASCII) with blanks before its characters: `spread` before the first, one less before
/// each that follows.
[[nodiscard]] std::string SpreadText(std::string_view text, int spread);

/// Where scrolling lines begin: below the visible area, which is `areaHeight` high.
[[nodiscard]] int FirstScrollPosition(int areaHeight);

/// Where they are one `step` after `position`; below the area again when all `linesHeight` of them
/// have left it at the top.
[[nodiscard]] int NextScrollPosition(int position, int step, int linesHeight, int areaHeight);

}  // namespace brelex
