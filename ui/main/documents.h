// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/system/modShowHelp.h"
#include "ui/main/help_key.h"

class wxWindow;

namespace brelex {

/// Opens what the program shows outside its own windows: the help, the read-me file, and addresses.
/// During its lifetime, F1 opens the help in every window.
class Documents {
  public:
    /// Calls the function it receives, which may show messages, while nothing else in the program
    /// can be used.
    using WhileModal = std::function<void(const std::function<void()>&)>;

    /// `owner` owns the messages about the read-me file. `owner` and `desktop` must outlive this
    /// object.
    Documents(wxWindow& owner, ProgramPlace place, Desktop& desktop, WhileModal whileModal);

    /// Shows a page of the help; see ShowHelpContents.
    void ShowHelp(const std::string& page = {});

    void ShowReadMe();

    /// Opens a web or e-mail address.
    void OpenAddress(const std::string& address);

    /// Closes an open help viewer.
    void CloseHelpViewer();

  private:
    [[nodiscard]] bool ShowHelpOf(const std::string& window);

    wxWindow& owner_;
    ProgramPlace place_;
    Desktop& desktop_;
    WhileModal whileModal_;
    bool isOpeningAddress_ = false;
    HelpKey helpKey_;
};

}  // namespace brelex
