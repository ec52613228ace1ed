// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

class wxFrame;

namespace brelex {

/// During its lifetime, Ctrl+Shift+G brings a window forward, wherever on the desktop the user
/// presses it. Nothing happens if another program has the key or the desktop does not offer one. On
/// some desktops the user may choose another key.
class ActivationHotKey {
  public:
    /// `window` must outlive this object. Where the system only reports the key, this calls
    /// `bringForward`, with the desktop's permission to do so, which may be empty: see
    /// UseActivationToken. Windows brings the window forward itself.
    ActivationHotKey(wxFrame& window,
                     const std::function<void(const std::string& token)>& bringForward);
    ActivationHotKey(const ActivationHotKey&) = delete;
    ActivationHotKey& operator=(const ActivationHotKey&) = delete;
    ~ActivationHotKey();

  private:
    class Binding;
    std::unique_ptr<Binding> binding_;
};

}  // namespace brelex
