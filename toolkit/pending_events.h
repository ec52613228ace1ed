// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Handles all waiting events, then rests for `restMs` milliseconds. The caller must cope with
/// anything the events do, even with the window being closed. It is not possible to handle only
/// some kinds of events: on Windows the toolkit would lose the others, and GTK counts mouse
/// movements as painting.
void LetPendingEventsRun(int restMs = 0);

}  // namespace brelex
