// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <vector>

#include <wx/bmpbndl.h>

#include "presentation/toolbar_state.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/layout_units.h"

namespace brelex {

/// Reports events on the toolbar.
struct ToolbarEvents {
    std::function<void(int icon)> onHot;    ///< the mouse is over this icon (0-based); -1 for none
    std::function<void(Command)> onAction;  ///< the user chose the icon of this command
};

/// The toolbar `picToolbar`: flat icons in a row.
class Toolbar final : public Backdrop, private ToolbarView {
  public:
    Toolbar(wxWindow* parent, const LayoutUnits& units, ToolbarEvents events);
    Toolbar(const Toolbar&) = delete;
    Toolbar& operator=(const Toolbar&) = delete;
    ~Toolbar() override;

    /// Flattens the icon under the mouse and releases the mouse, because another window needs it.
    void LetGo();

    /// Places the icons again, after the layout units have changed.
    void Rescale();

    /// The place of an icon in the toolbar's pixels, and the state of its edge.
    [[nodiscard]] const IconBounds& BoundsOf(int icon) const { return state_.BoundsOf(icon); }

    [[nodiscard]] Edge EdgeOf(int icon) const { return state_.EdgeOf(icon); }

    /// Draws the pictures, the edge of the hot icon and the separators, but not the background.
    void Draw(wxDC& dc) const;

  private:
    void PlaceIcons();
    void DescribeIcons();
    [[nodiscard]] wxRect AreaOf(int icon) const;
    void BindEvents();
    void OnPaint(wxPaintEvent& event);
    void OnMove(wxMouseEvent& event);
    void OnButtonDown(wxMouseEvent& event);
    void OnButtonUp(wxMouseEvent& event);

    void HoldMouse() override;
    void LetMouseGo() override;
    void LetPendingPaintingRun() override;
    void DrawIcon(int icon) override;
    void Describe(int icon) override;
    void RunAction(int icon) override;

    const LayoutUnits& units_;
    ToolbarEvents events_;
    std::array<wxBitmapBundle, kToolbarIcons.size()> imgToolbarIcon;
    std::vector<int> separators_;  // the x position of each
    ToolbarState state_;
};

}  // namespace brelex
