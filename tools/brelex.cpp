// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>

#include "platform/system/library_search.h"
#include "platform/system/program_folder.h"
#include "platform/system/terminal.h"
#include "tools/command_line.h"
#include "tools/open_database.h"
#include "tools/visible_text.h"

namespace {

// The terminal that the output goes to. Users who do not want any styles set NO_COLOR.
brelex::OutputTerminal TerminalAsWanted() {
    brelex::OutputTerminal terminal = brelex::StandardOutputTerminal();
    const char* const noColor = std::getenv("NO_COLOR");
    terminal.hasStyles = terminal.hasStyles && (noColor == nullptr || *noColor == '\0');
    return terminal;
}

int SayThatMemoryIsShort() {
    std::fputs("brelex: not enough memory\n", stderr);
    return brelex::kFailed;
}

// The library calls this when an allocation fails. It ends the program at once, because an
// exception would not always arrive: streams swallow it and then lack a part of the output.
[[noreturn]] void EndForLackOfMemory() {
    std::_Exit(SayThatMemoryIsShort());
}

struct MemoryGuard {
    MemoryGuard() { std::set_new_handler(EndForLackOfMemory); }
};

// Before all other objects, because the parser's allocate, too.
[[gnu::init_priority(101)]] const MemoryGuard kMemoryGuard;

}  // namespace

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): memory, caught below
    brelex::LoadNoLibrariesFromCurrentFolder();
    const brelex::Utf8Terminal terminal;
    std::ios::sync_with_stdio(false);  // gives the streams new buffers, so it comes first
    const brelex::VisibleOutput visibleMessages(std::cerr);
    int code = brelex::kFailed;
    try {
        code = brelex::RunCommandLine(
            brelex::Utf8Arguments(argc, argv),
            {std::cin, std::cout, std::cerr, TerminalAsWanted(), brelex::ProgramFolder()});
    } catch (const std::bad_alloc&) {
        return SayThatMemoryIsShort();  // thrown where there was something to undo
    }
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "brelex: cannot write the output\n";
        return brelex::kFailed;
    }
    return code;
}
