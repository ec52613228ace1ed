// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/system/modShowHelp.h"
#include "ui/main/help_key.h"

class wxWindow;

namespace brelex {

/// What the program opens outside its windows: the help, also with F1 in each window as long as
/// this lives, the read-me, and addresses.
class Documents {
  public:
    /// Calls what it is given, which may show messages, while nothing else of the program is used.
    using WhileModal = std::function<void(const std::function<void()>&)>;

    /// `owner` owns messages about the read-me. It and `desktop` must outlive this.
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
