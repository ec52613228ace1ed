// SPDX-License-Identifier: MIT
#include "platform/window/activation_token.h"

namespace brelex {

void UseActivationToken(const std::string& /*token*/) {}

}  // namespace brelex
