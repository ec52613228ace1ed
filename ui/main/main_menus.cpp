// SPDX-License-Identifier: MIT
#include "ui/main/main_menus.h"

namespace brelex {

namespace {

wxItemKind ItemKindOf(const CommandSpec& spec) {
    return spec.kind == CommandKind::CheckMark ? wxITEM_CHECK : wxITEM_NORMAL;
}

wxMenu* CreateMenu(CommandMenu which) {
    auto* menu = new wxMenu;
    for (const CommandSpec& spec : kCommands) {
        if (spec.menu != which) {
            continue;
        }
        if (spec.startsGroup) {
            menu->AppendSeparator();
        }
        wxString text(spec.caption);
        if (*spec.shortcut != '\0') {
            text << '\t' << spec.shortcut;
        }
        menu->Append(IdOf(spec.command), text, wxEmptyString, ItemKindOf(spec));
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
