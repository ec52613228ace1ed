// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class wxFrame;

namespace brelex {

/// Has Ctrl+Shift+G, pressed anywhere on the desktop, bring a window forward as long as this lives.
/// Where another program has the key, or the desktop gives none, nothing happens.
class ActivationHotKey {
  public:
    /// `window` must be there as long as this lives, or be destroyed with it. Where the system only
    /// reports the key, `bringForward` is called; Windows brings the window forward itself.
    ActivationHotKey(wxFrame& window, const std::function<void()>& bringForward);
    ActivationHotKey(const ActivationHotKey&) = delete;
    ActivationHotKey& operator=(const ActivationHotKey&) = delete;
    ~ActivationHotKey();

  private:
    class Binding;
    std::unique_ptr<Binding> binding_;
};

}  // namespace brelex
