// SPDX-License-Identifier: MIT
#include "platform/system/fine_timer.h"

namespace brelex {

// Linux always sleeps with a precision below a millisecond.
FineTimer::FineTimer() = default;
FineTimer::~FineTimer() = default;

}  // namespace brelex
