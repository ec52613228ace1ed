// SPDX-License-Identifier: MIT
#include "platform/help_association.h"

namespace brelex {

void OpenHelpFilesWith(const std::string& /*program*/) {}

}  // namespace brelex
