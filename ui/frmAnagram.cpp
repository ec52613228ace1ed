// SPDX-License-Identifier: MIT
#include "ui/frmAnagram.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "platform/window/accessible_name.h"
#include "platform/window/drop_down_list.h"
#include "platform/window/plain_text.h"
#include "platform/window/prompt_button.h"
#include "platform/window/spoken_controls.h"
#include "platform/window/window_place.h"
#include "toolkit/pending_events.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/busy_animation.h"
#include "ui/controls/colours.h"
#include "ui/controls/column_header.h"
#include "ui/controls/modGeneral.h"
#include "ui/controls/surface.h"
#include "ui/controls/text_entry.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 560;
constexpr double kListHeight = 190;

constexpr int kAnimationIntervalMs = 135;

const char* const kOverview =
    "An anagram is a word or phrase derived by rearranging the letters of another word or phrase. "
    "Type a few letters and %s will search the database for matching acronyms/abbreviations after "
    "reshuffling the letters. This can be useful when you have forgotten the exact sequence of the "
    "letters of an acronym/abbreviation.";

}  // namespace

frmAnagram::frmAnagram(wxTopLevelWindow* main, ProgramValues& values,
                       std::function<void(std::int32_t)> goToRecord)
    : SideWindow(*main, "frmAnagram", "Anagrammatic Search"),
      session_(values, *this, messages_, std::move(goToRecord)) {
    CreateControls();
    BindEvents();
    textLimit_->Set(session_.LetterLimit());
    PlaceControls();
    picColHeader->SetSize(lblColHeaderBack->GetSize());
    OnEachShowing(*this, [this] { LetUserEnlarge(); });
}

// Destroys the controls first, because they still send events while they are destroyed.
frmAnagram::~frmAnagram() {
    DestroyChildren();
}

// In the order in which the TAB key visits them and a screen reader reads them.
void frmAnagram::CreateControls() {
    lblOverview =
        Named(new wxStaticText(surface_, wxID_ANY, wxString::Format(kOverview, kAppTitle)),
              "lblOverview");
    lblPrompt = Named(new wxStaticText(surface_, wxID_ANY, WxText(session_.Prompt())), "lblPrompt");
    cboLetters = Named(new wxComboBox(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                      wxDefaultSize, 0, nullptr, wxCB_DROPDOWN),
                       "cboLetters", "Letters");
    textLimit_.emplace(*cboLetters);
    ShowItemsAsList(*cboLetters);
    cmdSearch = Named(new wxButton(surface_, wxID_ANY, "&Search"), "cmdSearch");
    cmdCancel = Named(new wxButton(surface_, wxID_ANY, "Cancel"), "cmdCancel");
    lblWordLen = Named(NewFact("99", wxALIGN_RIGHT), "lblWordLen");
    lblLetters_ = NewPlainText(surface_, "letter(s)");
    lblRearrangements_ = NewPlainText(surface_, "Number of possible rearrangements:");
    // The numbers have these in their names.
    LeaveUnspoken(*lblLetters_);
    LeaveUnspoken(*lblRearrangements_);
    lblPossiblePerms = Named(NewFact("999,999,999,999,999,999,999,999"), "lblPossiblePerms");
    lblPercentDone = Named(NewFact("Done 100%  Found 999", wxALIGN_RIGHT), "lblPercentDone");
    SpeakOnlyName(*lblPercentDone, wxEmptyString);
    picAnim = new BusyAnimation(surface_, AnagramFilmStrip(), kAnimationIntervalMs);
    StopWithWindow(picAnim->tmrAnimation);
    lblColHeaderBack = Named(new Backdrop(surface_), "lblColHeaderBack");
    surface_->FrameChild(*lblColHeaderBack, units_.Pixels(kColumnHeaderFrameAbove));
    picColHeader = new ColumnHeader(lblColHeaderBack, units_);
    lstAnagrams = &CreateEntryListControl(*surface_, units_.Pixels(kExpansionTextAt));
    Named(&lstAnagrams->Window(), "lstAnagrams", "Entries found");
    lstAnagrams->SetRows(session_.Rows());
    cmdSearch->SetDefault();
    ActAtOnceOnKeys(*cmdSearch);
    SetEscapeId(cmdCancel->GetId());
    heldEnter_.emplace(*this);
}

wxStaticText* frmAnagram::NewFact(const char* widest, long alignment) const {
    auto* fact = NewPlainText(surface_, wxEmptyString, wxST_NO_AUTORESIZE | alignment);
    fact->SetMinSize({GetTextExtent(widest).x, -1});
    return fact;
}

// The prompt, the letters and the facts about them, with the buttons beside them.
wxSizer* frmAnagram::LayoutOfLetters() {
    const int gap = units_.Pixels(kControlGap);
    auto* counts = new wxBoxSizer(wxHORIZONTAL);
    counts->Add(lblWordLen, 0, wxRIGHT, gap / 2);
    counts->Add(lblLetters_, 0, wxRIGHT, 2 * gap);
    counts->Add(lblRearrangements_, 0, wxRIGHT, gap / 2);
    counts->Add(lblPossiblePerms, 1);

    auto* letters = new wxBoxSizer(wxVERTICAL);
    letters->Add(lblPrompt, 0, wxBOTTOM, gap / 2);
    letters->Add(cboLetters, 0, wxEXPAND | wxBOTTOM, gap);
    letters->Add(counts, 0, wxEXPAND);

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    buttons->Add(cmdSearch, 0, wxEXPAND | wxBOTTOM, gap);
    buttons->Add(cmdCancel, 0, wxEXPAND);

    auto* all = new wxBoxSizer(wxHORIZONTAL);
    all->Add(letters, 1, wxRIGHT, units_.Pixels(kGroupGap));
    all->Add(buttons);
    return all;
}

void frmAnagram::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int margin = px(kWindowMargin);
    const int gap = px(kGroupGap);
    wxSizer* const letters = LayoutOfLetters();
    const int width = std::max(px(kInnerWidth), letters->GetMinSize().x + 2 * margin);
    lblOverview->Wrap(width - 3 * margin);  // lines may come out a little wider than measured
    auto* progress = new wxBoxSizer(wxHORIZONTAL);
    progress->Add(picAnim, 0, wxRIGHT | wxRESERVE_SPACE_EVEN_IF_HIDDEN, gap);
    progress->AddStretchSpacer();
    progress->Add(lblPercentDone, 0, wxALIGN_BOTTOM);

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(lblOverview, 0, wxEXPAND | wxALL, margin);
    all->Add(letters, 0, wxEXPAND | wxLEFT | wxRIGHT, margin);
    all->Add(progress, 0, wxEXPAND | wxLEFT | wxRIGHT, margin);
    all->AddSpacer(gap);
    lblColHeaderBack->SetMinSize({-1, px(kColumnHeaderHeight)});
    all->Add(lblColHeaderBack, 0, wxEXPAND | wxLEFT | wxRIGHT, margin);
    wxWindow& list = lstAnagrams->Window();
    // The list ends with a full row.
    list.SetMinSize({-1, lstAnagrams->HeightOfRows(lstAnagrams->RowsIn(px(kListHeight)))});
    all->Add(&list, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, margin);
    FillWindow(all, width);
}

void frmAnagram::BindEvents() {
    LeadAccessKeysTo(*this, {{lblPrompt, cboLetters}});
    Bind(wxEVT_CLOSE_WINDOW, &frmAnagram::OnClose, this);
    TypeInCapitals(*cboLetters, *cboLetters);
    SelectAllOnCtrlA(*cboLetters, *cboLetters);
    for (const wxEventTypeTag<wxCommandEvent>& type : {wxEVT_TEXT, wxEVT_COMBOBOX}) {
        cboLetters->Bind(type, [this](wxCommandEvent& event) {
            session_.OnLettersChanged(TypedLetters());
            event.Skip();
        });
    }
    cmdSearch->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.RunSearch(TypedLetters()); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.DismissAnagramWindow(); });
    lstAnagrams->onEnter = [this] { session_.ChooseRow(lstAnagrams->SelectedRow()); };
    lblColHeaderBack->Bind(wxEVT_SIZE,
                           [this](wxSizeEvent& event) { picColHeader->SetSize(event.GetSize()); });
    picColHeader->Bind(wxEVT_LEFT_DOWN,
                       [this](wxMouseEvent&) { lstAnagrams->Window().SetFocus(); });
}

void frmAnagram::ShowAnagramWindow() {
    session_.Open();
    ShowModal();
    EndEnlarging();
}

// Closing by the user hides the window. When the program ends, the session is abandoned, and the
// main window destroys this one.
void frmAnagram::OnClose(wxCloseEvent& event) {
    if (event.CanVeto()) {
        event.Veto();
        session_.DismissAnagramWindow();
    } else {
        session_.Abandon();
        HideWindow();
    }
}

std::string frmAnagram::TypedLetters() const {
    return Utf8Text(cboLetters->GetValue());
}

void frmAnagram::ShowDisplay(const AnagramDisplay& display) {
    const auto last = std::exchange(shown_, display);
    const auto isNew = [&](auto part) { return !last || (*last).*part != display.*part; };
    if (isNew(&AnagramDisplay::isBusy)) {
        ShowBusy(display.isBusy);
    }
    cmdSearch->Enable(display.canSearch);
    ShowFact(*lblWordLen, WxText(display.letterCount), "letter(s)");
    ShowFact(*lblPossiblePerms, WxText(display.rearrangements), "possible rearrangements");
    if (isNew(&AnagramDisplay::letterCount) || isNew(&AnagramDisplay::rearrangements)) {
        SetSpokenDescription(*cboLetters, lblWordLen->GetLabelText() + " letter(s), " +
                                              lblPossiblePerms->GetLabelText() +
                                              " possible rearrangements");
    }
    lblPercentDone->SetLabelText(WxText(display.percentDone));
    if (isNew(&AnagramDisplay::percentDone) && !display.isBusy) {
        SetSpokenDescription(lstAnagrams->Window(), WxText(display.percentDone));
        Announce(*lblPercentDone);
    }
    if (display.isBusy) {
        lblPercentDone->Update();
    } else {
        SpeakOnlyName(*lblPercentDone, WxText(display.percentDone));
    }
    if (isNew(&AnagramDisplay::listIsWarning)) {
        lstAnagrams->SetTextColour(display.listIsWarning
                                       ? RedOn(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX))
                                       : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    }
    if (isNew(&AnagramDisplay::listTip)) {
        lstAnagrams->Window().SetToolTip(WxText(display.listTip));
    }
}

// A screen reader says the unit with the number, and says both when they change.
void frmAnagram::ShowFact(wxStaticText& label, const wxString& number, const char* unit) {
    if (label.GetLabelText() != number) {
        label.SetLabelText(number);
        SetSpokenName(label, number + " " + unit);
        Announce(label);
    }
}

void frmAnagram::ShowBusy(bool busy) {
    if (busy) {
        heldEnter_->SearchBegins();
    } else {
        heldEnter_->SearchEnds();
    }
    for (wxWindow* control :
         std::initializer_list<wxWindow*>{cboLetters, cmdCancel, &lstAnagrams->Window()}) {
        control->Enable(!busy);
    }
    picAnim->Run(busy);
}

void frmAnagram::ShowRows() {
    lstAnagrams->SetRows(session_.Rows());
}

void frmAnagram::MoveFocus(AnagramFocus focus) {
    if (focus == AnagramFocus::FirstHit) {
        lstAnagrams->SelectRow(0);
        lstAnagrams->Window().SetFocus();
        return;
    }
    if (focus == AnagramFocus::AllLetters) {
        SelectAllText(*cboLetters);
    }
    cboLetters->SetFocus();
}

void frmAnagram::AddToHistory() {
    AddToComboHistory(*cboLetters);
}

void frmAnagram::LetEventsRun() {
    LetPendingEventsRun();
}

void frmAnagram::EmptyLetters() {
    cboLetters->SetValue(wxEmptyString);
    cboLetters->SetFocus();
}

void frmAnagram::HideWindow() {
    if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

}  // namespace brelex
