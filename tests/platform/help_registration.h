// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Has the desktop open .hlp files with the viewer beside the tests.
void RegisterHelp();

/// Takes that back.
void UnregisterHelp();

}  // namespace brelex
