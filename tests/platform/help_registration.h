// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace brelex {

/// During its lifetime, makes the desktop open .hlp files with the viewer beside the tests.
class HelpRegistration {
  public:
    HelpRegistration();
    HelpRegistration(const HelpRegistration&) = delete;
    HelpRegistration& operator=(const HelpRegistration&) = delete;
    ~HelpRegistration();

  private:
    struct Before;

    std::unique_ptr<Before> before_;  // the system's state before
};

}  // namespace brelex
