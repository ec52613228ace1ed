// SPDX-License-Identifier: MIT
#include "tests/platform/accessible_tree.h"

#include <cstddef>

namespace brelex {

namespace {

constexpr std::size_t kLongText = 160;

// In one line, and not too long for one.
std::string Shown(const std::string& text, const char* lineBreak = "\\n") {
    std::string shown;
    for (const char character : text.substr(0, kLongText)) {
        if (character == '\n') {
            shown += lineBreak;
        } else if (character == '\t') {
            shown += "\\t";
        } else {
            shown += character;
        }
    }
    return text.size() <= kLongText ? '"' + shown + '"'
                                    : '"' + shown + "\"... of " + std::to_string(text.size());
}

std::string Joined(const std::vector<std::string>& words) {
    std::string joined;
    for (const std::string& word : words) {
        joined += (joined.empty() ? "" : ", ") + word;
    }
    return joined;
}

}  // namespace

// Where a label breaks its lines depends on the font.
std::string LineOf(const AccessibleObject& object) {
    std::string line = object.role + " " + Shown(object.name, " ");
    const auto add = [&line](const char* what, const std::string& text) {
        if (!text.empty()) {
            line += std::string(" ") + what + " " + Shown(text);
        }
    };
    add("described", object.description);
    add("value", object.value);
    add("text", object.text);
    if (!object.states.empty()) {
        line += " [" + Joined(object.states) + "]";
    }
    if (!object.actions.empty()) {
        line += " {" + Joined(object.actions) + "}";
    }
    return line;
}

std::string AccessibleTreeOf(wxTopLevelWindow& window) {
    std::string tree;
    for (const AccessibleObject& object : AccessibleObjectsOf(window)) {
        tree +=
            std::string(2 * static_cast<std::size_t>(object.depth), ' ') + LineOf(object) + '\n';
    }
    return tree;
}

}  // namespace brelex
