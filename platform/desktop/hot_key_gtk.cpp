// SPDX-License-Identifier: MIT
#include "platform/desktop/hot_key.h"

#include <keybinder.h>
#include <optional>
#include <utility>

#include <wx/frame.h>

#include <gtk/gtk.h>

#include "platform/desktop/hot_key_portal.h"

namespace brelex {

namespace {

using BringForwardEvent = std::function<void(const std::string& token)>;

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

// Under X11: takes the key from the display.
class DisplayHotKey {
  public:
    explicit DisplayHotKey(BringForwardEvent bringForward)
        : bringForward_(std::move(bringForward)),
          bound_(keybinder_bind(kKey, &DisplayHotKey::OnKey, this) != FALSE) {}

    DisplayHotKey(const DisplayHotKey&) = delete;
    DisplayHotKey& operator=(const DisplayHotKey&) = delete;

    ~DisplayHotKey() {
        if (bound_) {
            keybinder_unbind(kKey, &DisplayHotKey::OnKey);
        }
    }

  private:
    static void OnKey(const char* /*key*/, void* hotKey) {
        static_cast<DisplayHotKey*>(hotKey)->bringForward_({});
    }

    const BringForwardEvent bringForward_;
    const bool bound_;
};

// Elsewhere: asks the desktop's portal, but only when the window has been painted. The portal may
// have to be started, and that must not delay the window.
class LatePortalHotKey {
  public:
    LatePortalHotKey(wxFrame& window, BringForwardEvent bringForward)
        : window_(window.GetHandle()),
          bringForward_(std::move(bringForward)),
          painted_(g_signal_connect_after(window_, "draw", G_CALLBACK(&LatePortalHotKey::OnDrawn),
                                          this)) {}

    LatePortalHotKey(const LatePortalHotKey&) = delete;
    LatePortalHotKey& operator=(const LatePortalHotKey&) = delete;

    ~LatePortalHotKey() {
        StopListening();
        if (idle_ != 0) {
            g_source_remove(idle_);
        }
    }

  private:
    static gboolean OnDrawn(GtkWidget* /*widget*/, void* /*cairo*/, LatePortalHotKey* self) {
        self->StopListening();
        self->idle_ = g_idle_add(&LatePortalHotKey::OnIdle, self);
        return FALSE;
    }

    static gboolean OnIdle(void* self) {
        auto* const hotKey = static_cast<LatePortalHotKey*>(self);
        hotKey->idle_ = 0;
        hotKey->key_.emplace(hotKey->bringForward_);
        return G_SOURCE_REMOVE;
    }

    void StopListening() {
        if (painted_ != 0) {
            g_signal_handler_disconnect(window_, painted_);
            painted_ = 0;
        }
    }

    GtkWidget* const window_;
    const BringForwardEvent bringForward_;
    gulong painted_;
    guint idle_ = 0;
    std::optional<PortalHotKey> key_;
};

}  // namespace

class ActivationHotKey::Binding {
  public:
    Binding(wxFrame& window, const BringForwardEvent& bringForward) {
        if (IsKeybinderReady()) {
            display_.emplace(bringForward);
        } else {
            portal_.emplace(window, bringForward);
        }
    }

  private:
    std::optional<DisplayHotKey> display_;
    std::optional<LatePortalHotKey> portal_;
};

ActivationHotKey::ActivationHotKey(
    wxFrame& window, const std::function<void(const std::string& token)>& bringForward)
    : binding_(std::make_unique<Binding>(window, bringForward)) {}

ActivationHotKey::~ActivationHotKey() = default;

}  // namespace brelex
