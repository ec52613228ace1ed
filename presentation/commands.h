// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace brelex {

/// What the user can have the program do. Menus, toolbar, the icon in the notification area and
/// double-clicks all name one of these.
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

/// The menus in which commands stand, those of the menu bar first and from left to right.
enum class CommandMenu {
    File,
    Search,
    Options,
    Help,
    ListboxRClick,  ///< of a row of the list
    SysTray         ///< of the icon, which repeats some others
};

enum class CommandKind {
    Action,
    Window,    ///< opens a side window
    CheckMark  ///< turns something on and off
};

/// The number of no window.
inline constexpr int kNoWindow = -1;

/// A command and how it is shown.
struct CommandSpec {
    Command command{};
    CommandKind kind{};
    CommandMenu menu{};
    const char* caption = "";   ///< "&" stands before the access key
    const char* shortcut = "";  ///< as the toolkit writes it
    int window = kNoWindow;     ///< the number by which OpenModalForm knows the side window
    bool startsGroup = false;   ///< a separator stands above it
};

/// All commands in the order of the enumeration, which is that of their menus. The window's own
/// close command is behind Alt+F4; the caption of Exit only tells of it.
inline constexpr std::array<CommandSpec, 16> kCommands = {{
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

[[nodiscard]] constexpr const CommandSpec& SpecOf(Command command) {
    return kCommands[static_cast<std::size_t>(command)];
}

}  // namespace brelex
