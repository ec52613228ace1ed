// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace brelex {

/// The program's arguments without its name, in UTF-8.
[[nodiscard]] std::vector<std::string> Utf8Arguments(int argc, char** argv);

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
