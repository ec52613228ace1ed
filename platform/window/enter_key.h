// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Whether Enter, of either kind, was down when the event at hand arose. The user may have released
/// the key since, if the program was busy.
[[nodiscard]] bool WasEnterDown();

}  // namespace brelex
