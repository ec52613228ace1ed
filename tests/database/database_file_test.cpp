// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(ReasonText, NoFailureHasNoReason) {
    EXPECT_EQ(ReasonText(LoadFailure::None), "");
    EXPECT_NE(ReasonText(LoadFailure::BadHeader), "");
}

}  // namespace
}  // namespace brelex
