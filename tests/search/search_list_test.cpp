// SPDX-License-Identifier: MIT
#include "search/search_list.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct ListCase {
    const char* name;
    const char* list;
    std::vector<std::string> items;
};

class SearchListItemsTest : public testing::TestWithParam<ListCase> {};

TEST_P(SearchListItemsTest, AreCutAtEachDigitOne) {
    EXPECT_EQ(SearchListItems(GetParam().list), GetParam().items);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, SearchListItemsTest,
    testing::Values(ListCase{"Empty", "", {}}, ListCase{"BlanksOnly", "   ", {}},
                    ListCase{"One", "network", {"network"}},
                    ListCase{"Several", "network1data base1disk", {"network", "data base", "disk"}},
                    ListCase{"Trimmed", "  net1disk  ", {"net", "disk"}},
                    ListCase{"BlanksInside", "net 1 disk", {"net ", " disk"}},
                    ListCase{"EmptyPieces", "1a11b1", {"", "a", "", "b", ""}},
                    ListCase{"OtherDigitsStay", "802.31x", {"802.3", "x"}}),
    CaseName());

}  // namespace
}  // namespace brelex
