// SPDX-License-Identifier: MIT
#include "presentation/toolbar_state.h"

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/named_case.h"

namespace brelex {
namespace {

// Writes down what the toolbar does.
class RecordingView final : public ToolbarView {
  public:
    void SetCapture() override { log.emplace_back("capture"); }

    void ReleaseCapture() override { log.emplace_back("release"); }

    void LetPendingPaintingRun() override { log.emplace_back("paint"); }

    void DrawIcon(int icon, int state) override {
        log.push_back(std::to_string(icon) + (state == kFlat     ? " flat"
                                              : state == kRaised ? " raised"
                                                                 : " sunken"));
    }

    void Describe(int icon) override {
        log.push_back(icon < 0 ? "describe nothing" : "describe " + std::to_string(icon));
    }

    void RunAction(int icon) override { log.push_back("run " + std::to_string(icon)); }

    std::vector<std::string> log;
};

// Three icons of 32 by 32 on a toolbar of 200 by 40: at 10 and at 50, and one that overlaps the
// second by a corner.
class Toolbar {
  public:
    Toolbar() : state({{10, 4, 32, 32}, {50, 4, 32, 32}, {80, 4, 32, 32}}, 200, 40, view) {}

    // What the toolbar does when `act` happens.
    std::vector<std::string> Log(const std::function<void(ToolbarState&)>& act) {
        view.log.clear();
        act(state);
        return view.log;
    }

    RecordingView view;
    ToolbarState state;
};

using Strings = std::vector<std::string>;

struct PlaceCase {
    const char* name;
    double x;
    double y;
    int hot;
};

class ToolbarPlace : public testing::TestWithParam<PlaceCase> {};

TEST_P(ToolbarPlace, IsOverItsIcon) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, GetParam().x, GetParam().y);
    EXPECT_EQ(toolbar.state.HotIcon(), GetParam().hot);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ToolbarPlace,
    testing::Values(PlaceCase{"Middle", 20, 20, 0}, PlaceCase{"LeftEdge", 10, 20, 0},
                    PlaceCase{"TopEdge", 20, 4, 0}, PlaceCase{"RightBoundary", 42, 20, 0},
                    PlaceCase{"BottomBoundary", 20, 36, 0}, PlaceCase{"Corner", 42, 36, 0},
                    PlaceCase{"LeftOfIt", 9.5, 20, -1}, PlaceCase{"RightOfIt", 42.5, 20, -1},
                    PlaceCase{"AboveIt", 20, 3, -1}, PlaceCase{"BelowIt", 20, 37, -1},
                    PlaceCase{"OfTwoTheLast", 81, 20, 2},
                    PlaceCase{"TheToolbarsCorner", 200, 40, -1}, PlaceCase{"Origin", 0, 0, -1}),
    CaseName());

TEST(ToolbarState, EnteringAnIconRaisesAndDescribesIt) {
    Toolbar toolbar;
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, 20, 20); }),
              (Strings{"capture", "paint", "0 raised", "describe 0"}));
    // Nothing is redrawn while it stays there, but the mouse is held on every move.
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, 22, 22); }), (Strings{"capture"}));
}

TEST(ToolbarState, EnteringTheNextIconFlattensTheLast) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, 60, 20); }),
              (Strings{"capture", "paint", "0 flat", "1 raised", "describe 1"}));
}

TEST(ToolbarState, BetweenTheIconsNothingIsHot) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, 46, 20); }),
              (Strings{"capture", "0 flat", "describe nothing"}));
    EXPECT_EQ(toolbar.state.HotIcon(), -1);
}

struct OutsideCase {
    const char* name;
    double x;
    double y;
};

class ToolbarOutside : public testing::TestWithParam<OutsideCase> {};

TEST_P(ToolbarOutside, FlattensAndLetsGoOfTheMouse) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, GetParam().x, GetParam().y); }),
              (Strings{"capture", "0 flat", "describe nothing", "release"}));
}

INSTANTIATE_TEST_SUITE_P(Table, ToolbarOutside,
                         testing::Values(OutsideCase{"Left", -1, 20}, OutsideCase{"Above", 20, -1},
                                         OutsideCase{"Right", 201, 20},
                                         OutsideCase{"Below", 20, 41}),
                         CaseName());

TEST(ToolbarState, APressSinksAndAReleaseRuns) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseDown(kLeftButton); }),
              (Strings{"0 sunken"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeftButton, 21, 21); }),
              (Strings{"capture"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(kLeftButton); }),
              (Strings{"0 flat", "run 0"}));
    EXPECT_EQ(toolbar.state.HotIcon(), -1);
}

TEST(ToolbarState, APressIsAbandonedByLeaving) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    toolbar.state.OnMouseDown(kLeftButton);
    toolbar.state.OnMouseMove(kLeftButton, 20, 50);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(kLeftButton); }), Strings());
}

TEST(ToolbarState, SlidingToAnotherIconRunsThatOnesAction) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    toolbar.state.OnMouseDown(kLeftButton);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeftButton, 60, 20); }),
              (Strings{"capture", "paint", "0 flat", "1 sunken", "describe 1"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(kLeftButton); }),
              (Strings{"1 flat", "run 1"}));
}

TEST(ToolbarState, AfterAReleaseTheIconUnderTheMouseRisesAgain) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    toolbar.state.OnMouseDown(kLeftButton);
    toolbar.state.OnMouseUp(kLeftButton);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(0, 20, 20); }),
              (Strings{"capture", "paint", "0 raised", "describe 0"}));
}

TEST(ToolbarState, OtherButtonsNeitherSinkNorRun) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    for (const int button : {kRightButton, kMiddleButton}) {
        EXPECT_EQ(toolbar.Log([&](ToolbarState& s) {
            s.OnMouseDown(button);
            s.OnMouseUp(button);
        }),
                  Strings());
    }
    // With the right button held the edge is a raised one; with both, too.
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kRightButton, 20, 20); }),
              (Strings{"capture", "paint", "0 flat", "0 raised", "describe 0"}));
    EXPECT_EQ(
        toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeftButton | kRightButton, 20, 20); }),
        (Strings{"capture", "paint", "0 flat", "0 raised", "describe 0"}));
}

TEST(ToolbarState, WithoutAHotIconButtonsDoNothing) {
    Toolbar toolbar;
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) {
        s.OnMouseDown(kLeftButton);
        s.OnMouseUp(kLeftButton);
    }),
              Strings());
}

TEST(ToolbarState, LosingTheMouseFlattens) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(0, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnCaptureLost(); }),
              (Strings{"0 flat", "describe nothing"}));
    // What another control says in the meantime stays.
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnCaptureLost(); }), Strings());
}

TEST(ToolbarState, AWiderToolbarIsStillInsideBehindTheIcons) {
    Toolbar toolbar;
    const auto moveFarRight = [](ToolbarState& s) { s.OnMouseMove(0, 5000, 20); };
    const Strings outside = toolbar.Log(moveFarRight);
    toolbar.state.OnResize(6000, 40);
    const Strings inside = toolbar.Log(moveFarRight);
    EXPECT_EQ(outside, (Strings{"capture", "describe nothing", "release"}));
    EXPECT_EQ(inside, (Strings{"capture", "describe nothing"}));
}

TEST(EdgeOf, LiesOnTheBoundaryRoundedToEven) {
    EXPECT_EQ(EdgeOf({10, 4, 32, 32}), (EdgeRectangle{10, 4, 42, 36}));
    EXPECT_EQ(EdgeOf({10.5, 11.5, 32, 32}), (EdgeRectangle{10, 12, 42, 44}));
    EXPECT_EQ(EdgeOf({10.6, 11.4, 32.2, 32.2}), (EdgeRectangle{11, 11, 43, 44}));
}

TEST(ToolbarIcons, SayWhatTheyAreFor) {
    struct Icon {
        const char* description;
        const char* toolTip;
    };

    const std::vector<Icon> icons = {
        {"Search Database", "Searches the database based on criteria"},
        {"Anagrammatic Search", "Searches the database anagrammatically for acronyms"},
        {"Smiley Dictionary", "Displays a dictionary of smileys"},
        {"Help Contents", "Opens the Help Contents window"},
        {"About", "Displays information about the program"},
        {"Exit", "Donate any amount you wish via PayPal"},
        {"Exit", "Quits the application"}};
    ASSERT_EQ(icons.size(), kToolbarIcons.size());
    for (std::size_t i = 0; i < icons.size(); ++i) {
        EXPECT_STREQ(kToolbarIcons.at(i).description, icons[i].description);
        EXPECT_STREQ(kToolbarIcons.at(i).toolTip, icons[i].toolTip);
    }
}

}  // namespace
}  // namespace brelex
