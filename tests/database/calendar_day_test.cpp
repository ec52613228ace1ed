// SPDX-License-Identifier: MIT
#include "database/calendar_day.h"

#include <limits>

#include <gtest/gtest.h>

namespace brelex {
namespace {

using std::chrono::year;

TEST(CalendarDay, DayZeroIsThirtiethOfDecember1899) {
    EXPECT_EQ(CountOfDay(year(1899) / 12 / 30), 0);
    EXPECT_EQ(DayOfCount(0), year(1899) / 12 / 30);
    EXPECT_EQ(CountOfDay(year(2005) / 2 / 3), 38386);
}

TEST(CalendarDay, TheTimeOfDayIsDropped) {
    EXPECT_EQ(DayOfCount(38386.99), year(2005) / 2 / 3);
    EXPECT_EQ(DayOfCount(-0.5), year(1899) / 12 / 29);
}

TEST(CalendarDay, CountsThatAreNoDatesAreRefused) {
    EXPECT_EQ(DayOfCount(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(DayOfCount(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(DayOfCount(-1e300), std::nullopt);
    EXPECT_EQ(DayOfCount(2958466), std::nullopt);  // 1 January 10000
    EXPECT_EQ(DayOfCount(2958465.9), year(9999) / 12 / 31);
}

TEST(CalendarDay, IsoDaysAreReadAndWritten) {
    EXPECT_EQ(FormatIsoDay(year(2005) / 2 / 3), "2005-02-03");
    EXPECT_EQ(ParseIsoDay("2005-02-03"), year(2005) / 2 / 3);
    for (const char* wrong : {"2005-02-30", "2005-13-01", "2005-2-3", "2005/02/03", "20050203", "",
                              "0000-01-01", "2005-02-0x", "-005-02-03"}) {
        EXPECT_EQ(ParseIsoDay(wrong), std::nullopt) << wrong;
    }
}

}  // namespace
}  // namespace brelex
