// SPDX-License-Identifier: MIT
#pragma once

#include <atk/atk.h>

namespace brelex {

/// What the functions of AtkText need of an object: its text, which is UTF-8.
using TextOfObject = const char* (*)(gpointer object);

/// Fills the interface with functions that read the text of `textOf`, in lines, words and
/// characters. There is one such function in the program.
void FillTextInterface(AtkTextIface& iface, TextOfObject textOf);

}  // namespace brelex
