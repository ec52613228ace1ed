// SPDX-License-Identifier: MIT
#include "ui/main/tray_behaviour.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

// Writes down what it is told, in order.
class FakeOwner final : public TrayOwner {
  public:
    [[nodiscard]] bool IsWindowVisible() const override { return visible; }

    [[nodiscard]] bool IsWindowMinimised() const override { return !visible; }

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

    void MinimiseWindow() override {
        visible = false;
        calls.emplace_back("minimise");
    }

    void OpenModalForm(int number) override { calls.push_back("open " + std::to_string(number)); }

    void Exit() override { calls.emplace_back("exit"); }

    bool visible = true;
    bool modal = false;
    std::function<void()> whileActivating;
    std::vector<std::string> calls;
};

class FakeIcon final : public TrayIcon {
  public:
    [[nodiscard]] bool IsShown() const override { return true; }

    void PopUpMenu() override { ++menus; }

    void MenuChanged() override {}

    int menus = 0;
};

class TrayBehaviourTest : public testing::Test {
  protected:
    using Calls = std::vector<std::string>;

    [[nodiscard]] std::vector<std::string> Captions() const {
        std::vector<std::string> captions;
        for (const TrayMenuItem& item : tray_.Menu()) {
            captions.push_back(item.caption);
        }
        return captions;
    }

    FakeOwner owner_;
    FakeIcon icon_;
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
    tray_.OnRightRelease(icon_);
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(icon_.menus, 1);
}

TEST_F(TrayBehaviourTest, ARightReleaseLeavesAHiddenWindowHidden) {
    owner_.visible = false;
    tray_.OnRightRelease(icon_);
    EXPECT_EQ(owner_.calls, Calls());
    EXPECT_EQ(icon_.menus, 1);
}

TEST_F(TrayBehaviourTest, WithAModalWindowOpenThereIsNoMenu) {
    owner_.modal = true;
    tray_.OnRightRelease(icon_);
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(icon_.menus, 0);
    tray_.OnMenuItem(0);
    EXPECT_EQ(owner_.calls, Calls{"activate"});
}

TEST_F(TrayBehaviourTest, WithAModalWindowOpenTheItemsAreDisabled) {
    const auto isEnabled = [&](int index) {
        return tray_.Menu()[static_cast<std::size_t>(index)].enabled;
    };
    EXPECT_TRUE(isEnabled(2));
    owner_.modal = true;
    for (const int index : {0, 1, 2, 4}) {
        EXPECT_FALSE(isEnabled(index)) << index;
    }
}

TEST_F(TrayBehaviourTest, AReleaseWithinAReleaseIsIgnored) {
    owner_.whileActivating = [&] {
        EXPECT_TRUE(tray_.IsTrayBusy);
        tray_.OnLeftRelease();
        tray_.OnRightRelease(icon_);
    };
    tray_.OnLeftRelease();
    EXPECT_EQ(owner_.calls, Calls{"activate"});
    EXPECT_EQ(icon_.menus, 0);
    EXPECT_FALSE(tray_.IsTrayBusy);
    owner_.whileActivating = nullptr;
    tray_.OnRightRelease(icon_);
    EXPECT_EQ(icon_.menus, 1);
}

TEST_F(TrayBehaviourTest, TheMenuNamesWhatItDoesToTheWindow) {
    EXPECT_EQ(Captions(),
              (Calls{"Search Database...", "About...", "&Minimize Window", "-", "Exit"}));
    owner_.visible = false;
    EXPECT_EQ(Captions(),
              (Calls{"Search Database...", "About...", "&Restore Window", "-", "Exit"}));
}

TEST_F(TrayBehaviourTest, TheItemsDoWhatTheySay) {
    for (const int index : {0, 1, 2, 2, 3, 4, 5, -1}) {
        tray_.OnMenuItem(index);
    }
    EXPECT_EQ(owner_.calls, (Calls{"open 0", "open 4", "minimise", "restore", "exit"}));
}

}  // namespace
}  // namespace brelex
