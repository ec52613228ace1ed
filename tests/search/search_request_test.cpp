// SPDX-License-Identifier: MIT
#include "search/search_request.h"

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(SearchRequest, WithoutOptionsItFindsTheTextAnywhereInExpansionsInEitherCase) {
    const SearchRequest request;
    EXPECT_EQ(request.text, "");
    EXPECT_EQ(request.in, SearchIn::Expansions);
    EXPECT_EQ(request.position, SearchPosition::Anywhere);
    EXPECT_FALSE(request.matchCase);
    EXPECT_FALSE(request.wholeWord);
    EXPECT_FALSE(request.loose);
}

}  // namespace
}  // namespace brelex
