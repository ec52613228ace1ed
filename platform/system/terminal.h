// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace brelex {

/// The program's arguments without its name, in UTF-8.
[[nodiscard]] std::vector<std::string> Utf8Arguments(int argc, char** argv);

/// What the standard output of the program can show.
struct OutputTerminal {
    int columns = 0;         ///< its width; 0 if it is a file or a pipe
    bool hasStyles = false;  ///< understands the control sequences for bold text
};

/// Asks the standard output. On Windows, its window understands control sequences from then on, as
/// long as a Utf8Terminal exists.
[[nodiscard]] OutputTerminal StandardOutputTerminal();
/// Lets standard input or output carry bytes as they are, where the system would change line ends.
void UseBinaryInput();
void UseBinaryOutput();

/// Makes the terminal show and deliver UTF-8 for the lifetime of this object.
class Utf8Terminal {
  public:
    Utf8Terminal();
    Utf8Terminal(const Utf8Terminal&) = delete;
    Utf8Terminal& operator=(const Utf8Terminal&) = delete;
    ~Utf8Terminal();

  private:
    class Before;
    std::unique_ptr<Before> before_;
};

}  // namespace brelex
