// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "base/interface.h"

namespace brelex {

/// The rest of long work at a pause, in milliseconds.
inline constexpr int kPauseMs = 5;

/// Follows long work and may stop it: loading, checking the data, and both searches. The work calls
/// the functions below. Each does nothing unless a watcher overrides it, so a plain WorkWatcher
/// follows nothing.
class WorkWatcher : public Interface {
  public:
    /// Says what is being done (UTF-8).
    virtual void SetStatusText(std::string_view /*text*/) {}

    /// Says how much of it is done, 0 to 100 percent.
    virtual void SetProgress(int /*percent*/) {}

    /// The entry of a row (0-based) is a hit. Returns whether the work goes on.
    [[nodiscard]] virtual bool OnHit(std::int32_t /*row*/) { return true; }

    /// Gives everything else its time. Returns whether the work goes on.
    [[nodiscard]] virtual bool OnPause() { return true; }
};

/// The state of a window's long work.
enum class WorkState {
    Idle,      ///< there is none
    Running,   ///< nobody wants it to end early
    Stopping,  ///< it ends at its next pause, and the window shows its results
    Dismissed  ///< it ends at its next pause; its window is closed and shows nothing
};

}  // namespace brelex
