// SPDX-License-Identifier: MIT
#pragma once

class wxHtmlWindow;

namespace brelex {

/// Tells screen readers what the page in a window says, which the toolkit only draws: its texts,
/// and its links with their targets, which readers can open. It keeps up with the page.
void SpeakPages(wxHtmlWindow& window);

}  // namespace brelex
