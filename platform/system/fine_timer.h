// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// While one exists, the program's sleeps take as long as requested and are not rounded up to a
/// tick of the system (15.6 ms on Windows).
class FineTimer {
  public:
    FineTimer();
    FineTimer(const FineTimer&) = delete;
    FineTimer& operator=(const FineTimer&) = delete;
    ~FineTimer();  // NOLINT(performance-trivially-destructible): only on Linux
};

}  // namespace brelex
