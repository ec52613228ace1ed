// SPDX-License-Identifier: MIT
#include "app/exception_report.h"

#include <functional>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

struct ExceptionCase {
    const char* name;
    std::function<void()> fail;
    const char* text;
};

class ExceptionReport : public testing::TestWithParam<ExceptionCase> {};

TEST_P(ExceptionReport, SaysWhy) {
    FakeMessageSink messages;
    try {
        GetParam().fail();
    } catch (...) {
        ReportCaughtException(messages);
    }
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, GetParam().text);
    EXPECT_EQ(messages.shown[0].title, "Brevilexicon");
    EXPECT_EQ(messages.shown[0].icon, MessageIcon::Stop);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ExceptionReport,
    testing::Values(ExceptionCase{"NoMemory", [] { throw std::bad_alloc(); },
                                  "There is not enough memory for that."},
                    ExceptionCase{"AReason", [] { throw std::runtime_error("no such thing"); },
                                  "That could not be done: no such thing"},
                    ExceptionCase{"NoReason", [] { throw 1; }, "That could not be done."}),
    CaseName());

}  // namespace
}  // namespace brelex
