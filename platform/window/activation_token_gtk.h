// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Hands the token of UseActivationToken to GTK, for the next window that asks for the keyboard.
/// Returns false if there is none. A token is good only once. Linux only.
bool HandTokenToToolkit();

}  // namespace brelex
