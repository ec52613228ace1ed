// SPDX-License-Identifier: MIT
#pragma once

#include <wx/app.h>

#include "app/start_up.h"

namespace brelex {

/// The program.
class BrevilexiconApp final : public wxApp {
  public:
    bool OnInit() override;

  private:
    StartUp startUp_;
};

}  // namespace brelex
