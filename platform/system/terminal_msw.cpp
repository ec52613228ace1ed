// SPDX-License-Identifier: MIT
#include "platform/system/terminal.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <string_view>

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

void UseBinaryInput() {
    _setmode(_fileno(stdin), _O_BINARY);
}

void UseBinaryOutput() {
    _setmode(_fileno(stdout), _O_BINARY);
}

OutputTerminal StandardOutputTerminal() {
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    CONSOLE_SCREEN_BUFFER_INFO window{};
    DWORD mode = 0;
    if (GetConsoleMode(output, &mode) == 0 || GetConsoleScreenBufferInfo(output, &window) == 0) {
        return {};
    }
    // Before Windows 10 there are no control sequences.
    const bool hasStyles = SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
    const char* const kind = std::getenv("TERM");  // only terminals from Unix set it
    // The program ends each line before it reaches the last column, because some windows begin a
    // new line there by themselves.
    const int columns = window.srWindow.Right - window.srWindow.Left;
    return {columns, hasStyles && (kind == nullptr || std::string_view(kind) != "dumb")};
}

// The code pages and the mode belong to the terminal's window and outlive the program.
class Utf8Terminal::Before {
  public:
    Before() { GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode); }

    UINT input = GetConsoleCP();
    UINT output = GetConsoleOutputCP();
    DWORD mode = 0;  // 0 if the output is a file or a pipe
};

Utf8Terminal::Utf8Terminal() : before_(std::make_unique<Before>()) {
    SetConsoleCP(CP_UTF8);
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Terminal::~Utf8Terminal() {
    SetConsoleCP(before_->input);
    SetConsoleOutputCP(before_->output);
    if (before_->mode != 0) {
        SetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), before_->mode);
    }
}

}  // namespace brelex
