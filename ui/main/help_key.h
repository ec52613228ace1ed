// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/eventfilter.h>

namespace brelex {

/// Has F1 show the help in each window of the program, also in modal ones, as long as this lives.
class HelpKey final : public wxEventFilter {
  public:
    /// `showHelp` is told the name of the window (UTF-8), which is the toolkit's for a window that
    /// is not ours. It returns false for a window that sees to the key itself.
    explicit HelpKey(std::function<bool(const std::string&)> showHelp);
    HelpKey(const HelpKey&) = delete;
    HelpKey& operator=(const HelpKey&) = delete;
    ~HelpKey() override;

    int FilterEvent(wxEvent& event) override;

  private:
    std::function<bool(const std::string&)> showHelp_;
};

}  // namespace brelex
