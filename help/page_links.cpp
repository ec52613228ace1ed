// SPDX-License-Identifier: MIT
#include "help/page_links.h"

#include <algorithm>
#include <utility>

#include <wx/dcclient.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>

#include "platform/window/accessible_name.h"

namespace brelex {

PageLinks::PageLinks(wxHtmlWindow& window) : window_(window) {
    window.Bind(wxEVT_PAINT, &PageLinks::OnPaint, this);
    const auto repaint = [this](wxFocusEvent& event) {
        event.Skip();
        window_.Refresh();
    };
    window.Bind(wxEVT_SET_FOCUS, repaint);
    window.Bind(wxEVT_KILL_FOCUS, repaint);
}

bool PageLinks::HandleKey(const wxKeyEvent& event) {
    KeepUp();
    const int key = event.GetKeyCode();
    if (key == WXK_TAB && (event.GetModifiers() & ~wxMOD_SHIFT) == wxMOD_NONE) {
        SetCurrent(Next(!event.ShiftDown()));
        return current_.has_value();
    }
    const bool follows = (key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && !event.HasAnyModifiers();
    if (!follows || !current_) {
        return false;
    }
    window_.OnLinkClicked(wxHtmlLinkInfo(links_[*current_].target));
    return true;
}

// Another page begins without a current link. If only the lines break elsewhere, the link stays.
void PageLinks::KeepUp() {
    const PageLayout now = LayoutOf(window_);
    if (now == layout_) {
        return;
    }
    if (now.page != layout_.page || now.address != layout_.address) {
        current_.reset();
    }
    layout_ = now;
    links_ = RunsOf(window_);
    std::erase_if(links_,
                  [](const PageRun& run) { return run.target.empty() || run.lines.empty(); });
}

// The link after the current one, or before it; without a current one the first or the last.
std::optional<std::size_t> PageLinks::Next(bool forward) const {
    if (!current_) {
        return links_.empty() ? std::nullopt
                              : std::optional<std::size_t>(forward ? 0 : links_.size() - 1);
    }
    if (forward) {
        return *current_ + 1 < links_.size() ? std::optional(*current_ + 1) : std::nullopt;
    }
    return *current_ > 0 ? std::optional(*current_ - 1) : std::nullopt;
}

void PageLinks::SetCurrent(std::optional<std::size_t> link) {
    current_ = link;
    window_.Refresh();
    if (current_) {
        ScrollTo(links_[*current_]);
    }
    SetSpokenDescription(window_,
                         current_ ? "Link: " + links_[*current_].text.Strip(wxString::both) : "");
}

// Keeps some lines around the link in view.
void PageLinks::ScrollTo(const PageRun& link) {
    int unit = 0;
    window_.GetScrollPixelsPerUnit(nullptr, &unit);
    if (unit == 0) {
        return;
    }
    const wxRect place = link.Place();
    const int around = 2 * place.height;
    const int height = window_.GetClientSize().y;
    const int top = window_.CalcUnscrolledPosition({0, 0}).y;
    if (place.GetTop() - around < top) {
        window_.Scroll(-1, std::max(place.GetTop() - around, 0) / unit);
    } else if (place.GetBottom() + around > top + height) {
        window_.Scroll(-1, (place.GetBottom() + around - height + unit - 1) / unit);
    }
}

void PageLinks::OnPaint(wxPaintEvent& event) {
    if (std::exchange(isPainting_, true)) {
        event.Skip();  // to the toolkit's own code
        return;
    }
    window_.ProcessWindowEvent(event);
    isPainting_ = false;
    KeepUp();
    if (current_ && window_.HasFocus()) {
        DrawFrame();
    }
}

void PageLinks::DrawFrame() {
    wxPaintDC dc(&window_);
    constexpr int kFrame = 2;
    dc.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT)));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    for (const wxRect& line : links_[*current_].lines) {
        const wxRect place(window_.CalcScrolledPosition(line.GetPosition()), line.GetSize());
        for (int pixel = 0; pixel < window_.FromDIP(kFrame); ++pixel) {
            dc.DrawRectangle(wxRect(place).Inflate(window_.FromDIP(kFrame) - pixel));
        }
    }
}

}  // namespace brelex
