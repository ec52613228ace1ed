// SPDX-License-Identifier: MIT
#include "presentation/tray_behaviour.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

// Writes down what it is told, in order.
class FakeOwner final : public TrayOwner {
  public:
    [[nodiscard]] bool IsWindowVisible() const override { return visible; }

    [[nodiscard]] bool IsWindowMinimized() const override { return !visible; }

    [[nodiscard]] bool IsModalWindowOpen() const override { return modal; }

    void RestoreWindow() override {
        visible = true;
        calls.emplace_back("restore");
    }

    void ActivateWindow() override {
        calls.emplace_back("activate");
        if (whileActivating) {
            whileActivating();
        }
    }

    void MinimizeWindow() override {
        visible = false;
        calls.emplace_back("minimize");
    }

    void PopUpMenu() override { ++menus; }

    void Run(Command command) override { calls.emplace_back(DetailsOf(command).caption); }

    bool visible = true;
    bool modal = false;
    int menus = 0;
    std::function<void()> whileActivating;
    std::vector<std::string> calls;
};

class TrayBehaviourTest : public testing::Test {
  protected:
    using Calls = std::vector<std::string>;

    [[nodiscard]] std::vector<std::string> Captions() const {
        std::vector<std::string> captions;
        for (const TrayMenuItem& item : tray_.Menu()) {
            captions.push_back(item.command ? item.caption : "-");
        }
        return captions;
    }

    FakeOwner owner_;
    TrayBehaviour tray_{owner_};
};

TEST_F(TrayBehaviourTest, ALeftReleaseBringsAHiddenWindowBack) {
    owner_.visible = false;
    tray_.OnLeftRelease();
    EXPECT_EQ(owner_.calls, (Calls{"restore", "activate"}));
}

TEST_F(TrayBehaviourTest, ALeftReleaseActivatesAVisibleWindow) {
    tray_.OnLeftRelease();
    EXPECT_EQ(owner_.calls, Calls{"activate"});
}

TEST_F(TrayBehaviourTest, ARightReleaseActivatesAVisibleWindowAndShowsTheMenu) {
    tray_.OnRightRelease();
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(owner_.menus, 1);
}

TEST_F(TrayBehaviourTest, ARightReleaseLeavesAHiddenWindowHidden) {
    owner_.visible = false;
    tray_.OnRightRelease();
    EXPECT_EQ(owner_.calls, Calls());
    EXPECT_EQ(owner_.menus, 1);
}

TEST_F(TrayBehaviourTest, WithAModalWindowOpenThereIsNoMenu) {
    owner_.modal = true;
    tray_.OnRightRelease();
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(owner_.menus, 0);
    tray_.OnMenuItem(Command::Search);
    tray_.OnMenuItem(Command::MinimizeOrRestore);
    EXPECT_EQ(owner_.calls, Calls{"activate"});
}

TEST_F(TrayBehaviourTest, WithAModalWindowOpenTheItemsAreDisabled) {
    for (const bool modal : {false, true}) {
        owner_.modal = modal;
        for (const TrayMenuItem& item : tray_.Menu()) {
            EXPECT_NE(item.enabled, modal) << item.caption;
        }
    }
}

TEST_F(TrayBehaviourTest, AReleaseWithinAReleaseIsIgnored) {
    owner_.whileActivating = [&] {
        EXPECT_TRUE(tray_.IsTrayBusy);
        tray_.OnLeftRelease();
        tray_.OnRightRelease();
    };
    tray_.OnLeftRelease();
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(owner_.menus, 0);
    EXPECT_FALSE(tray_.IsTrayBusy);
    owner_.whileActivating = nullptr;
    tray_.OnRightRelease();
    EXPECT_EQ(owner_.menus, 1);
}

TEST_F(TrayBehaviourTest, TheMenuNamesWhatItDoesToTheWindow) {
    EXPECT_EQ(Captions(),
              (Calls{"Search Database...", "About...", "&Minimize Window", "-", "Exit"}));
    owner_.visible = false;
    EXPECT_EQ(Captions(),
              (Calls{"Search Database...", "About...", "&Restore Window", "-", "Exit"}));
}

TEST_F(TrayBehaviourTest, TheItemsDoWhatTheySay) {
    for (const TrayMenuItem& item : tray_.Menu()) {
        if (item.command) {
            tray_.OnMenuItem(*item.command);
        }
    }
    EXPECT_EQ(owner_.calls,
              (Calls{DetailsOf(Command::Search).caption, DetailsOf(Command::About).caption,
                     "minimize", DetailsOf(Command::Exit).caption}));
}

TEST_F(TrayBehaviourTest, OneItemMinimizesTheWindowAndRestoresIt) {
    tray_.OnMenuItem(Command::MinimizeOrRestore);
    EXPECT_FALSE(owner_.visible);
    tray_.OnMenuItem(Command::MinimizeOrRestore);
    EXPECT_EQ(owner_.calls, (Calls{"minimize", "restore"}));
}

}  // namespace
}  // namespace brelex
