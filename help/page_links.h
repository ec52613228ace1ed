// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <wx/event.h>

#include "help/page_runs.h"

class wxHtmlWindow;

namespace brelex {

/// Lets the user go through the links of a page with Tab and Shift+Tab, and follow one with Enter,
/// which the toolkit's window does not offer. The current link has a frame. Beyond the last and the
/// first link, Tab leaves the page.
class PageLinks {
  public:
    explicit PageLinks(wxHtmlWindow& window);

    /// Handles a key for the page. Returns whether it was one for the links.
    [[nodiscard]] bool HandleKey(const wxKeyEvent& event);

  private:
    void KeepUp();
    [[nodiscard]] std::optional<std::size_t> Next(bool forward) const;
    void SetCurrent(std::optional<std::size_t> link);
    void ScrollTo(const PageRun& link);
    void OnPaint(wxPaintEvent& event);
    void DrawFrame();

    wxHtmlWindow& window_;
    PageLayout layout_;
    std::vector<PageRun> links_;
    std::optional<std::size_t> current_;  // an index into links_
    bool isPainting_ = false;
};

}  // namespace brelex
