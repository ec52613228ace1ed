// SPDX-License-Identifier: MIT
#include "app/configured_app_info.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(AppVersion, IsMajorAndMinorJoinedByAPoint) {
    AppInfo info;
    info.majorVersion = 6;
    info.minorVersion = 1;
    EXPECT_FLOAT_EQ(AppVersionOf(info), 6.1F);
}

}  // namespace
}  // namespace brelex
