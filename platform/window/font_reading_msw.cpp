// SPDX-License-Identifier: MIT
#include "platform/window/font_reading.h"

namespace brelex {

void StartReadingFonts() {}

}  // namespace brelex
