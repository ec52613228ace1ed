// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "presentation/commands.h"

namespace brelex {

/// What an icon of the toolbar does and says of itself.
struct ToolbarIcon {
    Command command{};
    const char* description = "";  ///< shown in the main window while the mouse is over it
    const char* toolTip = "";
    bool endsGroup = false;  ///< a separator stands behind it
};

/// The icons from left to right. That of the donation carries the description of its neighbour.
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

/// The place of an icon on the toolbar, in pixels from its upper left corner.
struct IconBounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The rectangle on whose lines the edge of an icon is drawn. It is the icon's own boundary, so
/// right and bottom are one behind its last pixels. Rounded to the nearest, halves to even.
struct EdgeRectangle {
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t right = 0;
    std::int16_t bottom = 0;

    bool operator==(const EdgeRectangle&) const = default;
};

/// The edge of an icon whose pixels are below 32768.
[[nodiscard]] EdgeRectangle EdgeRectangleOf(const IconBounds& icon);

/// How the edge of an icon is drawn.
enum class Edge {
    Flat,    ///< not at all
    Raised,  ///< the mouse is over the icon
    Sunken   ///< the left button is held on it
};

enum class MouseButton {
    Left,
    Right,
    Middle
};

/// The mouse buttons that are down.
struct MouseButtons {
    bool left = false;
    bool right = false;
    bool middle = false;

    [[nodiscard]] bool Any() const { return left || right || middle; }

    [[nodiscard]] bool LeftAlone() const { return left && !right && !middle; }

    bool operator==(const MouseButtons&) const = default;
};

/// What the toolbar shows and does. Icons are numbered from 0.
class ToolbarView {
  public:
    ToolbarView() = default;
    ToolbarView(const ToolbarView&) = delete;
    ToolbarView& operator=(const ToolbarView&) = delete;
    virtual ~ToolbarView() = default;

    /// Makes all movements of the mouse come to the toolbar, also those outside it. Called only
    /// while a button is held, and also if the mouse is held already. Without a button the mouse
    /// stays free: the toolkit says when it leaves, and Windows has no menu keys while a window
    /// holds it.
    virtual void HoldMouse() = 0;

    /// Ends that. Called also if the mouse is not held.
    virtual void LetMouseGo() = 0;

    /// Lets the window show what it has to before an icon changes. Must not lead to another
    /// call of the state.
    virtual void LetPendingPaintingRun() = 0;

    /// Draws an icon again, whose edge has changed.
    virtual void DrawIcon(int icon) = 0;

    /// The icon under the mouse, -1 if there is none.
    virtual void Describe(int icon) = 0;

    /// Does what the icon is there for. May call the state again or end the toolbar.
    virtual void RunAction(int icon) = 0;
};

/// The behavior of flat buttons. An icon rises under the mouse, sinks while the left button is held
/// on it, and acts when the button is released. Leaving the toolbar abandons the action; sliding to
/// another icon exchanges it.
class ToolbarState {
  public:
    /// A toolbar without icons. `view` must outlive the state.
    explicit ToolbarState(ToolbarView& view) : view_(view) {}

    /// Adds the icon with the next number. Where icons overlap, the mouse is over the later one.
    void AddIcon(const IconBounds& bounds) { icons_.push_back(bounds); }

    /// Gives the toolbar a size in pixels.
    void SetSize(double width, double height);

    /// The mouse is at a place, in pixels from the upper left corner, with these buttons down. The
    /// right and bottom boundaries of icons and toolbar belong to them, too.
    void OnMouseMove(MouseButtons down, double x, double y);

    /// The mouse has left the toolbar.
    void OnMouseLeave();

    /// A button goes down.
    void OnMouseDown(MouseButton button);

    /// A button goes up, and these are still down.
    void OnMouseUp(MouseButton button, MouseButtons stillDown);

    /// Another window has taken the mouse. The description of something else stays.
    void OnCaptureLost();

    [[nodiscard]] int IconCount() const { return static_cast<int>(icons_.size()); }

    [[nodiscard]] const IconBounds& BoundsOf(int icon) const;

    /// How the edge of an icon is to be drawn.
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
    MouseButtons shownButtons_;  // those that the hot icon was drawn for last
};

}  // namespace brelex
