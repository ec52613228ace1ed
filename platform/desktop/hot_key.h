// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class wxFrame;

namespace brelex {

/// During its lifetime, Ctrl+Shift+G brings a window forward, wherever on the desktop the user
/// presses it. Nothing happens if another program has the key or the desktop does not offer one.
class ActivationHotKey {
  public:
    /// `window` must outlive this object. Where the system only reports the key, this calls
    /// `bringForward`. Windows brings the window forward itself.
    ActivationHotKey(wxFrame& window, const std::function<void()>& bringForward);
    ActivationHotKey(const ActivationHotKey&) = delete;
    ActivationHotKey& operator=(const ActivationHotKey&) = delete;
    ~ActivationHotKey();

  private:
    class Binding;
    std::unique_ptr<Binding> binding_;
};

}  // namespace brelex
