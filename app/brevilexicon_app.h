// SPDX-License-Identifier: MIT
#pragma once

#include <wx/app.h>

#include "app/start_up.h"
#include "platform/desktop/system_desktop.h"
#include "platform/system/system_temporary_files.h"

namespace brelex {

/// The program.
class BrevilexiconApp final : public wxApp {
  public:
    bool Initialize(int& argumentCount, wxChar** arguments) override;
    bool OnInit() override;
    [[nodiscard]] wxLayoutDirection GetLayoutDirection() const override;
    int OnExit() override;
    bool OnExceptionInMainLoop() override;
    void OnUnhandledException() override;

  private:
    void PrepareForSuddenEnd();
    void OnEndOfSession(wxCloseEvent& event);

    SystemTemporaryFiles files_;
    SystemDesktop desktop_;
    StartUp startUp_;
};

}  // namespace brelex
