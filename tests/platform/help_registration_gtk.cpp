// SPDX-License-Identifier: MIT
// XDG_DATA_DIRS has the build tree's share/, where the registration lies.
#include "tests/platform/help_registration.h"

#include <filesystem>

#include <gtest/gtest.h>

#include <wx/utils.h>

#include "platform/system/program_folder.h"

namespace brelex {

struct HelpRegistration::Before {};

HelpRegistration::HelpRegistration() {
    const std::filesystem::path share =
        std::filesystem::path(ProgramFolder()).parent_path().parent_path() / "share";
    wxString folders;
    EXPECT_TRUE(wxGetEnv("XDG_DATA_DIRS", &folders) && folders.Contains(share.string()))
        << "XDG_DATA_DIRS lacks " << share << ": " << folders;
}

HelpRegistration::~HelpRegistration() = default;

}  // namespace brelex
