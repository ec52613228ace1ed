// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

// The only place that lets waiting events be handled in between.

/// Lets all of them run: whoever calls it must stand what they do, up to the window's being closed.
void LetPendingEventsRun();

/// Lets the windows show what they have to. Keys, the mouse and calls that were put off wait, but
/// the system may still have a window closed.
void LetPendingPaintingRun();

}  // namespace brelex
