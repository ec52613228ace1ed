// SPDX-License-Identifier: MIT
#include "toolkit/pending_events.h"

#include <wx/evtloop.h>

namespace brelex {

void LetPendingEventsRun() {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive()) {
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    }
}

}  // namespace brelex
