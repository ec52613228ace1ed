// SPDX-License-Identifier: MIT
#include "platform/window/before_painting.h"

#include <glib.h>

#include <wx/app.h>

namespace brelex {

namespace {

gboolean HandlePending(gpointer /*data*/) {
    if (wxTheApp != nullptr) {
        wxTheApp->ProcessPendingEvents();
    }
    return G_SOURCE_REMOVE;
}

}  // namespace

// The toolkit runs what CallAfter left behind when it has nothing else to do. By then GTK has
// painted, and a change made there waits for the next frame.
void CallBeforePainting(wxEvtHandler& owner, const std::function<void()>& run) {
    owner.CallAfter(run);
    g_idle_add_full(G_PRIORITY_DEFAULT, HandlePending, nullptr, nullptr);
}

}  // namespace brelex
