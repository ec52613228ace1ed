// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/eventfilter.h>

namespace brelex {

/// During its lifetime, makes F1 show the help in every window of the program, including modal
/// ones.
class HelpKey final : public wxEventFilter {
  public:
    /// Calls `showHelp` with the name of the window (UTF-8). For a window that is not ours, this is
    /// the toolkit's name. `showHelp` returns false for a window that handles the key itself.
    explicit HelpKey(std::function<bool(const std::string&)> showHelp);
    HelpKey(const HelpKey&) = delete;
    HelpKey& operator=(const HelpKey&) = delete;
    ~HelpKey() override;

    int FilterEvent(wxEvent& event) override;

  private:
    std::function<bool(const std::string&)> showHelp_;
};

}  // namespace brelex
