// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/timer.h>

#include "lookup/lookup_box.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/list/entry_list_control.h"
#include "ui/controls/hover_hints.h"
#include "ui/controls/layout_units.h"

class wxClipboardTextEvent;
class wxCommandEvent;
class wxFocusEvent;
class wxKeyEvent;
class wxStaticText;
class wxString;
class wxTextCtrl;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

class ColumnHeader;

/// What the look-up panel needs from its window.
struct LookupPanelEvents {
    std::function<void()> onEntryChosen;  ///< opens the selected entry

    /// Shows the number of the selected entry.
    std::function<void(const wxString&)> onNumberChanged;

    /// Shows the menu of the selected entry at a place on the screen, or with wxDefaultPosition at
    /// the mouse.
    std::function<void(const wxPoint&)> onMenuWanted;
};

/// The look-up box with its instruction, and the list of entries under its header.
class LookupPanel final : private LookupView {
  public:
    /// Creates the controls on `surface`, which must be destroyed before this object. The entries
    /// in `values` are loaded. `values` and `units` must outlive this object.
    LookupPanel(wxWindow& surface, const LayoutUnits& units, const ProgramValues& values,
                LookupPanelEvents events);
    LookupPanel(const LookupPanel&) = delete;
    LookupPanel& operator=(const LookupPanel&) = delete;
    ~LookupPanel() override = default;

    /// The width in pixels of the instruction on a single line.
    [[nodiscard]] int InstructionWidth() const;

    /// Places the box under its instruction, which takes as many lines as it needs. Takes pixels of
    /// the surface and returns the lower edge.
    int PlaceBox(int left, int top, int width);

    /// Places the list with its header between `top` and `bottom`. Shows at least a few rows and no
    /// partial rows. Returns the lower edge.
    int PlaceList(int left, int top, int width, int bottom);

    void GiveBoxTheFocus();

    /// See LookupBox::GoToRecordNumber. Its questions and messages are modal.
    void GoToRecordNumber(RecordNumber nRecordNumber);

    /// See LookupBox::ShowChosen. The box gets the focus.
    void ShowChosen(const std::string& id);

    /// The selected row (0-based), -1 if there is none.
    [[nodiscard]] std::int32_t SelectedRow() const override;

    /// The behavior of the look-up. Its fields are the window's state.
    [[nodiscard]] LookupBox& Behavior() { return lookup_; }

    [[nodiscard]] EntryListControl& List() { return *lstAcronyms; }

    /// The hints of the controls.
    [[nodiscard]] std::vector<ControlHint> Hints() const;

  private:
    void BindBox();
    void BindList();
    void DrawColumnHeader();
    void DescribeEntry(const wxString& recordNumber);
    void SetMaxBoxLength(std::size_t length);

    void OnBoxText(wxCommandEvent& event);
    void OnBoxKeyDown(wxKeyEvent& event);
    void OnBoxFocus(wxFocusEvent& event);
    void OnBoxPaste(wxClipboardTextEvent& event);
    void ShowMenuAtMouse(std::int32_t row);
    void ShowMenuAtRow();
    void ShowMenuAt(const wxPoint& place);
    void OnMenuTimer(wxTimerEvent& event);

    /// Passes a pending change of the box's text on to the look-up.
    void FlushBoxChange();

    void SelectRow(std::int32_t row, Scrolling scrolling) override;
    void SendKeyToList(NavigationKey key) override;
    void SetBoxText(const std::string& text) override;
    void MoveCaretToEnd() override;
    void SetRecordNumberText(const std::string& text) override;
    std::string AskText(const std::string& title, const std::string& prompt,
                        const std::string& defaultText) override;

    wxTopLevelWindow& window_;
    const LayoutUnits& units_;
    const ProgramValues& values_;
    LookupPanelEvents events_;
    WxMessageSink messages_;
    LookupBox lookup_;
    std::size_t maxBoxLength_ = 0;
    bool boxChangePending_ = false;
    wxTimer menuTimer_;
    wxPoint menuPlace_;
    bool caretStays_ = false;  // the next time the box gets the focus, it selects nothing

    wxStaticText* lblInstruction;
    wxTextCtrl* txtAbbrv;
    wxWindow* lblColHeaderBack;
    ColumnHeader* picColHeader;
    EntryListControl* lstAcronyms;
};

}  // namespace brelex
