// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// Where long work reports how far it is.
class ProgressSink {
  public:
    ProgressSink() = default;
    ProgressSink(const ProgressSink&) = delete;
    ProgressSink& operator=(const ProgressSink&) = delete;
    virtual ~ProgressSink() = default;

    /// Says what is being done (UTF-8).
    virtual void SetStatusText(std::string_view text) = 0;

    /// Says how much of it is done, 0 to 100.
    virtual void SetProgress(int percent) = 0;
};

/// Progress that nobody watches.
class NoProgress final : public ProgressSink {
  public:
    void SetStatusText(std::string_view /*text*/) override {}

    void SetProgress(int /*percent*/) override {}
};

}  // namespace brelex
