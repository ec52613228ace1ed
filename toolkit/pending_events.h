// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Lets all waiting events be handled in between: whoever calls it must stand what they do, up to
/// the window's being closed. There is no such thing for some kinds of events only: on Windows the
/// toolkit would lose the others, and GTK counts the mouse's movements as painting.
void LetPendingEventsRun();

}  // namespace brelex
