// SPDX-License-Identifier: MIT
#include "base/app_info.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(AppInfo, HasNoVersionUntilItIsSet) {
    const AppInfo info;
    EXPECT_EQ(info.majorVersion, 0);
    EXPECT_EQ(info.minorVersion, 0);
}

}  // namespace
}  // namespace brelex
