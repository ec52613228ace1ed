// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/system/modShowHelp.h"

namespace brelex {

/// The user's desktop. On Linux it can find windows under X11; Wayland does not reveal them.
class SystemDesktop final : public Desktop {
  public:
    [[nodiscard]] bool BringWindowForward(const std::string& title) override;
    void TurnToPage(const std::string& title, const std::string& page) override;
    [[nodiscard]] bool StartHelpViewer(const std::string& folder, const std::string& book,
                                       const std::string& page) override;
    void AskWindowToClose(const std::string& title) override;
    bool Open(const std::string& target) override;
    void OpenToRead(const std::string& path) override;
};

}  // namespace brelex
