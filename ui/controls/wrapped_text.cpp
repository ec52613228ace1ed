// SPDX-License-Identifier: MIT
#include "ui/controls/wrapped_text.h"

#include <algorithm>
#include <optional>

#include <wx/window.h>

namespace brelex {

namespace {

constexpr wchar_t kEllipsis = L'\u2026';

// Returns the largest number from 0 to `most` for which `holds` is true. It must be true for all
// smaller numbers, too.
template <typename Predicate>
std::size_t LargestThat(std::size_t most, const Predicate& holds) {
    std::size_t good = 0;
    std::size_t bad = most + 1;
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        (holds(middle) ? good : bad) = middle;
    }
    return good;
}

class Wrapper {
  public:
    Wrapper(const wxWindow& window, TextRoom room)
        : window_(window),
          room_(room),
          mostInLine_(static_cast<std::size_t>(std::max(room.width, 1))) {}

    // More characters than this never fit, because each takes at least one pixel.
    [[nodiscard]] std::size_t MostCharacters() const {
        return mostInLine_ * static_cast<std::size_t>(std::max(room_.lines, 1));
    }

    // Returns nothing if the text takes more lines than the room has.
    [[nodiscard]] std::optional<wxString> Wrapped(const wxString& text) const {
        wxString wrapped;
        std::size_t begin = 0;
        for (int line = 0; line < room_.lines; ++line) {
            const std::size_t end = begin + CharactersOfLine(text.substr(begin));
            wrapped += text.substr(begin, end - begin);
            if (end >= text.length()) {
                return wrapped;
            }
            wrapped += '\n';
            begin = end + (text[end] == ' ' ? 1 : 0);
        }
        return std::nullopt;
    }

  private:
    // How many characters of `text` go into the next line; at least one. `text` must not be empty.
    [[nodiscard]] std::size_t CharactersOfLine(const wxString& text) const {
        const std::size_t fitting =
            LargestThat(std::min(text.length(), mostInLine_), [&](std::size_t count) {
                return window_.GetTextExtent(text.substr(0, count)).x <= room_.width;
            });
        if (fitting == text.length()) {
            return fitting;
        }
        const std::size_t blank = text.rfind(' ', fitting);
        return blank != wxString::npos && blank > 0 ? blank : std::max<std::size_t>(fitting, 1);
    }

    const wxWindow& window_;
    TextRoom room_;
    std::size_t mostInLine_;
};

}  // namespace

wxString WrappedText(const wxWindow& window, wxString text, TextRoom room, std::size_t keptEnd) {
    const Wrapper wrapper(window, room);
    // A line break in the text would create a line that is not counted.
    std::replace_if(
        text.begin(), text.end(), [](wxUniChar c) { return c < ' '; }, ' ');
    if (text.length() <= wrapper.MostCharacters()) {
        if (const auto whole = wrapper.Wrapped(text)) {
            return *whole;
        }
    }
    for (const std::size_t kept : {keptEnd, std::size_t{0}}) {
        if (kept > std::min(text.length(), wrapper.MostCharacters())) {
            continue;
        }
        const auto shortened = [&](std::size_t count) {
            return wrapper.Wrapped(text.substr(0, count) + kEllipsis +
                                   text.substr(text.length() - kept));
        };
        if (kept == 0 || shortened(0)) {
            const std::size_t most = std::min(text.length() - kept, wrapper.MostCharacters());
            const std::size_t count =
                LargestThat(most, [&](std::size_t tried) { return shortened(tried).has_value(); });
            return shortened(count).value_or(wxString(kEllipsis));
        }
    }
    return kEllipsis;
}

}  // namespace brelex
