// SPDX-License-Identifier: MIT
// The icon in a real notification area, which stands in the upper left corner of the display.
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"
#include "ui/main/main_menus.h"

namespace brelex {
namespace {

bool HasTray() {
    return std::getenv("WITH_TRAY") != nullptr;
}

class MainWindowWithTray : public MainWindowTest {
  protected:
    void SetUp() override {
        if (!HasTray()) {
            GTEST_SKIP() << "needs WITH_TRAY=1";
        }
        MainWindowTest::SetUp();
        ASSERT_TRUE(WaitFor([] { return ShowsTrayIcon(); }));
    }

    void TearDown() override {
        MainWindowTest::TearDown();
        EXPECT_TRUE(WaitFor([] { return !ShowsTrayIcon(); }));
    }

    void ClickIcon(int button) {
        user_.MouseMove(12, 12);
        LetEventsArrive();
        user_.MouseClick(button);
    }

    [[nodiscard]] static bool IsMenuUp() { return !MenuOnScreen().IsEmpty(); }

    // Opens the icon's menu and takes the steps when it is up.
    void InMenu(const std::vector<std::function<bool()>>& steps) {
        std::vector<std::function<bool()>> all = {[] { return IsMenuUp(); }};
        all.insert(all.end(), steps.begin(), steps.end());
        ModalDriver driver(all);
        ClickIcon(wxMOUSE_BTN_RIGHT);
        EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    }

    // Presses the access key of an item of the icon's menu and waits for what it does.
    bool ChooseInMenu(char key, const std::function<bool()>& isDone) {
        InMenu({[&] {
            user_.Char(key);
            return true;
        }});
        return isDone();
    }

    void Minimise() {
        window_->Iconize();
        ASSERT_TRUE(WaitFor([&] { return !window_->IsShown() && !IsOnScreen(*window_); }));
    }
};

TEST_F(MainWindowWithTray, MinimisingHidesTheWindowAndALeftClickBringsItBack) {
    Minimise();
    ClickIcon(wxMOUSE_BTN_LEFT);
    EXPECT_TRUE(IsBack());
    // And again: what brought it back has left no trace.
    Minimise();
    ClickIcon(wxMOUSE_BTN_LEFT);
    EXPECT_TRUE(IsBack());
}

class StayOnTopWithTray : public MainWindowWithTray {
  protected:
    void SetUp() override {
        MainWindowWithTray::SetUp();
        if (window_ != nullptr) {
            wxCommandEvent event(wxEVT_MENU, IdOf(Command::StayOnTop));
            event.SetInt(1);
            window_->ProcessWindowEvent(event);
            ASSERT_TRUE(WaitFor([&] { return IsKeptAbove(*window_); }));
        }
    }

    [[nodiscard]] bool IsBackOnTop() const {
        return IsBack() && WaitFor([&] { return IsKeptAbove(*window_); });
    }
};

TEST_F(StayOnTopWithTray, HoldsWhenALeftClickOnTheIconBringsTheWindowBack) {
    for (int i = 0; i < 2; ++i) {
        Minimise();
        ClickIcon(wxMOUSE_BTN_LEFT);
        EXPECT_TRUE(IsBackOnTop());
    }
}

TEST_F(StayOnTopWithTray, HoldsWhenTheMenuOfTheIconBringsTheWindowBack) {
    Minimise();
    EXPECT_TRUE(ChooseInMenu('R', [&] { return IsBackOnTop(); }));
}

TEST_F(StayOnTopWithTray, IsNotTakenUpBehindASideWindow) {
    ModalDriver driver({
        [&] { return window_->IsModalOpen(); },
        [&] {
            window_->Hide();
            window_->Show();
            EXPECT_TRUE(StaysFor(200, [&] { return !IsKeptAbove(*window_); }));
            return true;
        },
        [&] {
            if (wxDialog* const dialog = OpenModalDialog()) {
                dialog->EndModal(wxID_CANCEL);
            }
            return true;
        },
    });
    window_->Run(Command::About);
    EXPECT_TRUE(WaitFor([&] { return IsKeptAbove(*window_); }));
}

TEST_F(MainWindowWithTray, ALeftClickBringsACoveredWindowForward) {
    auto* other = new wxFrame(nullptr, wxID_ANY, "Another window", wxDefaultPosition, {300, 200});
    other->Show();
    other->Raise();
    ASSERT_TRUE(WaitFor([&] { return !window_->IsActive(); }));
    ClickIcon(wxMOUSE_BTN_LEFT);
    EXPECT_TRUE(WaitFor([&] { return window_->IsActive(); }));
    other->Destroy();
}

TEST_F(MainWindowWithTray, TheMenusRestoreItemBringsTheWindowBack) {
    Minimise();
    EXPECT_TRUE(ChooseInMenu('R', [&] { return IsBack(); }));
}

TEST_F(MainWindowWithTray, TheMenusMinimizeItemHidesTheWindow) {
    EXPECT_TRUE(ChooseInMenu('M', [&] { return WaitFor([&] { return !window_->IsShown(); }); }));
}

TEST_F(MainWindowWithTray, ClosingTheMenuDoesNothing) {
    InMenu({[&] {
        user_.Char(WXK_ESCAPE);
        return true;
    }});
    EXPECT_TRUE(WaitFor([&] { return !IsMenuUp(); }));
    EXPECT_TRUE(StaysFor(100, [&] { return window_->IsShown() && !window_->IsModalOpen(); }));
}

TEST_F(MainWindowWithTray, ClosingTheWindowWhileTheMenuIsUpEndsBoth) {
    frmMain* const window = std::exchange(window_, nullptr);
    InMenu({[&] {
                window->Close();
                return true;
            },
            [&] {
                user_.Char(WXK_ESCAPE);
                return true;
            }});
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
    EXPECT_TRUE(WaitFor([&] { return !IsMenuUp(); }));
}

TEST_F(MainWindowWithTray, NoMenuWhileAModalWindowIsUp) {
    bool looked = false;
    ModalDriver driver({
        [&] { return window_->IsModalOpen(); },
        [&] {
            user_.MouseMove(12, 12);
            user_.MouseClick(wxMOUSE_BTN_RIGHT);
            return true;
        },
        [&] {
            // Were there a menu, this key would choose its item and hide the window.
            EXPECT_TRUE(StaysFor(400, [] { return !IsMenuUp(); }));
            user_.Char('M');
            looked = true;
            return true;
        },
        [&] {
            user_.Char(WXK_RETURN);
            return !window_->IsModalOpen();
        },
    });
    window_->Run(Command::About);
    EXPECT_TRUE(looked);
    EXPECT_FALSE(window_->IsModalOpen());
    EXPECT_TRUE(window_->IsShown());
}

TEST_F(MainWindowWithTray, TheWordMinimizeHidesTheWindow) {
    Start(SampleEntries(), "/minimize");
    EXPECT_TRUE(window_->IsShown());
    EXPECT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
    ClickIcon(wxMOUSE_BTN_LEFT);
    EXPECT_TRUE(IsBack());
}

}  // namespace
}  // namespace brelex
