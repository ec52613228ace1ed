// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

// The only place that lets waiting events be handled in between.

/// Lets all of them run: whoever calls it must stand what they do, up to the window's being closed.
void LetPendingEventsRun();

/// Lets only the windows show what they have to; keys, mouse and calls that are put off stay so.
void LetPendingPaintingRun();

}  // namespace brelex
