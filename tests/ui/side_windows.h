// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "presentation/commands.h"

namespace brelex {

struct OpenedWindow {
    const char* name;
    Command command;
};

/// The side windows that a command opens without an entry.
inline constexpr std::array kSideWindows{OpenedWindow{"frmSearch", Command::Search},
                                         OpenedWindow{"frmAnagram", Command::Anagram},
                                         OpenedWindow{"frmDataInfo", Command::DatabaseInfo},
                                         OpenedWindow{"frmSmiley", Command::Smileys},
                                         OpenedWindow{"frmAbout", Command::About},
                                         OpenedWindow{"frmCheckData", Command::CheckData},
                                         OpenedWindow{"frmDonation", Command::Donate}};

}  // namespace brelex
