// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class wxFrame;

namespace brelex {

/// Makes Ctrl+Shift+G, pressed anywhere on the desktop, bring a window forward as long as this
/// lives. Nothing happens if another program has the key or the desktop offers none.
class ActivationHotKey {
  public:
    /// `window` must live as long as this does. Where the system only reports the key,
    /// `bringForward` is called; Windows brings the window forward itself.
    ActivationHotKey(wxFrame& window, const std::function<void()>& bringForward);
    ActivationHotKey(const ActivationHotKey&) = delete;
    ActivationHotKey& operator=(const ActivationHotKey&) = delete;
    ~ActivationHotKey();

  private:
    class Binding;
    std::unique_ptr<Binding> binding_;
};

}  // namespace brelex
