// SPDX-License-Identifier: MIT
#include "presentation/toolbar_state.h"

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

EdgeRectangle EdgeOf(const IconBounds& icon) {
    return {Rounded(icon.left), Rounded(icon.top), Rounded(icon.left + icon.width),
            Rounded(icon.top + icon.height)};
}

ToolbarState::ToolbarState(std::vector<IconBounds> icons, double width, double height,
                           ToolbarView& view)
    : icons_(std::move(icons)),
      width_(width),
      height_(height),
      view_(view) {}

void ToolbarState::OnMouseMove(int buttons, double x, double y) {
    view_.SetCapture();
    if (x < 0 || y < 0 || x > width_ || y > height_) {
        CoolDown();
        view_.ReleaseCapture();
        return;
    }
    const int icon = IconAt(x, y);
    if (icon == kNone) {
        CoolDown();
        return;
    }
    if (buttons == buttons_ && icon == hotIcon_) {
        return;
    }
    view_.LetPendingPaintingRun();
    if (hotIcon_ != kNone) {
        view_.DrawIcon(hotIcon_, kFlat);
    }
    hotIcon_ = icon;
    view_.DrawIcon(icon, buttons == kLeftButton ? kSunken : kRaised);
    view_.Describe(icon);
    buttons_ = buttons;
}

void ToolbarState::OnMouseDown(int button) {
    if (button == kLeftButton && hotIcon_ != kNone) {
        buttons_ = kLeftButton;
        view_.DrawIcon(hotIcon_, kSunken);
    }
}

void ToolbarState::OnMouseUp(int button) {
    if (button == kLeftButton && hotIcon_ != kNone) {
        const int icon = std::exchange(hotIcon_, kNone);
        buttons_ = 0;
        view_.DrawIcon(icon, kFlat);
        view_.RunAction(icon);
    }
}

void ToolbarState::OnCaptureLost() {
    if (hotIcon_ != kNone) {
        CoolDown();
    }
}

void ToolbarState::OnResize(double width, double height) {
    width_ = width;
    height_ = height;
}

int ToolbarState::IconAt(double x, double y) const {
    int found = kNone;
    for (std::size_t i = 0; i < icons_.size(); ++i) {
        const IconBounds& icon = icons_[i];
        if (x >= icon.left && x <= icon.left + icon.width && y >= icon.top &&
            y <= icon.top + icon.height) {
            found = static_cast<int>(i);
        }
    }
    return found;
}

void ToolbarState::CoolDown() {
    if (hotIcon_ != kNone) {
        view_.DrawIcon(std::exchange(hotIcon_, kNone), kFlat);
    }
    view_.Describe(kNone);
}

}  // namespace brelex
