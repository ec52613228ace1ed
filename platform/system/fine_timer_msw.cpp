// SPDX-License-Identifier: MIT
#include "platform/system/fine_timer.h"

#include <windows.h>
#include <timeapi.h>

namespace brelex {

FineTimer::FineTimer() {
    timeBeginPeriod(1);
}

FineTimer::~FineTimer() {
    timeEndPeriod(1);
}

}  // namespace brelex
