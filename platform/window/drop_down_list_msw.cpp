// SPDX-License-Identifier: MIT
#include "platform/window/drop_down_list.h"

namespace brelex {

// They appear that way by themselves.
void ShowItemsAsList(wxComboBox& /*combo*/) {}

}  // namespace brelex
