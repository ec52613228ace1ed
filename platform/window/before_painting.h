// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxEvtHandler;

namespace brelex {

/// Calls `run` when the toolkit has finished with the current event, but before it paints the
/// results of that event. `run` is not called if `owner` is destroyed before.
void CallBeforePainting(wxEvtHandler& owner, const std::function<void()>& run);

}  // namespace brelex
