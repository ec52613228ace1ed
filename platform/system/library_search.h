// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Keeps the system from looking for libraries in the current folder, where a stranger may have put
/// one, for example beside a file that the user opens. Call this before anything loads a library.
/// Linux never looks there.
void LoadNoLibrariesFromCurrentFolder();

}  // namespace brelex
