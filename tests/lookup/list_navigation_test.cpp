// SPDX-License-Identifier: MIT
#include "lookup/list_navigation.h"

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct KeyCase {
    const char* name;
    NavigationKey key;
    std::int32_t row;
    std::int32_t target;
};

class RowAfterKeyTest : public testing::TestWithParam<KeyCase> {};

TEST_P(RowAfterKeyTest, OfAHundredRowsTenVisible) {
    EXPECT_EQ(RowAfterKey(GetParam().key, GetParam().row, 100, 10), GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, RowAfterKeyTest,
    testing::Values(KeyCase{"Down", NavigationKey::Down, 5, 6},
                    KeyCase{"Up", NavigationKey::Up, 5, 4},
                    KeyCase{"PageDown", NavigationKey::PageDown, 5, 14},
                    KeyCase{"PageUp", NavigationKey::PageUp, 50, 41},
                    KeyCase{"DownAtTheEnd", NavigationKey::Down, 99, 99},
                    KeyCase{"UpAtTheTop", NavigationKey::Up, 0, 0},
                    KeyCase{"PageDownNearTheEnd", NavigationKey::PageDown, 95, 99},
                    KeyCase{"PageUpNearTheTop", NavigationKey::PageUp, 3, 0},
                    KeyCase{"DownWithNothingSelected", NavigationKey::Down, -1, 0},
                    KeyCase{"UpWithNothingSelected", NavigationKey::Up, -1, 0},
                    KeyCase{"EnterMovesNothing", NavigationKey::Enter, 7, 7}),
    CaseName());

TEST(RowAfterKey, WithoutRowsThereIsNone) {
    EXPECT_EQ(RowAfterKey(NavigationKey::Down, -1, 0, 10), -1);
}

TEST(RowAfterKey, OfASingleRowThereIsNoOther) {
    for (const auto key : {NavigationKey::Up, NavigationKey::Down, NavigationKey::PageUp,
                           NavigationKey::PageDown, NavigationKey::Enter}) {
        EXPECT_EQ(RowAfterKey(key, 0, 1, 10), 0);
    }
}

TEST(RowAfterKey, APageIsOneRowAtLeast) {
    EXPECT_EQ(RowAfterKey(NavigationKey::PageDown, 5, 100, 0), 6);
    EXPECT_EQ(RowAfterKey(NavigationKey::PageUp, 5, 100, 1), 4);
}

}  // namespace
}  // namespace brelex
