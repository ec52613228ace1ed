// SPDX-License-Identifier: MIT
#include "base/calendar_day.h"

#include <limits>
#include <string>

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
    EXPECT_EQ(DayOfCount(0.99), year(1899) / 12 / 30);
    EXPECT_EQ(DayOfCount(-1), year(1899) / 12 / 29);
    EXPECT_EQ(DayOfCount(-1.25), year(1899) / 12 / 29);
    EXPECT_EQ(DayOfCount(-2), year(1899) / 12 / 28);
}

TEST(CalendarDay, CountsThatAreNoDatesAreRefused) {
    EXPECT_EQ(DayOfCount(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(DayOfCount(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(DayOfCount(-1e300), std::nullopt);
    EXPECT_EQ(DayOfCount(2958466), std::nullopt);  // 1 January 10000
    EXPECT_EQ(DayOfCount(2958465.9), year(9999) / 12 / 31);
    EXPECT_EQ(DayOfCount(-657434.9), year(100) / 1 / 1);
    EXPECT_EQ(DayOfCount(-657435), std::nullopt);
}

TEST(CalendarDay, ShortDaysAreInEnglishWithoutLeadingZero) {
    EXPECT_EQ(FormatShortDay(year(2005) / 2 / 3), "3 Feb 2005");
    EXPECT_EQ(FormatShortDay(year(2026) / 12 / 31), "31 Dec 2026");
    EXPECT_EQ(FormatShortDay(year(100) / 1 / 1), "1 Jan 0100");
    std::string months;
    for (unsigned month = 1; month <= 12; ++month) {
        months += FormatShortDay(year(2000) / std::chrono::month(month) / 10).substr(3, 3);
    }
    EXPECT_EQ(months, "JanFebMarAprMayJunJulAugSepOctNovDec");
}

TEST(CalendarDay, IsoDaysAreReadAndWritten) {
    EXPECT_EQ(FormatIsoDay(year(2005) / 2 / 3), "2005-02-03");
    EXPECT_EQ(ParseIsoDay("2005-02-03"), year(2005) / 2 / 3);
    EXPECT_EQ(ParseIsoDay("2005-12-31"), year(2005) / 12 / 31);
    EXPECT_EQ(ParseIsoDay("0100-01-01"), year(100) / 1 / 1);
    EXPECT_EQ(ParseIsoDay("9999-12-31"), year(9999) / 12 / 31);
    for (const char* wrong :
         {"2005-02-30", "2005-13-01", "2005-00-01", "2005-01-00", "2005-2-3", "2005/02/03",
          "2005/02-03", "2005-02/03", "20050203", "", "0000-01-01", "0099-12-31", "200x-02-03",
          "2005-1x-03", "2005-02-1x", "2005-02-x1", "2005-02-031", "-005-02-03", "-105-02-03"}) {
        EXPECT_EQ(ParseIsoDay(wrong), std::nullopt) << wrong;
    }
}

}  // namespace
}  // namespace brelex
