// SPDX-License-Identifier: MIT
#include "database/program_values.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(ProgramValues, BeforeLoadingThereAreNoEntriesAndNoTimeHasPassed) {
    const ProgramValues values;
    EXPECT_EQ(values.AcronymList, nullptr);
    EXPECT_EQ(values.RecordCount, 0);
    EXPECT_EQ(values.LoadingTime, 0);
    EXPECT_EQ(values.AppVersion, 0);
    EXPECT_EQ(values.ProgressStep, 1);
}

}  // namespace
}  // namespace brelex
