// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace brelex {

/// A row of a test's table that has a name.
template <typename Case>
concept NamedCase = requires(const Case& row) {
    { row.name } -> std::convertible_to<std::string>;
};

/// Prints the name of a row when its test fails.
template <NamedCase Case>
void PrintTo(const Case& row, std::ostream* out) {
    *out << row.name;
}

/// Names the tests of a table after its rows.
struct CaseName {
    template <NamedCase Case>
    std::string operator()(const testing::TestParamInfo<Case>& row) const {
        return row.param.name;
    }
};

}  // namespace brelex
