// SPDX-License-Identifier: MIT
#include "toolkit/pending_events.h"

#include <wx/evtloop.h>
#include <wx/utils.h>

namespace brelex {

void LetPendingEventsRun(int restMs) {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive()) {
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    }
    if (restMs > 0) {
        wxMilliSleep(static_cast<unsigned long>(restMs));
    }
}

}  // namespace brelex
