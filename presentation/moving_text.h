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

    /// How long to show the last text, in milliseconds.
    [[nodiscard]] int IntervalMs() const;

  private:
    std::string text_;
    int spread_ = 0;
};

/// Returns `text` (ASCII) with blanks before its characters: `spread` before the first, and one
/// fewer before each of the following.
[[nodiscard]] std::string SpreadText(std::string_view text, int spread);

/// The position where scrolling lines begin: just below the visible area, which is `areaHeight`
/// high.
[[nodiscard]] int FirstScrollPosition(int areaHeight);

/// The position of the lines one `step` after `position`. When all lines, which are `linesHeight`
/// high, have left the area at the top, they begin again below it.
[[nodiscard]] int NextScrollPosition(int position, int step, int linesHeight, int areaHeight);

}  // namespace brelex
