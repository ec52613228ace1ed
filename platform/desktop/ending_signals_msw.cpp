// SPDX-License-Identifier: MIT
#include "platform/desktop/ending_signals.h"

namespace brelex {

// The toolkit ends the program when the session ends.
// NOLINTNEXTLINE(performance-unnecessary-value-param): on Linux it is kept
void PrepareForEndingSignals(std::function<void()> /*prepare*/) {}

}  // namespace brelex
