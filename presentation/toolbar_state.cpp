// SPDX-License-Identifier: MIT
#include "presentation/toolbar_state.h"

#include <cassert>
#include <cmath>
#include <cstddef>
#include <utility>

namespace brelex {

namespace {

constexpr int kNone = -1;

std::int16_t Rounded(double number) {
    return static_cast<std::int16_t>(std::nearbyint(number));
}

}  // namespace

EdgeRectangle EdgeRectangleOf(const IconBounds& icon) {
    return {Rounded(icon.left), Rounded(icon.top), Rounded(icon.left + icon.width),
            Rounded(icon.top + icon.height)};
}

void ToolbarState::SetSize(double width, double height) {
    width_ = width;
    height_ = height;
}

void ToolbarState::OnMouseMove(MouseButtons down, double x, double y) {
    if (x < 0 || y < 0 || x > width_ || y > height_) {
        OnMouseLeave();
        return;
    }
    if (down.Any()) {
        view_.HoldMouse();
    }
    const int icon = IconAt(x, y);
    if (icon == kNone) {
        CoolDown();
        view_.Describe(kNone);
    } else if (icon != hotIcon_ || down != shownButtons_) {
        view_.LetPendingPaintingRun();
        CoolDown();
        HeatUp(icon, down.LeftAlone() ? Edge::Sunken : Edge::Raised);
        view_.Describe(icon);
        shownButtons_ = down;
    }
}

void ToolbarState::OnMouseLeave() {
    CoolDown();
    view_.Describe(kNone);
    view_.LetMouseGo();
}

void ToolbarState::OnMouseDown(MouseButton button) {
    view_.HoldMouse();
    if (button == MouseButton::Left && hotIcon_ != kNone) {
        shownButtons_ = {.left = true};
        HeatUp(hotIcon_, Edge::Sunken);
    }
}

void ToolbarState::OnMouseUp(MouseButton button, MouseButtons stillDown) {
    if (!stillDown.Any()) {
        view_.LetMouseGo();
    }
    if (button == MouseButton::Left && hotIcon_ != kNone) {
        const int icon = hotIcon_;
        shownButtons_ = {};
        CoolDown();
        view_.RunAction(icon);
    }
}

void ToolbarState::OnCaptureLost() {
    if (hotIcon_ != kNone) {
        CoolDown();
        view_.Describe(kNone);
    }
}

const IconBounds& ToolbarState::BoundsOf(int icon) const {
    assert(icon >= 0 && icon < IconCount());
    return icons_[static_cast<std::size_t>(icon)];
}

Edge ToolbarState::EdgeOf(int icon) const {
    assert(icon >= 0 && icon < IconCount());
    return icon == hotIcon_ ? hotEdge_ : Edge::Flat;
}

int ToolbarState::IconAt(double x, double y) const {
    int found = kNone;
    for (int i = 0; i < IconCount(); ++i) {
        const IconBounds& icon = BoundsOf(i);
        if (x >= icon.left && x <= icon.left + icon.width && y >= icon.top &&
            y <= icon.top + icon.height) {
            found = i;
        }
    }
    return found;
}

void ToolbarState::HeatUp(int icon, Edge edge) {
    hotIcon_ = icon;
    hotEdge_ = edge;
    view_.DrawIcon(icon);
}

void ToolbarState::CoolDown() {
    if (hotIcon_ != kNone) {
        view_.DrawIcon(std::exchange(hotIcon_, kNone));
    }
}

}  // namespace brelex
