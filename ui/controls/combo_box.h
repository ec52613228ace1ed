// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class wxComboBox;

namespace brelex {

/// Limits how many characters the user can type into a combo box. Text that is already there, or is
/// picked from the list, may be longer and is never cut.
class ComboTextLimit {
  public:
    explicit ComboTextLimit(wxComboBox& combo);
    ComboTextLimit(const ComboTextLimit&) = delete;
    ComboTextLimit& operator=(const ComboTextLimit&) = delete;

    /// Sets the limit in characters; 0 for no limit.
    void Set(std::size_t length);

  private:
    void Apply();
    void RestorePickedText();

    wxComboBox& combo_;
    std::size_t limit_ = 0;
};

}  // namespace brelex
