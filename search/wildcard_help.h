// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

namespace brelex {

/// The message that explains the wildcards.
[[nodiscard]] Message WildcardHelp();

}  // namespace brelex
