// SPDX-License-Identifier: MIT
#include "platform/system/terminal.h"

#include <windows.h>
#include <shellapi.h>

#include "platform/system/wide_text.h"

namespace brelex {

// The arguments of main() are in the system's code page, which lacks most characters.
std::vector<std::string> Utf8Arguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(Utf8OfWide(words[i]));
    }
    LocalFree(words);
    return arguments;
}

// The code pages belong to the terminal's window and outlive the program.
class Utf8Terminal::Before {
  public:
    UINT input = GetConsoleCP();
    UINT output = GetConsoleOutputCP();
};

Utf8Terminal::Utf8Terminal() : before_(std::make_unique<Before>()) {
    SetConsoleCP(CP_UTF8);
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Terminal::~Utf8Terminal() {
    SetConsoleCP(before_->input);
    SetConsoleOutputCP(before_->output);
}

}  // namespace brelex
