// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace brelex {

/// Lets a window place its children without regard to what is around it. Otherwise GTK measures the
/// whole top-level window again whenever a text in it changes.
void LayOutAlone(wxWindow& window);

}  // namespace brelex
