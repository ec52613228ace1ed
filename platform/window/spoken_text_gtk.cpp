// SPDX-License-Identifier: MIT
#include "platform/window/spoken_text_gtk.h"

#include <algorithm>

namespace brelex {

namespace {

TextOfObject textOfObject = nullptr;

// Characters, not bytes.
struct Range {
    int begin = 0;
    int end = 0;
};

class Characters {
  public:
    explicit Characters(AtkText* object)
        : text_(textOfObject(object)),
          length_(static_cast<int>(g_utf8_strlen(text_, -1))) {}

    [[nodiscard]] int Length() const { return length_; }

    [[nodiscard]] gunichar At(int offset) const {
        return offset < 0 || offset >= length_
                   ? 0
                   : g_utf8_get_char(g_utf8_offset_to_pointer(text_, offset));
    }

    [[nodiscard]] char* Copy(Range range) const {
        const int begin = std::clamp(range.begin, 0, length_);
        return g_utf8_substring(text_, begin, std::clamp(range.end, begin, length_));
    }

    // The character, word or line at an offset. A unit ends where the next one begins.
    [[nodiscard]] Range UnitAt(int offset, AtkTextGranularity unit) const {
        const int at = std::clamp(offset, 0, length_);
        if (unit == ATK_TEXT_GRANULARITY_CHAR) {
            return {at, std::min(at + 1, length_)};
        }
        Range range{at, at};
        while (range.begin > 0 && !BeginsUnit(range.begin, unit)) {
            --range.begin;
        }
        while (range.end < length_ && (range.end == at || !BeginsUnit(range.end, unit))) {
            ++range.end;
        }
        return range;
    }

  private:
    [[nodiscard]] bool BeginsUnit(int offset, AtkTextGranularity unit) const {
        const gunichar before = At(offset - 1);
        return unit == ATK_TEXT_GRANULARITY_WORD
                   ? g_unichar_isspace(before) != FALSE && g_unichar_isspace(At(offset)) == FALSE
                   : before == '\n';
    }

    const char* text_;
    int length_;
};

AtkTextGranularity UnitOf(AtkTextBoundary boundary) {
    switch (boundary) {
        case ATK_TEXT_BOUNDARY_CHAR:
            return ATK_TEXT_GRANULARITY_CHAR;
        case ATK_TEXT_BOUNDARY_WORD_START:
        case ATK_TEXT_BOUNDARY_WORD_END:
            return ATK_TEXT_GRANULARITY_WORD;
        default:
            return ATK_TEXT_GRANULARITY_LINE;
    }
}

char* Hand(const Characters& characters, Range range, int* begin, int* end) {
    *begin = range.begin;
    *end = range.end;
    return characters.Copy(range);
}

char* GetText(AtkText* object, int begin, int end) {
    const Characters characters(object);
    return characters.Copy({begin, end < 0 ? characters.Length() : end});
}

char* GetStringAt(AtkText* object, int offset, AtkTextGranularity unit, int* begin, int* end) {
    const Characters characters(object);
    return Hand(characters, characters.UnitAt(offset, unit), begin, end);
}

char* GetTextAt(AtkText* object, int offset, AtkTextBoundary boundary, int* begin, int* end) {
    return GetStringAt(object, offset, UnitOf(boundary), begin, end);
}

char* GetTextBefore(AtkText* object, int offset, AtkTextBoundary boundary, int* begin, int* end) {
    const Characters characters(object);
    const Range here = characters.UnitAt(offset, UnitOf(boundary));
    const Range before =
        here.begin == 0 ? Range{0, 0} : characters.UnitAt(here.begin - 1, UnitOf(boundary));
    return Hand(characters, before, begin, end);
}

char* GetTextAfter(AtkText* object, int offset, AtkTextBoundary boundary, int* begin, int* end) {
    const Characters characters(object);
    const Range here = characters.UnitAt(offset, UnitOf(boundary));
    const Range after = here.end == characters.Length()
                            ? Range{here.end, here.end}
                            : characters.UnitAt(here.end, UnitOf(boundary));
    return Hand(characters, after, begin, end);
}

int GetCaret(AtkText* /*object*/) {
    return 0;
}

gunichar GetCharacter(AtkText* object, int offset) {
    return Characters(object).At(offset);
}

int GetCount(AtkText* object) {
    return Characters(object).Length();
}

int GetNoSelections(AtkText* /*object*/) {
    return 0;
}

// How many lines end before an offset.
int LineOf(const Characters& characters, int offset) {
    int line = 0;
    for (int i = 0; i < std::min(offset, characters.Length()); ++i) {
        line += characters.At(i) == '\n' ? 1 : 0;
    }
    return line;
}

// A whole line, as if all lines of the text shared the height of the object.
void GetExtents(AtkText* object, int offset, int* x, int* y, int* width, int* height,
                AtkCoordType origin) {
    const Characters characters(object);
    atk_component_get_extents(ATK_COMPONENT(object), x, y, width, height, origin);
    const int lines = LineOf(characters, characters.Length()) + 1;
    *height /= lines;
    *y += *height * LineOf(characters, offset);
}

}  // namespace

void FillTextInterface(AtkTextIface& iface, TextOfObject textOf) {
    textOfObject = textOf;
    iface.get_text = &GetText;
    iface.get_string_at_offset = &GetStringAt;
    iface.get_text_at_offset = &GetTextAt;
    iface.get_text_before_offset = &GetTextBefore;
    iface.get_text_after_offset = &GetTextAfter;
    iface.get_caret_offset = &GetCaret;
    iface.get_character_at_offset = &GetCharacter;
    iface.get_character_count = &GetCount;
    iface.get_n_selections = &GetNoSelections;
    iface.get_character_extents = &GetExtents;
}

}  // namespace brelex
