// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/test_files.h"
#include "tools/build_command.h"

namespace brelex {

/// Builds databases in a folder of their own and collects what the commands print.
class CommandsTest : public testing::Test {
  protected:
    int Build(BuildRequest request) {
        if (request.inputs.empty()) {
            request.inputs = {folder_.Write(
                "list.tsv", "RAM\tRandom Access Memory\nABC\tAlpha\nABC\tAlpha\nABCD\tLong\n")};
        }
        if (request.date.empty()) {
            request.date = "2005-02-03";
        }
        if (request.output.name.empty()) {
            request.output.name = database_;
        }
        return RunBuild(request, in_, out_, err_);
    }

    std::string Output() {
        std::string text = out_.str();
        out_.str("");
        return text;
    }

    TestFolder folder_;
    std::string database_ = folder_.Text() + "Acronyms.dat";
    std::istringstream in_;
    std::ostringstream out_;
    std::ostringstream err_;
};

}  // namespace brelex
