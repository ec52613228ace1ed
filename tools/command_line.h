// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "platform/system/terminal.h"

namespace brelex {

/// What surrounds a command: the standard streams, and where the program is.
struct CommandSurroundings {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    OutputTerminal terminal;    ///< where `out` goes
    std::string programFolder;  ///< UTF-8, ending in the separator; contains the usual database
};

/// Runs the command that the arguments (without the program's name) ask for, as the manual page
/// describes it. Returns the exit code: kFound, kNothingFound or kFailed.
int RunCommandLine(std::vector<std::string> arguments, const CommandSurroundings& surroundings);

}  // namespace brelex
