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
    void HoldMouse() override { log.emplace_back("hold"); }

    void LetMouseGo() override { log.emplace_back("let go"); }

    void LetPendingPaintingRun() override { log.emplace_back("paint"); }

    void DrawIcon(int icon) override {
        const Edge edge = state->EdgeOf(icon);
        log.push_back(std::to_string(icon) + (edge == Edge::Flat     ? " flat"
                                              : edge == Edge::Raised ? " raised"
                                                                     : " sunken"));
    }

    void Describe(int icon) override {
        log.push_back(icon < 0 ? "describe nothing" : "describe " + std::to_string(icon));
    }

    void RunAction(int icon) override { log.push_back("run " + std::to_string(icon)); }

    const ToolbarState* state = nullptr;
    std::vector<std::string> log;
};

// Three icons of 32 by 32 on a toolbar of 200 by 40: at 10 and at 50, and one that overlaps the
// second by a corner.
class Toolbar {
  public:
    Toolbar() : state(view) {
        view.state = &state;
        for (const double left : {10, 50, 80}) {
            state.AddIcon({left, 4, 32, 32});
        }
        state.SetSize(200, 40);
    }

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

constexpr MouseButtons kLeft = {.left = true};
constexpr MouseButtons kRight = {.right = true};
constexpr MouseButtons kBoth = {.left = true, .right = true};

struct PlaceCase {
    const char* name;
    double x;
    double y;
    int hot;
};

class ToolbarPlace : public testing::TestWithParam<PlaceCase> {};

TEST_P(ToolbarPlace, IsOverItsIcon) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, GetParam().x, GetParam().y);
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
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove({}, 20, 20); }),
              (Strings{"paint", "0 raised", "describe 0"}));
    // Nothing is redrawn while it stays there.
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove({}, 22, 22); }), Strings());
}

TEST(ToolbarState, EnteringTheNextIconFlattensTheLast) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove({}, 60, 20); }),
              (Strings{"paint", "0 flat", "1 raised", "describe 1"}));
}

TEST(ToolbarState, BetweenTheIconsNothingIsHot) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove({}, 46, 20); }),
              (Strings{"0 flat", "describe nothing"}));
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
    toolbar.state.OnMouseMove(kLeft, 20, 20);
    EXPECT_EQ(
        toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeft, GetParam().x, GetParam().y); }),
        (Strings{"0 flat", "describe nothing", "let go"}));
}

INSTANTIATE_TEST_SUITE_P(Table, ToolbarOutside,
                         testing::Values(OutsideCase{"Left", -1, 20}, OutsideCase{"Above", 20, -1},
                                         OutsideCase{"Right", 201, 20},
                                         OutsideCase{"Below", 20, 41}),
                         CaseName());

class ToolbarBoundary : public testing::TestWithParam<OutsideCase> {};

TEST_P(ToolbarBoundary, BelongsToTheToolbar) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(kLeft, 20, 20);
    EXPECT_EQ(
        toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeft, GetParam().x, GetParam().y); }),
        (Strings{"hold", "0 flat", "describe nothing"}));
}

INSTANTIATE_TEST_SUITE_P(Table, ToolbarBoundary,
                         testing::Values(OutsideCase{"Left", 0, 20}, OutsideCase{"Top", 20, 0},
                                         OutsideCase{"Right", 200, 20},
                                         OutsideCase{"Bottom", 20, 40}),
                         CaseName());

TEST(ToolbarState, AMouseThatLeavesFlattens) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseLeave(); }),
              (Strings{"0 flat", "describe nothing", "let go"}));
}

TEST(ToolbarState, APressSinksAndAReleaseRuns) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseDown(MouseButton::Left); }),
              (Strings{"hold", "0 sunken"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeft, 21, 21); }),
              (Strings{"hold"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(MouseButton::Left, {}); }),
              (Strings{"let go", "0 flat", "run 0"}));
    EXPECT_EQ(toolbar.state.HotIcon(), -1);
}

TEST(ToolbarState, APressIsAbandonedByLeaving) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    toolbar.state.OnMouseDown(MouseButton::Left);
    toolbar.state.OnMouseMove(kLeft, 20, 50);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(MouseButton::Left, {}); }),
              (Strings{"let go"}));
}

TEST(ToolbarState, SlidingToAnotherIconRunsThatOnesAction) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    toolbar.state.OnMouseDown(MouseButton::Left);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove(kLeft, 60, 20); }),
              (Strings{"hold", "paint", "0 flat", "1 sunken", "describe 1"}));
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(MouseButton::Left, {}); }),
              (Strings{"let go", "1 flat", "run 1"}));
}

TEST(ToolbarState, AfterAReleaseTheIconUnderTheMouseRisesAgain) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    toolbar.state.OnMouseDown(MouseButton::Left);
    toolbar.state.OnMouseUp(MouseButton::Left, {});
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseMove({}, 20, 20); }),
              (Strings{"paint", "0 raised", "describe 0"}));
}

TEST(ToolbarState, OtherButtonsNeitherSinkNorRun) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
        EXPECT_EQ(toolbar.Log([&](ToolbarState& s) {
            s.OnMouseDown(button);
            s.OnMouseUp(button, {});
        }),
                  (Strings{"hold", "let go"}));
    }
    // With the right button held the edge is a raised one; with both, too.
    for (const MouseButtons down : {kRight, kBoth}) {
        EXPECT_EQ(toolbar.Log([&](ToolbarState& s) { s.OnMouseMove(down, 20, 20); }),
                  (Strings{"hold", "paint", "0 flat", "0 raised", "describe 0"}));
    }
}

TEST(ToolbarState, HoldsTheMouseUntilTheLastButtonIsUp) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove(kBoth, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(MouseButton::Right, kLeft); }),
              Strings());
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnMouseUp(MouseButton::Left, {}); }),
              (Strings{"let go", "0 flat", "run 0"}));
}

TEST(ToolbarState, WithoutAHotIconButtonsRunNothing) {
    Toolbar toolbar;
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) {
        s.OnMouseDown(MouseButton::Left);
        s.OnMouseUp(MouseButton::Left, {});
    }),
              (Strings{"hold", "let go"}));
}

TEST(ToolbarState, LosingTheMouseFlattens) {
    Toolbar toolbar;
    toolbar.state.OnMouseMove({}, 20, 20);
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnCaptureLost(); }),
              (Strings{"0 flat", "describe nothing"}));
    // What another control says in the meantime stays.
    EXPECT_EQ(toolbar.Log([](ToolbarState& s) { s.OnCaptureLost(); }), Strings());
}

TEST(ToolbarState, AWiderToolbarIsStillInsideBehindTheIcons) {
    Toolbar toolbar;
    const auto moveFarRight = [](ToolbarState& s) { s.OnMouseMove(kLeft, 5000, 20); };
    const Strings outside = toolbar.Log(moveFarRight);
    toolbar.state.SetSize(6000, 40);
    const Strings inside = toolbar.Log(moveFarRight);
    EXPECT_EQ(outside, (Strings{"describe nothing", "let go"}));
    EXPECT_EQ(inside, (Strings{"hold", "describe nothing"}));
}

TEST(EdgeRectangleOf, LiesOnTheBoundaryRoundedToEven) {
    EXPECT_EQ(EdgeRectangleOf({10, 4, 32, 32}), (EdgeRectangle{10, 4, 42, 36}));
    EXPECT_EQ(EdgeRectangleOf({10.5, 11.5, 32, 32}), (EdgeRectangle{10, 12, 42, 44}));
    EXPECT_EQ(EdgeRectangleOf({10.6, 11.4, 32.2, 32.2}), (EdgeRectangle{11, 11, 43, 44}));
}

}  // namespace
}  // namespace brelex
