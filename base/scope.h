// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace brelex {

/// Sets a flag until the scope is left.
class Busy {
  public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }

    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    ~Busy() { flag_ = false; }

  private:
    bool& flag_;
};

/// Runs an action when the scope is left, however that happens. The action must not throw.
template <typename Action>
class OnLeaving {
  public:
    explicit OnLeaving(Action action) : action_(std::move(action)) {}

    OnLeaving(const OnLeaving&) = delete;
    OnLeaving& operator=(const OnLeaving&) = delete;

    ~OnLeaving() { action_(); }

  private:
    Action action_;
};

}  // namespace brelex
