// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Sets a flag for as long as it lives.
class Busy {
  public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }

    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    ~Busy() { flag_ = false; }

  private:
    bool& flag_;
};

}  // namespace brelex
