// SPDX-License-Identifier: MIT
#pragma once

#include "base/message_sink.h"

namespace brelex {

/// The rules of wildcards, for those who search.
[[nodiscard]] Message WildcardHelp();

}  // namespace brelex
