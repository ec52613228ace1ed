// SPDX-License-Identifier: MIT
#include "ui/main/main_menus.h"

#include "platform/window/accessible_name.h"

namespace brelex {

namespace {

wxItemKind ItemKindOf(const CommandDetails& details) {
    return details.kind == CommandKind::CheckMark ? wxITEM_CHECK : wxITEM_NORMAL;
}

// Puts one blank for each row of blanks.
wxString SingleSpaced(wxString text) {
    while (text.Replace("  ", " ") != 0) {
    }
    return text;
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
        wxMenuItem* const item =
            menu->Append(IdOf(details.command), text, wxEmptyString, ItemKindOf(details));
        if (text.Contains("  ")) {  // which a screen reader would say or show as they are
            SetSpokenName(*item, SingleSpaced(item->GetItemLabelText()));
        }
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
