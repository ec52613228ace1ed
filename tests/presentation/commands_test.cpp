// SPDX-License-Identifier: MIT
#include "presentation/commands.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace brelex {
namespace {

TEST(Commands, StandInTheOrderOfTheirEnumeration) {
    for (std::size_t i = 0; i < kCommands.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(kCommands.at(i).command), i);
    }
}

// A menu as a user reads it: the captions, a tab and the shortcut, "-" for a separator.
std::vector<std::string> ItemsOf(CommandMenu menu) {
    std::vector<std::string> items;
    for (const CommandDetails& details : kCommands) {
        if (details.menu == menu) {
            if (details.startsGroup) {
                items.emplace_back("-");
            }
            const std::string shortcut = details.shortcut;
            items.push_back(details.caption + (shortcut.empty() ? "" : "\t" + shortcut));
        }
    }
    return items;
}

TEST(Commands, FillTheMenus) {
    using Items = std::vector<std::string>;
    EXPECT_EQ(ItemsOf(CommandMenu::File), (Items{"Database Info...", "Check Data Integrity...", "-",
                                                 "E&xit                Alt+F4"}));
    EXPECT_EQ(ItemsOf(CommandMenu::Search),
              (Items{"Search Database...\tF3", "Anagrammatic Search...", "-", "Go to Row...\tF5"}));
    EXPECT_EQ(ItemsOf(CommandMenu::Options), (Items{"Stay on Top", "-", "Run at Startup"}));
    EXPECT_EQ(ItemsOf(CommandMenu::Help),
              (Items{"Help Contents\tF1", "-", "ReadMe", "Smiley Dictionary", "-",
                     "Donate via PayPal...", "About..."}));
    EXPECT_EQ(ItemsOf(CommandMenu::ListboxRClick), (Items{"&View", "-", "&Copy"}));
}

TEST(Commands, OpenTheSevenSideWindowsByTheirNumbers) {
    const std::vector<Command> commands = {
        Command::Search, Command::Anagram,   Command::DatabaseInfo, Command::Smileys,
        Command::About,  Command::CheckData, Command::Donate};
    for (std::size_t number = 0; number < commands.size(); ++number) {
        const CommandDetails& details = DetailsOf(commands[number]);
        EXPECT_EQ(details.kind, CommandKind::Window) << details.caption;
        EXPECT_EQ(details.window, static_cast<int>(number)) << details.caption;
    }
    for (const CommandDetails& details : kCommands) {
        EXPECT_EQ(details.kind == CommandKind::Window, details.window != kNoWindow)
            << details.caption;
    }
}

}  // namespace
}  // namespace brelex
