// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Lets the events that wait be handled. The only place that does: whoever calls it must stand what
/// they do, up to the window's being closed.
void LetPendingEventsRun();

}  // namespace brelex
