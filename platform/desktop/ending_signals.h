// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace brelex {

/// When the system asks the program to end by a signal, calls `prepare` between two events, and
/// then lets the signal end the program. That works while a message or another modal window is
/// open. If the program is too busy to handle events, a second such signal ends it at once. A
/// signal that the program was started to ignore stays ignored. Windows has no such signals. Call
/// once.
void PrepareForEndingSignals(std::function<void()> prepare);

}  // namespace brelex
