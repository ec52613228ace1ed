// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Hands over a token of the desktop, which proves that the user has just asked for the program.
/// The next BringForward uses it. Without one, a desktop may refuse to bring a window to the front.
/// An empty token changes nothing. Does nothing on Windows, which has no such tokens.
void UseActivationToken(const std::string& token);

}  // namespace brelex
