// SPDX-License-Identifier: MIT
#include "platform/desktop/hot_key.h"

#include <keybinder.h>
#include <utility>

namespace brelex {

namespace {

constexpr char kKey[] = "<Control><Shift>G";

// Initializes once for the process, because each time opens another connection to the display and
// keeps it.
bool IsKeybinderReady() {
    static const bool ready = [] {
        if (keybinder_supported() == FALSE) {  // not an X11 display
            return false;
        }
        keybinder_init();
        // Otherwise a key with Shift is bound but never fires (keybinder 3.0-0.3.2).
        keybinder_set_use_cooked_accelerators(FALSE);
        return true;
    }();
    return ready;
}

}  // namespace

class ActivationHotKey::Binding {
  public:
    explicit Binding(std::function<void()> bringForward) : bringForward_(std::move(bringForward)) {
        bound_ = IsKeybinderReady() && keybinder_bind(kKey, &Binding::OnKey, this) != FALSE;
    }

    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    ~Binding() {
        if (bound_) {
            keybinder_unbind(kKey, &Binding::OnKey);
        }
    }

  private:
    static void OnKey(const char* /*key*/, void* binding) {
        static_cast<Binding*>(binding)->bringForward_();
    }

    std::function<void()> bringForward_;
    bool bound_ = false;
};

ActivationHotKey::ActivationHotKey(wxFrame& /*window*/, const std::function<void()>& bringForward)
    : binding_(std::make_unique<Binding>(bringForward)) {}

ActivationHotKey::~ActivationHotKey() = default;

}  // namespace brelex
