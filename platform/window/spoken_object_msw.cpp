// SPDX-License-Identifier: MIT
#include "platform/window/spoken_object.h"

#include <utility>

#include "platform/window/spoken_accessible_msw.h"

namespace brelex {

void SetSpokenObject(wxWindow& window, SpokenObject whole, std::vector<SpokenObject> parts) {
    SpokenAccessible::Of(window).SetObject(std::move(whole), std::move(parts));
}

// The system knows no area that scrolls.
void MakeSpokenPanel(wxWindow& /*area*/) {}

// The toolkit's dialogs are dialogs of the system.
void MakeSpokenDialog(wxTopLevelWindow& /*window*/) {}

}  // namespace brelex
