// SPDX-License-Identifier: MIT
#pragma once

#include "database/message_sink.h"

namespace brelex {

/// The message of last resort: tells that something could not be done because of the exception
/// that is being handled, mostly a lack of memory. Call it in a catch clause only.
void ReportCaughtException(MessageSink& messages);

}  // namespace brelex
