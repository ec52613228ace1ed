// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "base/interface.h"

namespace brelex {

/// How long work rests at a pause, in milliseconds.
inline constexpr int kPauseMs = 5;

/// Follows long work and may stop it: loading, checking the data, and both searches. The work calls
/// what it has to tell, and each call does nothing unless a watcher overrides it; so a plain
/// WorkWatcher is nobody who watches.
class WorkWatcher : public Interface {
  public:
    /// Says what is being done (UTF-8).
    virtual void SetStatusText(std::string_view /*text*/) {}

    /// Says how much of it is done, 0 to 100 percent.
    virtual void SetProgress(int /*percent*/) {}

    /// The entry of a row (0-based) is a hit. Returns whether the work goes on.
    [[nodiscard]] virtual bool OnHit(std::int32_t /*row*/) { return true; }

    /// Time for everything else. Returns whether the work goes on.
    [[nodiscard]] virtual bool OnPause() { return true; }
};

/// How it stands with the long work of a window.
enum class WorkState {
    Idle,      ///< there is none
    Running,   ///< nobody wants it to end early
    Stopping,  ///< it ends at its next pause; the user waits for what has come of it
    Dismissed  ///< it ends at its next pause, and its window is gone: nothing is shown any more
};

}  // namespace brelex
