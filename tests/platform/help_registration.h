// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace brelex {

/// Has the desktop open .hlp files with the viewer beside the tests for as long as it lives.
class HelpRegistration {
  public:
    HelpRegistration();
    HelpRegistration(const HelpRegistration&) = delete;
    HelpRegistration& operator=(const HelpRegistration&) = delete;
    ~HelpRegistration();

  private:
    struct Before;

    std::unique_ptr<Before> before_;  // what the system had
};

}  // namespace brelex
