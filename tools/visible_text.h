// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace brelex {

/// `text` (UTF-8) with a visible sign for each control character that is not one of `kept`, and for
/// each byte that is not UTF-8, so that nothing can send commands to the terminal. Each sign is one
/// column wide.
[[nodiscard]] std::string VisibleText(std::string_view text, std::string_view kept = {});

/// Prints a message of the program as one line, whatever the names that it quotes contain.
void PrintMessage(std::ostream& err, std::string_view message);

/// Lets a stream write visible text only, whatever the names and arguments that its messages quote.
/// Only the ends of lines stay as they are. Writes whole lines; the rest of the last one when this
/// object is destroyed.
class VisibleOutput final : public std::streambuf {
  public:
    explicit VisibleOutput(std::ostream& stream);
    VisibleOutput(const VisibleOutput&) = delete;
    VisibleOutput& operator=(const VisibleOutput&) = delete;
    ~VisibleOutput() override;

  protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    int sync() override;

  private:
    // Writes so many of the pending bytes.
    bool Write(std::size_t count);

    std::ostream& stream_;
    std::streambuf* target_;  // where the stream wrote before
    std::string pending_;
};

}  // namespace brelex
