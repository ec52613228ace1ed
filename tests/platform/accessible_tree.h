// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace brelex {

/// An object of a window as the system describes it to screen readers. Texts are UTF-8.
struct AccessibleObject {
    int depth = 0;  ///< 0 for the window
    std::string role;
    std::string name;
    std::string description;
    std::string value;                ///< such as the address of a link
    std::string text;                 ///< that can be read line by line
    std::vector<std::string> states;  ///< those that somebody hears of
    std::vector<std::string> actions;
};

/// The objects of a window that can be seen, in the order in which they are read, and the items of
/// its menus. Leaves out what only holds others. Of the
/// cells in a table and the parts of a page there are the first few.
[[nodiscard]] std::vector<AccessibleObject> AccessibleObjectsOf(wxTopLevelWindow& window);

/// The same as text: an object a line, indented under the one that holds it.
[[nodiscard]] std::string AccessibleTreeOf(wxTopLevelWindow& window);

/// Does the first action of an object of this role and name. Returns false if there is none.
bool DoAccessibleAction(wxTopLevelWindow& window, const std::string& role, const std::string& name);

/// The line of an object in the text of the tree, without its indentation.
[[nodiscard]] std::string LineOf(const AccessibleObject& object);

}  // namespace brelex
