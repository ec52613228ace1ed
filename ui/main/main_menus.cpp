// SPDX-License-Identifier: MIT
#include "ui/main/main_menus.h"

namespace brelex {

namespace {

wxItemKind ItemKindOf(const CommandDetails& details) {
    return details.kind == CommandKind::CheckMark ? wxITEM_CHECK : wxITEM_NORMAL;
}

wxMenu* CreateMenu(CommandMenu which) {
    auto* menu = new wxMenu;
    for (const CommandDetails& details : kCommands) {
        if (details.menu != which) {
            continue;
        }
        if (details.startsGroup) {
            menu->AppendSeparator();
        }
        wxString text(details.caption);
        if (*details.shortcut != '\0') {
            text << '\t' << details.shortcut;
        }
        menu->Append(IdOf(details.command), text, wxEmptyString, ItemKindOf(details));
    }
    return menu;
}

}  // namespace

std::unique_ptr<wxMenu> CreateListMenu() {
    return std::unique_ptr<wxMenu>(CreateMenu(CommandMenu::ListboxRClick));
}

wxMenuBar* CreateMainMenus() {
    auto* bar = new wxMenuBar;
    bar->Append(CreateMenu(CommandMenu::File), "&File");
    bar->Append(CreateMenu(CommandMenu::Search), "&Search");
    bar->Append(CreateMenu(CommandMenu::Options), "&Options");
    bar->Append(CreateMenu(CommandMenu::Help), "&Help");
    return bar;
}

}  // namespace brelex
