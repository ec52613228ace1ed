// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace brelex {

/// Says whether this user is already running the program in this session. Claims the place for this
/// copy until the guard is destroyed. A program that crashed no longer holds it.
class InstanceGuard {
  public:
    InstanceGuard();
    InstanceGuard(const InstanceGuard&) = delete;
    InstanceGuard& operator=(const InstanceGuard&) = delete;
    ~InstanceGuard();

    /// Whether another copy had already claimed the place. False if the system cannot tell.
    [[nodiscard]] bool IsAnotherRunning() const { return anotherRunning_; }

  private:
    class Place;
    std::unique_ptr<Place> place_;
    bool anotherRunning_ = false;
};

}  // namespace brelex
