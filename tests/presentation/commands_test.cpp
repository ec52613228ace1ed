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
    for (const CommandSpec& spec : kCommands) {
        if (spec.menu == menu) {
            if (spec.startsGroup) {
                items.emplace_back("-");
            }
            const std::string shortcut = spec.shortcut;
            items.push_back(spec.caption + (shortcut.empty() ? "" : "\t" + shortcut));
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
        const CommandSpec& spec = SpecOf(commands[number]);
        EXPECT_EQ(spec.kind, CommandKind::Window) << spec.caption;
        EXPECT_EQ(spec.window, static_cast<int>(number)) << spec.caption;
    }
    for (const CommandSpec& spec : kCommands) {
        EXPECT_EQ(spec.kind == CommandKind::Window, spec.window != kNoWindow) << spec.caption;
    }
}

}  // namespace
}  // namespace brelex
