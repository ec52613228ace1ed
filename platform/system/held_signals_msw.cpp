// SPDX-License-Identifier: MIT
#include "platform/system/held_signals.h"

namespace brelex {

class HeldSignals::Before {};

HeldSignals::HeldSignals() = default;

HeldSignals::~HeldSignals() = default;

}  // namespace brelex
