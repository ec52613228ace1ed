// SPDX-License-Identifier: MIT
#include "platform/system/fine_timer.h"

namespace brelex {

// Linux sleeps to a fraction of a millisecond anyway.
FineTimer::FineTimer() = default;
FineTimer::~FineTimer() = default;

}  // namespace brelex
