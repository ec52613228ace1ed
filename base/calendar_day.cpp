// SPDX-License-Identifier: MIT
#include "base/calendar_day.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <cstddef>

#include "base/text.h"

namespace brelex {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = year(1899) / 12 / 30;
constexpr sys_days kFirstDay = year(100) / 1 / 1;
constexpr sys_days kLastDay = year(9999) / 12 / 31;

std::string Digits(unsigned number, std::size_t width) {
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), '0') + text;
}

}  // namespace

std::optional<year_month_day> DayOfCount(double count) {
    const double first = (kFirstDay - kDayZero).count();
    const double last = (kLastDay - kDayZero).count();
    if (!(count > first - 1 && count < last + 1)) {
        return std::nullopt;
    }
    return year_month_day(kDayZero + days(static_cast<int>(std::trunc(count))));
}

double CountOfDay(year_month_day day) {
    assert(day.ok());
    return static_cast<double>((sys_days(day) - kDayZero).count());
}

std::string FormatIsoDay(year_month_day day) {
    assert(day.ok());
    return Digits(static_cast<unsigned>(static_cast<int>(day.year())), 4) + "-" +
           Digits(static_cast<unsigned>(day.month()), 2) + "-" +
           Digits(static_cast<unsigned>(day.day()), 2);
}

std::string FormatShortDay(year_month_day day) {
    assert(day.ok());
    constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return std::to_string(static_cast<unsigned>(day.day())) + " " +
           kMonths.at(static_cast<unsigned>(day.month()) - 1) + " " +
           Digits(static_cast<unsigned>(static_cast<int>(day.year())), 4);
}

std::optional<year_month_day> ParseIsoDay(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    const auto y = NumberOf<unsigned>(text.substr(0, 4));
    const auto m = NumberOf<unsigned>(text.substr(5, 2));
    const auto d = NumberOf<unsigned>(text.substr(8));
    if (!y || !m || !d || *y < 100) {
        return std::nullopt;
    }
    const year_month_day parsed(year(static_cast<int>(*y)), month(*m), day(*d));
    return parsed.ok() ? std::optional(parsed) : std::nullopt;
}

}  // namespace brelex
