// SPDX-License-Identifier: MIT
#include "ui/main/main_menus.h"

#include <vector>

namespace brelex {

namespace {

struct ItemSpec {
    const char* caption;  // "-" is a separator
    wxItemKind kind = wxITEM_NORMAL;
};

wxMenu* CreateMenu(int firstId, const std::vector<ItemSpec>& items) {
    auto* menu = new wxMenu;
    int id = firstId;
    for (const ItemSpec& item : items) {
        if (wxString(item.caption) == "-") {
            menu->AppendSeparator();
        } else {
            menu->Append(id, item.caption, wxEmptyString, item.kind);
        }
        ++id;
    }
    return menu;
}

}  // namespace

std::unique_ptr<wxMenu> CreateListMenu() {
    return std::unique_ptr<wxMenu>(CreateMenu(kListboxRClickItem, {{"&View"}, {"-"}, {"&Copy"}}));
}

wxMenuBar* CreateMainMenus() {
    auto* bar = new wxMenuBar;
    bar->Append(CreateMenu(kFileItem, {{"Database Info..."},
                                       {"Check Data Integrity..."},
                                       {"-"},
                                       // The window's own close command is behind Alt+F4; the
                                       // caption only tells of it.
                                       {"E&xit                Alt+F4"}}),
                "&File");
    bar->Append(
        CreateMenu(
            kSearchItem,
            {{"Search Database...\tF3"}, {"Anagrammatic Search..."}, {"-"}, {"Go to Row...\tF5"}}),
        "&Search");
    bar->Append(
        CreateMenu(kOptionsItem,
                   {{"Stay on Top", wxITEM_CHECK}, {"-"}, {"Run at Startup", wxITEM_CHECK}}),
        "&Options");
    bar->Append(CreateMenu(kHelpItem, {{"Help Contents\tF1"},
                                       {"-"},
                                       {"ReadMe"},
                                       {"Smiley Dictionary"},
                                       {"-"},
                                       {"Donate via PayPal..."},
                                       {"About..."}}),
                "&Help");
    bar->Check(kOptionsItem + 2, true);  // every start registers the program
    return bar;
}

}  // namespace brelex
