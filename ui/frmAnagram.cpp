// SPDX-License-Identifier: MIT
#include "ui/frmAnagram.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "base/scope.h"
#include "base/windows1252.h"
#include "platform/window/accessible_name.h"
#include "platform/window/prompt_button.h"
#include "search/anagram.h"
#include "toolkit/app_icon.h"
#include "toolkit/pending_events.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/busy_animation.h"
#include "ui/controls/column_header.h"
#include "ui/controls/surface.h"
#include "ui/controls/text_entry.h"
#include "ui/modGeneral.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 560;
constexpr double kListHeight = 190;
constexpr double kMargin = 8;

constexpr int kAnimationIntervalMs = 135;
constexpr std::size_t kFewestLetters = 2;

const char* const kOverview =
    "An anagram is a word or phrase derived by rearranging the letters of another word or phrase. "
    "Type a few letters and %s will search the database for matching acronyms/abbreviations after "
    "reshuffling the letters. This can be useful when you have forgotten the exact sequence of the "
    "letters of an acronym/abbreviation.";

}  // namespace

// Shows hits and progress and lets events run meanwhile.
class frmAnagram::Watcher final : public AnagramWatcher {
  public:
    explicit Watcher(frmAnagram& window) : window_(window) {}

    void OnHit(std::int32_t row) override { window_.AddHit(row); }

    [[nodiscard]] bool OnProgress(int percent) override {
        window_.ShowNewHits();
        window_.ShowPercentDone(percent);
        LetPendingEventsRun();
        return window_.IsShown();
    }

  private:
    frmAnagram& window_;
};

frmAnagram::frmAnagram(wxTopLevelWindow* main, ProgramValues& values,
                       std::function<void(std::int32_t)> goToRecord)
    : wxDialog(main, wxID_ANY, "Anagrammatic Search"),
      main_(*main),
      values_(values),
      goToRecord_(std::move(goToRecord)),
      messages_(this),
      units_(*this) {
    SetName("frmAnagram");
    SetIcons(AppIcons());
    CreateControls();
    NameControls();
    BindEvents();
    textLimit_->Set(static_cast<std::size_t>(std::max(values_.Header.MaxAbbrvLength, 0)));
    ShowLetters();
    PlaceControls();
    DrawColumnHeader();
    KeepCentered(*this, main_);
}

// The controls go first: as they go they still report what happens to them.
frmAnagram::~frmAnagram() {
    DestroyChildren();
}

// In the order in which the TAB key visits them.
void frmAnagram::CreateControls() {
    surface_ = new Surface(this);
    lblOverview = new wxStaticText(surface_, wxID_ANY, wxString::Format(kOverview, kAppTitle));
    lblPrompt = new wxStaticText(surface_, wxID_ANY,
                                 wxString::Format("&Type the letters (minimum 2 - maximum %d):",
                                                  values_.Header.MaxAbbrvLength));
    cboLetters = new wxComboBox(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                0, nullptr, wxCB_DROPDOWN);
    textLimit_.emplace(*cboLetters);
    cmdSearch = new wxButton(surface_, wxID_ANY, "&Search");
    cmdCancel = new wxButton(surface_, wxID_ANY, "Cancel");
    for (wxStaticText** label : {&lblWordLen, &lblPossiblePerms, &lblPercentDone}) {
        *label =
            new wxStaticText(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                             wxST_NO_AUTORESIZE | (label == &lblPercentDone ? wxALIGN_RIGHT : 0));
    }
    picAnim = new BusyAnimation(surface_, AnagramFilmStrip(), kAnimationIntervalMs);
    lblColHeaderBack = new Backdrop(surface_);
    picColHeader = new ColumnHeader(lblColHeaderBack, units_);
    lstAnagrams = &CreateAcronymList(*surface_, units_.Pixels(kExpansionTextAt));
    lstAnagrams->SetRows(rows_);
    cmdSearch->SetDefault();
    ActAtOnceOnKeys(*cmdSearch);
    SetEscapeId(cmdCancel->GetId());
    heldEnter_.emplace(*this);
}

void frmAnagram::NameControls() {
    lblOverview->SetName("lblOverview");
    lblPrompt->SetName("lblPrompt");
    SetNames(*cboLetters, "cboLetters", "Letters");
    lblWordLen->SetName("lblWordLen");
    lblPossiblePerms->SetName("lblPossiblePerms");
    cmdSearch->SetName("cmdSearch");
    cmdCancel->SetName("cmdCancel");
    lblPercentDone->SetName("lblPercentDone");
    lblColHeaderBack->SetName("lblColHeaderBack");
    SetNames(lstAnagrams->Window(), "lstAnagrams", "Entries found");
}

// The prompt, the letters and what is to be known of them, with the buttons beside them.
wxSizer* frmAnagram::LayoutOfLetters() {
    const int gap = units_.Pixels(kMargin);
    const auto widthOf = [this](const char* text) { return GetTextExtent(text).x; };
    lblWordLen->SetMinSize({widthOf("999"), -1});
    lblPossiblePerms->SetMinSize({widthOf("999,999,999,999,999,999,999,999"), -1});
    lblPercentDone->SetMinSize({widthOf("Done 100%  Found 999"), -1});

    auto* counts = new wxBoxSizer(wxHORIZONTAL);
    counts->Add(lblWordLen, 0, wxRIGHT, gap / 2);
    counts->Add(new wxStaticText(surface_, wxID_ANY, "letter(s)"), 0, wxRIGHT, 2 * gap);
    counts->Add(new wxStaticText(surface_, wxID_ANY, "Number of possible rearrangements:"), 0,
                wxRIGHT, gap / 2);
    counts->Add(lblPossiblePerms, 1);

    auto* letters = new wxBoxSizer(wxVERTICAL);
    letters->Add(lblPrompt, 0, wxBOTTOM, gap / 2);
    letters->Add(cboLetters, 0, wxEXPAND | wxBOTTOM, gap);
    letters->Add(counts, 0, wxEXPAND);

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    buttons->Add(cmdSearch, 0, wxEXPAND | wxBOTTOM, gap);
    buttons->Add(cmdCancel, 0, wxEXPAND);

    auto* all = new wxBoxSizer(wxHORIZONTAL);
    all->Add(letters, 1, wxRIGHT, gap);
    all->Add(buttons);
    return all;
}

void frmAnagram::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int gap = px(kMargin);
    wxSizer* const letters = LayoutOfLetters();
    const int width = std::max(px(kInnerWidth), letters->GetMinSize().x + 2 * gap);
    lblOverview->Wrap(width -
                      3 * gap);  // measured text is a little wider when drawn (seen with Wine)
    auto* progress = new wxBoxSizer(wxHORIZONTAL);
    progress->Add(picAnim, 0, wxRIGHT | wxRESERVE_SPACE_EVEN_IF_HIDDEN, gap);
    progress->AddStretchSpacer();
    progress->Add(lblPercentDone, 0, wxALIGN_BOTTOM);

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(lblOverview, 0, wxEXPAND | wxALL, gap);
    all->Add(letters, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    all->Add(progress, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    all->AddSpacer(gap);
    lblColHeaderBack->SetMinSize({-1, px(kColumnHeaderHeight)});
    all->Add(lblColHeaderBack, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    wxWindow& list = lstAnagrams->Window();
    // The list ends between two rows.
    list.SetMinSize({-1, lstAnagrams->HeightOfRows(lstAnagrams->RowsIn(px(kListHeight)))});
    all->Add(&list, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    FillWindow(*surface_, all, width);
}

void frmAnagram::BindEvents() {
    LeadAccessKeysTo(*this, {{lblPrompt, cboLetters}});
    surface_->Bind(wxEVT_PAINT, &frmAnagram::OnPaint, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmAnagram::OnClose, this);
    TypeInCapitals(*cboLetters, *cboLetters);
    SelectAllOnCtrlA(*cboLetters, *cboLetters);
    for (const wxEventTypeTag<wxCommandEvent>& type : {wxEVT_TEXT, wxEVT_COMBOBOX}) {
        cboLetters->Bind(type, [this](wxCommandEvent& event) {
            OnLettersChanged();
            event.Skip();
        });
    }
    cmdSearch->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { RunSearch(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { DismissAnagramWindow(); });
    lstAnagrams->onEnter = [this] { GoToSelectedRecord(); };
    picColHeader->Bind(wxEVT_LEFT_DOWN,
                       [this](wxMouseEvent&) { lstAnagrams->Window().SetFocus(); });
}

void frmAnagram::DrawColumnHeader() {
    picColHeader->SetSize(lblColHeaderBack->GetSize());
}

void frmAnagram::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(surface_);
    DrawFrameRound(dc, lblColHeaderBack->GetRect(), units_.Pixels(kColumnHeaderFrameAbove));
}

void frmAnagram::ShowAnagramWindow() {
    CenterWindow(*this, main_);
    cboLetters->SetFocus();
    ShowModal();
}

void frmAnagram::ShowBusyAnimation(bool on) {
    picAnim->Run(on);
}

void frmAnagram::HideWindow() {
    if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

void frmAnagram::DismissAnagramWindow() {
    cboLetters->SetValue(wxEmptyString);
    cboLetters->SetFocus();
    HideWindow();
}

// The user's closing hides the window, but for a search, which cannot be stopped. The end of the
// program lets go of the window, which goes with the main window.
void frmAnagram::OnClose(wxCloseEvent& event) {
    if (!event.CanVeto()) {
        if (IsModal()) {
            EndModal(wxID_CANCEL);
        }
        return;
    }
    event.Veto();
    if (!isSearching_) {
        DismissAnagramWindow();
    }
}

std::u32string frmAnagram::TypedLetters() const {
    return DecodeUtf8(Utf8Text(cboLetters->GetValue()));
}

void frmAnagram::OnLettersChanged() {
    if (textChange_.IsNew(cboLetters->GetValue())) {
        ShowLetters();
    }
}

void frmAnagram::ShowLetters() {
    const std::u32string letters = TypedLetters();
    lblWordLen->SetLabelText(std::to_string(letters.size()));
    cmdSearch->Enable(letters.size() >= kFewestLetters);
    lblPossiblePerms->SetLabelText(WxText(RearrangementsText(letters, values_.groupSeparator)));
    lblPercentDone->SetLabelText(wxEmptyString);
    ClearHits();
}

void frmAnagram::ClearHits() {
    rows_.Clear();
    recordNumbers_.clear();
    ShowHits();
}

void frmAnagram::ShowHits() {
    lstAnagrams->SetRows(rows_);
    shownHits_ = rows_.RowCount();
}

// Setting the rows anew takes a while, and mostly there are no new ones.
void frmAnagram::ShowNewHits() {
    if (rows_.RowCount() != shownHits_) {
        ShowHits();
    }
}

void frmAnagram::RunSearch() {
    const std::u32string letters = TypedLetters();
    if (const Message* const refusal = AnagramRefusalOf(letters)) {
        messages_.Show(*refusal);
        cboLetters->SetFocus();
        return;
    }
    {
        const OnLeaving idle([this] { ReturnToIdle(); });
        PrepareForSearch();
        LastSearchedLetters = letters;
        LetPendingEventsRun();
        Watcher watcher(*this);
        (void)FindAnagrams(*values_.AcronymList, AnagramLetters(letters), &watcher);
    }
    PresentHits();
}

void frmAnagram::PrepareForSearch() {
    heldEnter_->SearchBegins();
    ClearHits();
    lstAnagrams->SetTextColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    ShowPercentDone(0);
    AddToComboHistory(*cboLetters);
    (void)textChange_.IsNew(cboLetters->GetValue());
    isSearching_ = true;
    EnableInput(false);
    ShowBusyAnimation(true);
}

void frmAnagram::ReturnToIdle() {
    heldEnter_->SearchEnds();
    EnableInput(true);
    isSearching_ = false;
    ShowBusyAnimation(false);
}

void frmAnagram::PresentHits() {
    if (!IsShown()) {
        return;  // the program ends
    }
    ShowNewHits();
    lblPercentDone->SetLabelText("Found " + std::to_string(rows_.RowCount()));
    wxWindow& list = lstAnagrams->Window();
    if (rows_.RowCount() > 0) {
        list.SetToolTip("Double-click an entry to go to the record");
        lstAnagrams->SelectRow(0);
        list.SetFocus();
        return;
    }
    list.UnsetToolTip();
    lstAnagrams->SetTextColour(wxColour(255, 0, 0));
    rows_.Add(" None Found!");
    recordNumbers_.push_back(0);
    ShowHits();
    SelectAllText(*cboLetters);
    cboLetters->SetFocus();
}

void frmAnagram::AddHit(std::int32_t row) {
    rows_.Add(values_.AcronymList->RowText(row));
    recordNumbers_.push_back(row + 1);
}

void frmAnagram::ShowPercentDone(int percent) {
    lblPercentDone->SetLabelText("Done " + std::to_string(percent) + "%");
    lblPercentDone->Update();
}

void frmAnagram::EnableInput(bool enable) {
    for (wxWindow* control : std::initializer_list<wxWindow*>{cboLetters, cmdSearch, cmdCancel,
                                                              &lstAnagrams->Window()}) {
        control->Enable(enable);
    }
}

void frmAnagram::GoToSelectedRecord() {
    const std::int32_t row = lstAnagrams->SelectedRow();
    if (row >= 0) {
        goToRecord_(recordNumbers_.at(static_cast<std::size_t>(row)));
        HideWindow();
    }
}

}  // namespace brelex
