// SPDX-License-Identifier: MIT
#include "app/exception_report.h"

#include <functional>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include <wx/msgdlg.h>
#include <wx/timer.h>

#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

struct ExceptionCase {
    const char* name;
    std::function<void()> fail;
    const char* text;
};

class ExceptionReport : public testing::TestWithParam<ExceptionCase> {};

TEST_P(ExceptionReport, SaysWhy) {
    Message message;
    try {
        GetParam().fail();
    } catch (...) {
        message = MessageOfCaughtException();
    }
    EXPECT_EQ(message.text, GetParam().text);
    EXPECT_EQ(message.title, "Brevilexicon");
    EXPECT_EQ(message.icon, MessageIcon::Stop);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ExceptionReport,
    testing::Values(ExceptionCase{"NoMemory", [] { throw std::bad_alloc(); },
                                  "There is not enough memory for that."},
                    ExceptionCase{"AReason", [] { throw std::runtime_error("no such thing"); },
                                  "The operation failed: no such thing"},
                    ExceptionCase{"NoReason", [] { throw 1; }, "The operation failed."}),
    CaseName());

class ExceptionInHandler : public MainWindowTest {};

TEST_F(ExceptionInHandler, IsToldAndTheProgramGoesOn) {
    const ExpectedExceptions expected;
    const MessageBoxes boxes;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [](wxTimerEvent&) { throw std::bad_alloc(); });
    timer.StartOnce(1);
    EXPECT_TRUE(WaitFor([&] { return boxes.texts.size() == 1; }));
    EXPECT_EQ(boxes.texts[0], "There is not enough memory for that.");
    EXPECT_EQ(boxes.styles[0] & wxICON_MASK, wxICON_STOP);
    EXPECT_FALSE(window_->IsModalOpen());
    Type("x", "X");
}

}  // namespace
}  // namespace brelex
