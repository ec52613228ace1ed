// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Makes the system read its fonts in the background, so that the first text need not wait for
/// them. Call it before the toolkit is initialized. It returns at once, and does nothing where the
/// fonts are always at hand.
void StartReadingFonts();

}  // namespace brelex
