// SPDX-License-Identifier: MIT
#include "tools/nearest_word.h"

#include <algorithm>
#include <cstddef>

namespace brelex {

namespace {

// How many characters have to be inserted, deleted or replaced to make one text of the other.
std::size_t ChangesBetween(std::string_view one, std::string_view other) {
    std::vector<std::size_t> changes = {0};
    while (changes.size() <= other.size()) {
        changes.push_back(changes.size());
    }
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = i;
        changes[0] = i + 1;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = changes[j + 1];
            changes[j + 1] = std::min({replaced, changes[j] + 1, changes[j + 1] + 1});
        }
    }
    return changes.back();
}

}  // namespace

std::string NearestWord(std::string_view word, const std::vector<std::string>& known) {
    std::string nearest;
    // Anything is near a word of two or three characters.
    std::size_t fewest = word.size() > 3 ? word.size() / 2 + 1 : 1;
    for (const std::string& candidate : known) {
        const bool begins = word.size() > 2 && candidate.starts_with(word);
        const std::size_t changes = begins ? 0 : ChangesBetween(word, candidate);
        if (changes < fewest) {
            fewest = changes;
            nearest = candidate;
        }
    }
    return nearest;
}

}  // namespace brelex
