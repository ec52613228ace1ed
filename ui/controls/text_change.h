// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include <wx/string.h>

namespace brelex {

/// Tells the changes of a text box from reports without one, such as toolkits give when all text is
/// selected or a letter no longer fits.
class TextChange {
  public:
    /// Whether `text`, the box's text now, differs from that of the call before (at first: empty).
    bool IsNew(const wxString& text) { return std::exchange(text_, text) != text; }

  private:
    wxString text_;
};

}  // namespace brelex
