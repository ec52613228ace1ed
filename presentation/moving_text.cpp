// SPDX-License-Identifier: MIT
#include "presentation/moving_text.h"

#include <algorithm>
#include <cstddef>

namespace brelex {

std::string SlidingText::Next() {
    if (--spread_ < 0) {
        spread_ = 2 * static_cast<int>(text_.size());
    }
    return SpreadText(text_, spread_);
}

int SlidingText::IntervalMs() const {
    constexpr int kRestMs = 1500;
    constexpr int kStepMs = 30;
    return spread_ == 0 ? kRestMs : kStepMs;
}

std::string SpreadText(std::string_view text, int spread) {
    std::string shown;
    int blanks = std::max(spread, 0);
    for (const char c : text) {
        shown.append(static_cast<std::size_t>(blanks), ' ');
        shown.push_back(c);
        blanks = std::max(blanks - 1, 0);
    }
    return shown;
}

int FirstScrollPosition(int areaHeight) {
    return areaHeight;
}

int NextScrollPosition(int position, int step, int linesHeight, int areaHeight) {
    const int next = position - step;
    return next <= -linesHeight ? areaHeight : next;
}

}  // namespace brelex
