// SPDX-License-Identifier: MIT
#include "platform/window/before_painting.h"

#include <wx/event.h>

namespace brelex {

// The toolkit runs what CallAfter left behind before it takes the next message, and Windows paints
// only when no other message is left.
void CallBeforePainting(wxEvtHandler& owner, const std::function<void()>& run) {
    owner.CallAfter(run);
}

}  // namespace brelex
