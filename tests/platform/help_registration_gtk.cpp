// SPDX-License-Identifier: MIT
// XDG_DATA_DIRS has the build tree's share/, where the registration lies.
#include "tests/platform/help_registration.h"

#include <string>

#include <gtest/gtest.h>

#include <wx/utils.h>

namespace brelex {

void RegisterHelp() {
    wxString folders;
    EXPECT_TRUE(wxGetEnv("XDG_DATA_DIRS", &folders) && folders.Contains("/build/"))
        << "XDG_DATA_DIRS lacks the build tree's share/: " << folders;
}

void UnregisterHelp() {}

}  // namespace brelex
