// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace brelex {

/// Tells whether this user already runs the program in this session, and keeps the place taken
/// until it is destroyed. A program that crashed keeps nothing.
class InstanceGuard {
  public:
    InstanceGuard();
    InstanceGuard(const InstanceGuard&) = delete;
    InstanceGuard& operator=(const InstanceGuard&) = delete;
    ~InstanceGuard();

    /// Whether another copy had taken the place before. Where the system cannot tell, there is
    /// none.
    [[nodiscard]] bool IsAnotherRunning() const { return anotherRunning_; }

  private:
    class Place;
    std::unique_ptr<Place> place_;
    bool anotherRunning_ = false;
};

}  // namespace brelex
