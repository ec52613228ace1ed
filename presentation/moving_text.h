// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// A text whose letters slide in from the right and close up, over and over.
class SlidingText {
  public:
    explicit SlidingText(std::string text) : text_(std::move(text)) {}

    /// Takes the next step and returns the text to show.
    [[nodiscard]] std::string Next();

    /// How long the last text is to stay, in milliseconds.
    [[nodiscard]] int IntervalMs() const;

  private:
    std::string text_;
    int spread_ = 0;
};

/// `text` (ASCII) with blanks before its characters: `spread` before the first, one less before
/// each that follows.
[[nodiscard]] std::string SpreadText(std::string_view text, int spread);

/// Where scrolling lines begin: just below the visible area, which is `areaHeight` high.
[[nodiscard]] int FirstScrollPosition(int areaHeight);

/// Where they are one `step` after `position`. When all lines, which are `linesHeight` high, have
/// left the area at the top, they begin again below it.
[[nodiscard]] int NextScrollPosition(int position, int step, int linesHeight, int areaHeight);

}  // namespace brelex
