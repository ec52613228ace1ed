// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace brelex {

/// Makes signals that would end the program wait for as long as this object exists, so that it is
/// not ended between two steps that belong together. On Windows nothing ends a program in this way
/// without killing it.
class HeldSignals {
  public:
    HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals();

  private:
    class Before;
    std::unique_ptr<Before> before_;
};

}  // namespace brelex
