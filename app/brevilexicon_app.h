// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <wx/app.h>

#include "database/program_values.h"
#include "database/record_store.h"
#include "platform/instance_guard.h"
#include "platform/system_temporary_files.h"

namespace brelex {

/// The program: starts it in its order and owns what all windows share.
class BrevilexiconApp final : public wxApp {
  public:
    bool OnInit() override;

  private:
    [[nodiscard]] std::string CommandLine() const;

    std::unique_ptr<InstanceGuard> instance_;
    ProgramValues values_;
    RecordStore store_;
    SystemTemporaryFiles files_;
};

}  // namespace brelex
