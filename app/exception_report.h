// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

namespace brelex {

/// The message of last resort. It says that something could not be done because of the exception
/// being handled, usually a lack of memory. Call it only in a catch clause.
[[nodiscard]] Message MessageOfCaughtException();

/// Shows that message, over the main window if there is one. Call it only in a catch clause.
void TellOfCaughtException();

}  // namespace brelex
