// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace brelex {

/// The commands of the program. Menus, the toolbar, the icon in the notification area and
/// double-clicks all refer to one of these.
enum class Command {
    DatabaseInfo,
    CheckData,
    Exit,
    Search,
    Anagram,
    GoToRow,
    StayOnTop,
    RunAtStartup,
    Help,
    ReadMe,
    Smileys,
    Donate,
    About,
    ViewEntry,
    CopyEntry,
    MinimizeOrRestore
};

/// The menus that contain commands. Those of the menu bar come first, from left to right.
enum class CommandMenu {
    File,
    Search,
    Options,
    Help,
    ListboxRClick,  ///< the menu of a row of the list
    SysTray         ///< the icon's menu, which repeats some commands of the others
};

enum class CommandKind {
    Action,
    Window,    ///< opens a side window
    CheckMark  ///< turns something on and off
};

/// Means that a command opens no side window.
inline constexpr int kNoWindow = -1;

/// A command and its appearance in a menu.
struct CommandDetails {
    Command command{};
    CommandKind kind{};
    CommandMenu menu{};
    const char* caption = "";   ///< "&" marks the access key
    const char* shortcut = "";  ///< as the toolkit writes it
    int window = kNoWindow;     ///< the number of the side window for OpenModalForm
    bool startsGroup = false;   ///< a separator comes before it
};

/// All commands in the order of the enumeration, which is also their order in the menus. Alt+F4 is
/// the window's own close command; the caption of Exit only mentions it.
inline constexpr std::array<CommandDetails, 16> kCommands = {{
    {Command::DatabaseInfo, CommandKind::Window, CommandMenu::File, "Database Info...", "", 2},
    {Command::CheckData, CommandKind::Window, CommandMenu::File, "Check Data Integrity...", "", 5},
    {Command::Exit, CommandKind::Action, CommandMenu::File, "E&xit                Alt+F4", "",
     kNoWindow, true},
    {Command::Search, CommandKind::Window, CommandMenu::Search, "Search Database...", "F3", 0},
    {Command::Anagram, CommandKind::Window, CommandMenu::Search, "Anagrammatic Search...", "", 1},
    {Command::GoToRow, CommandKind::Action, CommandMenu::Search, "Go to Row...", "F5", kNoWindow,
     true},
    {Command::StayOnTop, CommandKind::CheckMark, CommandMenu::Options, "Stay on Top"},
    {Command::RunAtStartup, CommandKind::CheckMark, CommandMenu::Options, "Run at Startup", "",
     kNoWindow, true},
    {Command::Help, CommandKind::Action, CommandMenu::Help, "Help Contents", "F1"},
    {Command::ReadMe, CommandKind::Action, CommandMenu::Help, "ReadMe", "", kNoWindow, true},
    {Command::Smileys, CommandKind::Window, CommandMenu::Help, "Smiley Dictionary", "", 3},
    {Command::Donate, CommandKind::Window, CommandMenu::Help, "Donate via PayPal...", "", 6, true},
    {Command::About, CommandKind::Window, CommandMenu::Help, "About...", "", 4},
    {Command::ViewEntry, CommandKind::Action, CommandMenu::ListboxRClick, "&View"},
    {Command::CopyEntry, CommandKind::Action, CommandMenu::ListboxRClick, "&Copy", "", kNoWindow,
     true},
    {Command::MinimizeOrRestore, CommandKind::Action, CommandMenu::SysTray, "&Minimize Window"},
}};

[[nodiscard]] constexpr const CommandDetails& DetailsOf(Command command) {
    return kCommands[static_cast<std::size_t>(command)];
}

}  // namespace brelex
