// SPDX-License-Identifier: MIT
#pragma once

#include <atk/atk.h>
#include <string>
#include <vector>

#include "platform/window/spoken_object.h"

namespace brelex {

/// What an object of the accessibility layer is made from.
struct SpokenNode {
    wxWindow* window = nullptr;  ///< null once the window is gone
    SpokenObject object{};
    std::string text{};               ///< UTF-8
    AtkObject* whole = nullptr;       ///< of a part: what it is a part of
    int index = 0;                    ///< of a part
    std::vector<AtkObject*> parts{};  ///< with a reference to each
    AtkHyperlink* address = nullptr;  ///< of a link, with a reference
};

/// The node of an object of one of SpokenType's types.
[[nodiscard]] SpokenNode& NodeOf(gpointer object);

/// Gives an object its node.
void SetNode(AtkObject* object, SpokenNode node);

/// The type of the objects of a role, either windows or parts of windows.
[[nodiscard]] GType SpokenType(SpokenRole role, bool isPart);

}  // namespace brelex
