// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Handles all waiting events. The caller must cope with anything they do, even with the window
/// being closed. It is not possible to handle only some kinds of events: on Windows the toolkit
/// would lose the others, and GTK counts mouse movements as painting.
void LetPendingEventsRun();

}  // namespace brelex
