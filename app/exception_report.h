// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

namespace brelex {

/// The message of last resort: that something could not be done because of the exception that is
/// being handled, mostly a lack of memory. Call it in a catch clause only.
[[nodiscard]] Message MessageOfCaughtException();

/// Shows that message, over the main window if there is one. Call it in a catch clause only.
void TellOfCaughtException();

}  // namespace brelex
