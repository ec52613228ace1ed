// SPDX-License-Identifier: MIT
#include "database/check_session.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "database/modDataLoader.h"
#include "database/szdd.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

// A window that keeps what it is told, and in which a test may do something while events run.
class FakeCheckView final : public CheckView {
  public:
    void ShowDisplay(const CheckDisplay& display) override { shown = display; }

    void MoveFocus(CheckFocus newFocus) override { focus = newFocus; }

    void LetEventsRun(int restMs) override {
        rests.push_back(restMs);
        if (onEvents) {
            onEvents();
        }
    }

    void CloseWindow() override { isClosed = true; }

    CheckDisplay shown;
    CheckFocus focus = CheckFocus::CancelButton;
    std::vector<int> rests;
    bool isClosed = false;
    std::function<void()> onEvents;
};

// A database that was loaded, and the window that checks it.
class CheckSessionTest : public testing::Test {
  protected:
    CheckSessionTest() {
        values_.AppFolder = folder_.Text();
        values_.DatabasePath = folder_.Write("Acronyms.dat", DatabaseBytes(records_));
        WorkWatcher nobody;
        EXPECT_TRUE(LoadDatabase(values_, store_, {files_, nobody, messages_}));
        session_.Open();
    }

    void ChangeALetter() const {
        std::string expanded = ExpandedBytes(records_);
        expanded[expanded.size() - 10] ^= 1;
        folder_.Write("Acronyms.dat", CompressSzdd(expanded));
    }

    // Once events run, when a check has come to some percent.
    void AtPercent(int percent, const std::function<void()>& act) {
        view_.onEvents = [this, percent, act] {
            if (view_.shown.percent == percent) {
                act();
            }
        };
    }

    void ExpectResult(CheckResult result, const char* text) const {
        EXPECT_EQ(view_.shown.result, result);
        EXPECT_EQ(view_.shown.resultText, text);
        EXPECT_EQ(view_.shown.message, "Completed");
        EXPECT_EQ(view_.shown.percent, 100);
        EXPECT_FALSE(view_.shown.isChecking);
        EXPECT_EQ(view_.focus, CheckFocus::CheckButton);
        EXPECT_TRUE(messages_.shown.empty());
    }

    void ExpectPassed() const { ExpectResult(CheckResult::Passed, "Data integrity check PASSED"); }

    void ExpectFailed() const { ExpectResult(CheckResult::Failed, "Data integrity check FAILED"); }

    void ExpectNoResult() const {
        EXPECT_EQ(view_.shown, CheckDisplay());
        EXPECT_EQ(view_.shown.message, "Progress");
        EXPECT_FALSE(view_.shown.isChecking || view_.shown.percent);
    }

    std::vector<std::string> records_ = NumberedRecords(200);
    TestFolder folder_;
    TestFolder temp_;
    ProgramValues values_;
    RecordStore store_;
    FakeTemporaryFiles files_{temp_.Text()};
    FakeMessageSink messages_;
    FakeCheckView view_;
    CheckSession session_{values_, files_, view_, messages_};
};

TEST_F(CheckSessionTest, OpensIdle) {
    ExpectNoResult();
    EXPECT_FALSE(session_.Aborted());
    EXPECT_EQ(view_.focus, CheckFocus::CheckButton);
}

TEST_F(CheckSessionTest, AnUnchangedFilePasses) {
    session_.RunCheck();
    ExpectPassed();
}

TEST_F(CheckSessionTest, AChangedFileFailsAndPassesWhenItIsMended) {
    ChangeALetter();
    session_.RunCheck();
    ExpectFailed();
    EXPECT_EQ(store_.RowText(0), records_[0]);
    EXPECT_EQ(store_.RowCount(), 200);
    folder_.Write("Acronyms.dat", DatabaseBytes(records_));
    session_.RunCheck();
    ExpectPassed();
}

TEST_F(CheckSessionTest, AFileThatIsGoneFailsWithoutAMessage) {
    std::filesystem::remove(PathOfUtf8(values_.DatabasePath));
    session_.RunCheck();
    ExpectFailed();
}

TEST_F(CheckSessionTest, ShowsHowFarItIsAndRestsAtEachProgress) {
    std::vector<int> percents;
    view_.onEvents = [&] {
        EXPECT_TRUE(view_.shown.isChecking);
        EXPECT_EQ(view_.shown.message, "Checking data integrity...");
        EXPECT_EQ(view_.shown.resultText, "");
        EXPECT_EQ(view_.focus, CheckFocus::CancelButton);
        percents.push_back(view_.shown.percent.value_or(-1));
    };
    session_.RunCheck();
    ASSERT_GT(percents.size(), 50U);
    EXPECT_EQ(percents.front(), 0);
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_EQ(view_.rests, std::vector<int>(percents.size(), 5));
    ExpectPassed();
}

TEST_F(CheckSessionTest, TheNextCheckClearsTheResult) {
    session_.RunCheck();
    AtPercent(0, [&] { EXPECT_EQ(view_.shown.result, CheckResult::None); });
    session_.RunCheck();
    ExpectPassed();
}

TEST_F(CheckSessionTest, CancelEndsARunningCheckAndSaysSo) {
    AtPercent(50, [&] {
        session_.PressCancel();
        EXPECT_TRUE(session_.Aborted());
    });
    session_.RunCheck();
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].text, "Check was aborted by user");
    EXPECT_EQ(messages_.shown[0].title, "Brevilexicon");
    EXPECT_EQ(messages_.shown[0].icon, MessageIcon::Information);
    EXPECT_FALSE(view_.isClosed);
    EXPECT_EQ(view_.focus, CheckFocus::CheckButton);
    EXPECT_FALSE(session_.Aborted());
    ExpectNoResult();
    messages_.shown.clear();
    view_.onEvents = nullptr;
    session_.RunCheck();
    ExpectPassed();
}

TEST_F(CheckSessionTest, BehindTheMessageOfTheAbortTheProgressStandsStill) {
    messages_.behind = [&] {
        EXPECT_EQ(view_.shown.percent, 50);
        EXPECT_EQ(view_.shown.message, "Checking data integrity...");
    };
    AtPercent(50, [&] { session_.PressCancel(); });
    session_.RunCheck();
    EXPECT_EQ(messages_.shown.size(), 1U);
}

TEST_F(CheckSessionTest, CancelClosesTheIdleWindow) {
    session_.PressCancel();
    EXPECT_TRUE(view_.isClosed);
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(CheckSessionTest, ClosingTheWindowEndsTheCheckAndSaysNothing) {
    AtPercent(50, [&] {
        session_.Close();
        EXPECT_TRUE(view_.isClosed);
    });
    session_.RunCheck();
    EXPECT_TRUE(messages_.shown.empty());
    EXPECT_EQ(view_.focus, CheckFocus::CancelButton) << "a closed window takes no keyboard";
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(values_.TempFilePath)));
    ExpectNoResult();
}

TEST_F(CheckSessionTest, AFailureNobodyExpectsEndsTheCheckAndNotTheWindow) {
    files_.memoryIsFull = true;
    EXPECT_THROW(session_.RunCheck(), std::bad_alloc);
    ExpectNoResult();
    files_.memoryIsFull = false;
    session_.RunCheck();
    ExpectPassed();
}

}  // namespace
}  // namespace brelex
