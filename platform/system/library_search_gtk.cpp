// SPDX-License-Identifier: MIT
#include "platform/system/library_search.h"

namespace brelex {

void LoadNoLibrariesFromCurrentFolder() {}

}  // namespace brelex
