// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "presentation/commands.h"

namespace brelex {

/// An icon of the toolbar: its command and its texts.
struct ToolbarIcon {
    Command command{};
    const char* description = "";  ///< shown in the main window while the mouse is over it
    const char* toolTip = "";
    bool endsGroup = false;  ///< a separator follows it
};

/// The icons from left to right. The donation icon has the same description as its neighbor.
inline constexpr std::array<ToolbarIcon, 7> kToolbarIcons = {{
    {Command::Search, "Search Database", "Searches the database based on criteria"},
    {Command::Anagram, "Anagrammatic Search", "Searches the database anagrammatically for acronyms",
     true},
    {Command::Smileys, "Smiley Dictionary", "Displays a dictionary of smileys", true},
    {Command::Help, "Help Contents", "Opens the Help Contents window"},
    {Command::About, "About", "Displays information about the program", true},
    {Command::Donate, "Exit", "Donate any amount you wish via PayPal", true},
    {Command::Exit, "Exit", "Quits the application"},
}};

/// The place of an icon, in pixels from the upper left corner of the toolbar.
struct IconBounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The rectangle along whose lines the edge of an icon is drawn. It is the icon's own boundary, so
/// its right and bottom lines lie one pixel beyond the icon's last pixels. Rounded to the nearest
/// pixel, halves to even.
struct EdgeRectangle {
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t right = 0;
    std::int16_t bottom = 0;

    bool operator==(const EdgeRectangle&) const = default;
};

/// The edge of an icon. Requires all its pixels to be below 32768.
[[nodiscard]] EdgeRectangle EdgeRectangleOf(const IconBounds& icon);

/// How the edge of an icon is drawn.
enum class Edge {
    Flat,    ///< no edge is drawn
    Raised,  ///< the mouse is over the icon
    Sunken   ///< the left button is held down on it
};

enum class MouseButton {
    Left,
    Right,
    Middle
};

/// The mouse buttons that are currently down.
struct MouseButtons {
    bool left = false;
    bool right = false;
    bool middle = false;

    [[nodiscard]] bool Any() const { return left || right || middle; }

    [[nodiscard]] bool LeftAlone() const { return left && !right && !middle; }

    bool operator==(const MouseButtons&) const = default;
};

/// The toolbar as its state sees it. Icons are numbered from 0.
class ToolbarView {
  public:
    ToolbarView() = default;
    ToolbarView(const ToolbarView&) = delete;
    ToolbarView& operator=(const ToolbarView&) = delete;
    virtual ~ToolbarView() = default;

    /// Sends all mouse movements to the toolbar, including those outside it. Called only while a
    /// button is held, possibly when the mouse is already captured. Without a button, the mouse
    /// must stay free: the toolkit reports when it leaves, and menu keys do not work on Windows
    /// while a window captures it.
    virtual void HoldMouse() = 0;

    /// Releases the mouse again. May be called when the mouse is not captured.
    virtual void LetMouseGo() = 0;

    /// Lets the window finish its pending painting before an icon changes. Must not lead to another
    /// call of the state.
    virtual void LetPendingPaintingRun() = 0;

    /// Redraws an icon whose edge has changed.
    virtual void DrawIcon(int icon) = 0;

    /// Describes the icon under the mouse; -1 for none.
    virtual void Describe(int icon) = 0;

    /// Runs the icon's command. May call the state again or destroy the toolbar.
    virtual void RunAction(int icon) = 0;
};

/// The behavior of flat buttons. An icon rises under the mouse, sinks while the left button is held
/// down on it, and acts when the button is released. Leaving the toolbar cancels the action;
/// sliding to another icon moves the action to that icon.
class ToolbarState {
  public:
    /// Begins without icons. `view` must outlive the state.
    explicit ToolbarState(ToolbarView& view) : view_(view) {}

    /// Adds the next icon. Where icons overlap, the mouse counts as over the later one.
    void AddIcon(const IconBounds& bounds) { icons_.push_back(bounds); }

    /// Removes all icons, for example to add them at other places. None may be hot.
    void RemoveIcons() { icons_.clear(); }

    /// Sets the size of the toolbar in pixels.
    void SetSize(double width, double height);

    /// The mouse is at this place, in pixels from the upper left corner, with these buttons down.
    /// Icons and toolbar include their right and bottom boundaries.
    void OnMouseMove(MouseButtons down, double x, double y);

    /// The mouse has left the toolbar.
    void OnMouseLeave();

    /// A button was pressed.
    void OnMouseDown(MouseButton button);

    /// A button was released while these are still down.
    void OnMouseUp(MouseButton button, MouseButtons stillDown);

    /// Another window has captured the mouse. Flattens the hot icon and clears its description.
    /// Without a hot icon, the description belongs to something else and stays.
    void OnCaptureLost();

    [[nodiscard]] int IconCount() const { return static_cast<int>(icons_.size()); }

    [[nodiscard]] const IconBounds& BoundsOf(int icon) const;

    /// How to draw the edge of an icon.
    [[nodiscard]] Edge EdgeOf(int icon) const;

    /// The icon whose edge is not flat, -1 if there is none.
    [[nodiscard]] int HotIcon() const { return hotIcon_; }

  private:
    [[nodiscard]] int IconAt(double x, double y) const;
    void HeatUp(int icon, Edge edge);
    void CoolDown();

    ToolbarView& view_;
    std::vector<IconBounds> icons_;
    double width_ = 0;
    double height_ = 0;
    int hotIcon_ = -1;
    Edge hotEdge_ = Edge::Raised;
    MouseButtons shownButtons_;  // the buttons for which the hot icon was last drawn
};

}  // namespace brelex
