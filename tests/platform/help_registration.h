// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Has the desktop open .hlp files with the viewer beside the tests, as long as it lives.
class HelpRegistration {
  public:
    HelpRegistration();
    HelpRegistration(const HelpRegistration&) = delete;
    HelpRegistration& operator=(const HelpRegistration&) = delete;
    ~HelpRegistration();
};

}  // namespace brelex
