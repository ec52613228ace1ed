// SPDX-License-Identifier: MIT
#include "toolkit/pending_events.h"

#include <chrono>
#include <thread>

#include <wx/event.h>
#include <wx/evtloop.h>

namespace brelex {

namespace {

// Letting events run ends with an idle event and several questions about its state to every window,
// which together take longer than all other events. No window of ours handles them.
class NoIdleEvents {
  public:
    NoIdleEvents() {
        wxIdleEvent::SetMode(wxIDLE_PROCESS_SPECIFIED);
        wxUpdateUIEvent::SetMode(wxUPDATE_UI_PROCESS_SPECIFIED);
    }

    NoIdleEvents(const NoIdleEvents&) = delete;
    NoIdleEvents& operator=(const NoIdleEvents&) = delete;

    ~NoIdleEvents() {
        wxIdleEvent::SetMode(idleMode_);
        wxUpdateUIEvent::SetMode(updateMode_);
    }

  private:
    wxIdleMode idleMode_ = wxIdleEvent::GetMode();
    wxUpdateUIMode updateMode_ = wxUpdateUIEvent::GetMode();
};

// Systems wake a thread up to a millisecond late. So it sleeps less, and spends the rest awake.
void RestFor(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds kLate{1};
    const auto end = std::chrono::steady_clock::now() + time;
    std::this_thread::sleep_for(time - kLate);
    while (std::chrono::steady_clock::now() < end) {
    }
}

}  // namespace

void LetPendingEventsRun(int restMs) {
    if (wxEventLoopBase* const loop = wxEventLoopBase::GetActive()) {
        const NoIdleEvents whileEventsRun;
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    }
    if (restMs > 0) {
        RestFor(std::chrono::milliseconds(restMs));
    }
}

}  // namespace brelex
