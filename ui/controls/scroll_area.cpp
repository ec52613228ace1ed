// SPDX-License-Identifier: MIT
#include "ui/controls/scroll_area.h"

#include <algorithm>
#include <utility>

#include <wx/dcbuffer.h>
#include <wx/dcclient.h>
#include <wx/settings.h>

#include "platform/window/spoken_object.h"
#include "presentation/moving_text.h"
#include "ui/controls/colours.h"

namespace brelex {

namespace {

constexpr int kFirstTickMs = 500;
constexpr int kStepMs = 70;

// At 96 dots per inch.
constexpr int kStep = 1;
constexpr int kLeft = 10;

// The letters and digits, lowercase. A rule has none, and a title may have blanks between them.
wxString LettersOf(const wxString& line) {
    wxString letters;
    for (const wxUniChar character : line) {
        if (wxIsalnum(character)) {
            letters += wxTolower(character);
        }
    }
    return letters;
}

}  // namespace

ScrollArea::ScrollArea(wxWindow* parent, std::vector<ScrollLine> lines)
    : Backdrop(parent),
      tmrScrollText(this),
      lines_(std::move(lines)) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Measure();
    Bind(wxEVT_PAINT, &ScrollArea::OnPaint, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { OnTick(); });
    tmrScrollText.StartOnce(kFirstTickMs);
}

void ScrollArea::DescribeAs(const wxString& name) {
    wxString text;
    for (const ScrollLine& line : lines_) {
        const wxString letters = LettersOf(line.text);
        if (!letters.empty() && letters != LettersOf(name)) {
            text += (text.empty() ? "" : "\n") + line.text.Strip(wxString::both);
        }
    }
    SetSpokenObject(*this, {.role = SpokenRole::Text, .name = text, .description = name});
}

void ScrollArea::Measure() {
    wxClientDC dc(this);
    for (const ScrollLine& line : lines_) {
        dc.SetFont(line.font);
        linesHeight_ += dc.GetCharHeight();
        linesWidth_ = std::max(linesWidth_, dc.GetTextExtent(line.text).x + 2 * FromDIP(kLeft));
    }
}

void ScrollArea::OnTick() {
    if (!isScrolling_) {
        isScrolling_ = true;
        position_ = FirstScrollPosition(GetClientSize().y);
        tmrScrollText.Start(kStepMs);
    } else {
        position_ = NextScrollPosition(position_, FromDIP(kStep), linesHeight_, GetClientSize().y);
    }
    Refresh();
}

void ScrollArea::OnPaint(wxPaintEvent& /*event*/) {
    wxAutoBufferedPaintDC dc(this);
    Draw(dc);
}

void ScrollArea::Draw(wxDC& dc) const {
    dc.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    dc.Clear();
    if (!isScrolling_) {
        return;
    }
    int top = position_;
    for (const ScrollLine& line : lines_) {
        dc.SetFont(line.font);
        dc.SetTextForeground(
            line.colour.IsOk()
                ? WxColourOf(ReadableOn(RgbOf(wxSYS_COLOUR_WINDOW), RgbOf(line.colour)))
                : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
        dc.DrawText(line.text, FromDIP(kLeft), top);
        top += dc.GetCharHeight();
    }
}

}  // namespace brelex
