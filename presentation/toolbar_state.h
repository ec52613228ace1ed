// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace brelex {

/// What an icon of the toolbar says of itself.
struct ToolbarIcon {
    const char* description;  ///< shown in the main window while the mouse is over it
    const char* toolTip;
};

/// The icons from left to right. That of the donation carries the description of its neighbour.
inline constexpr std::array<ToolbarIcon, 7> kToolbarIcons = {{
    {"Search Database", "Searches the database based on criteria"},
    {"Anagrammatic Search", "Searches the database anagrammatically for acronyms"},
    {"Smiley Dictionary", "Displays a dictionary of smileys"},
    {"Help Contents", "Opens the Help Contents window"},
    {"About", "Displays information about the program"},
    {"Exit", "Donate any amount you wish via PayPal"},
    {"Exit", "Quits the application"},
}};

// Their numbers.
inline constexpr int kSearchIcon = 0;
inline constexpr int kAnagramIcon = 1;
inline constexpr int kSmileyIcon = 2;
inline constexpr int kHelpIcon = 3;
inline constexpr int kAboutIcon = 4;
inline constexpr int kDonationIcon = 5;
inline constexpr int kExitIcon = 6;

/// The place of an icon on the toolbar, in pixels from its upper left corner.
struct IconBounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The rectangle on whose lines the edge of an icon is drawn: its own boundary, so that right and
/// bottom are one behind its last pixels. Rounded to the nearest, halves to even.
struct EdgeRectangle {
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t right = 0;
    std::int16_t bottom = 0;

    bool operator==(const EdgeRectangle&) const = default;
};

/// The edge of an icon whose pixels are below 32768.
[[nodiscard]] EdgeRectangle EdgeOf(const IconBounds& icon);

/// How an icon is drawn.
inline constexpr int kFlat = 0;    ///< without an edge
inline constexpr int kRaised = 1;  ///< the mouse is over it
inline constexpr int kSunken = 2;  ///< the left button is held on it

/// The mouse buttons that are down, as bits.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;

/// What the toolbar shows and does. Icons are numbered from 0.
class ToolbarView {
  public:
    ToolbarView() = default;
    ToolbarView(const ToolbarView&) = delete;
    ToolbarView& operator=(const ToolbarView&) = delete;
    virtual ~ToolbarView() = default;

    /// Has all movements of the mouse come to the toolbar, also those outside it, or no longer.
    virtual void SetCapture() = 0;
    virtual void ReleaseCapture() = 0;

    /// Lets the window show what it has to before an icon changes. Must not lead to another
    /// call of the state.
    virtual void LetPendingPaintingRun() = 0;

    /// Shows an icon in one of the states above.
    virtual void DrawIcon(int icon, int state) = 0;

    /// The icon under the mouse, -1 if there is none.
    virtual void Describe(int icon) = 0;

    /// Does what the icon is there for. May call the state again or end the toolbar.
    virtual void RunAction(int icon) = 0;
};

/// The behaviour of flat buttons: an icon rises under the mouse, sinks while the left button is
/// held on it, and acts when the button is released. An action can still be abandoned by leaving
/// the toolbar, or exchanged by sliding to another icon.
class ToolbarState {
  public:
    /// A toolbar of this size, in pixels, with icons on it. Where icons overlap, the later is
    /// meant. `view` must outlive the state.
    ToolbarState(std::vector<IconBounds> icons, double width, double height, ToolbarView& view);

    /// The mouse is at a place, in pixels from the upper left corner, with these buttons down
    /// (bits). The boundaries of icons and toolbar belong to them, right and bottom, too.
    void OnMouseMove(int buttons, double x, double y);

    /// A button (one bit) goes down or up.
    void OnMouseDown(int button);
    void OnMouseUp(int button);

    /// The mouse is somebody else's now. What is said of other things stays.
    void OnCaptureLost();

    /// The toolbar has another size, in pixels.
    void OnResize(double width, double height);

    /// The icon whose edge is drawn, -1 if there is none.
    [[nodiscard]] int HotIcon() const { return hotIcon_; }

  private:
    [[nodiscard]] int IconAt(double x, double y) const;
    void CoolDown();

    std::vector<IconBounds> icons_;
    double width_;
    double height_;
    ToolbarView& view_;
    int hotIcon_ = -1;
    int buttons_ = 0;  // remembered: what the last redrawing was for
};

}  // namespace brelex
