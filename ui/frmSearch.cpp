// SPDX-License-Identifier: MIT
#include "ui/frmSearch.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include <wx/bmpbuttn.h>
#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "platform/list/text_columns.h"
#include "platform/window/accessible_name.h"
#include "platform/window/drop_down_list.h"
#include "platform/window/paint_now.h"
#include "platform/window/prompt_button.h"
#include "platform/window/spoken_controls.h"
#include "search/search_list.h"
#include "search/wildcard_help.h"
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
constexpr double kInnerWidth = 640;
constexpr double kResultHeight = 230;
constexpr double kCountWidth = 190;
constexpr double kShrunkMargin = 3;  // below the header's upper edge

constexpr int kAnimationIntervalMs = 120;
constexpr int kTextMarginPixels = 5;
constexpr int kTabStopDialogUnits = 88;

wxStaticText* NewStatus(wxWindow* parent, long alignment = 0) {
    return new wxStaticText(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END | alignment);
}

}  // namespace

frmSearch::frmSearch(wxTopLevelWindow* main, ProgramValues& values)
    : SideWindow(*main, "frmSearch", "Search Database"),
      values_(values),
      session_(values, *this, messages_) {
    CreateControls();
    PlaceControls();
    BindEvents();
    FillHistory();
    textLimit_->Set(session_.TextLimit(SearchIn::Expansions));
    SetSideMargins(*txtSearchResult, kTextMarginPixels);
    DrawColumnHeader();
    NeverFade(*this);
}

// Destroys the controls first, because they still send events while they are destroyed.
frmSearch::~frmSearch() {
    DestroyChildren();
}

void frmSearch::CreateControls() {
    CreateRequest();
    CreateResultArea();
    cmdSearch->SetDefault();
    ActAtOnceOnKeys(*cmdSearch);
    SetEscapeId(cmdCancel->GetId());
    heldEnter_.emplace(*this);
}

// In the order in which the TAB key visits them.
void frmSearch::CreateRequest() {
    lblPrompt_ = new wxStaticText(surface_, wxID_ANY, "Search &for:");
    cboSearchWhat = Named(new wxComboBox(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                         wxDefaultSize, 0, nullptr, wxCB_DROPDOWN),
                          "cboSearchWhat", "Search text");
    textLimit_.emplace(*cboSearchWhat);
    ShowItemsAsList(*cboSearchWhat);
    options_.emplace(*surface_, [this](SearchIn in) { textLimit_->Set(session_.TextLimit(in)); });
    cmdSearch = Named(new wxButton(surface_, wxID_ANY, "&Search"), "cmdSearch");
    cmdCancel = Named(new wxButton(surface_, wxID_ANY, "Cancel"), "cmdCancel");
    cmdHelp = Named(new wxButton(surface_, wxID_ANY, "Help on wildcards"), "cmdHelp");
}

void frmSearch::CreateResultArea() {
    picAnim = new BusyAnimation(surface_, SearchFilmStrip(), kAnimationIntervalMs);
    StopWithWindow(picAnim->tmrAnimation);
    statusArea_ = new Backdrop(surface_);
    surface_->FrameChild(*statusArea_);
    lblStatus = Named(NewStatus(statusArea_), "lblStatus");
    lblCount = Named(NewStatus(statusArea_, wxALIGN_RIGHT), "lblCount");
    SpeakOnlyName(*lblCount, wxEmptyString);
    cmdExpandShrink =
        Named(new wxBitmapButton(surface_, wxID_ANY, ExpandPicture()), "cmdExpandShrink");
    lblColHeaderBack = Named(new Backdrop(surface_), "lblColHeaderBack");
    surface_->FrameChild(*lblColHeaderBack, units_.Pixels(kColumnHeaderFrameAbove));
    picColHeader = new ColumnHeader(lblColHeaderBack, units_);
    txtSearchResult =
        Named(new wxTextCtrl(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                             wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP),
              "txtSearchResult", "Entries found");
}

wxSizer* frmSearch::LayoutOfRequest() {
    const int gap = units_.Pixels(kControlGap);
    wxBoxSizer* const options = options_->Layout(gap);
    options->AddStretchSpacer();
    options->Add(picAnim, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRESERVE_SPACE_EVEN_IF_HIDDEN,
                 gap);

    auto* request = new wxBoxSizer(wxVERTICAL);
    auto* searchWhat = new wxBoxSizer(wxHORIZONTAL);
    searchWhat->Add(lblPrompt_, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    searchWhat->Add(cboSearchWhat, 1, wxALIGN_CENTRE_VERTICAL);
    request->Add(searchWhat, 0, wxEXPAND | wxBOTTOM, gap);
    request->Add(options, 1, wxEXPAND);

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    for (wxButton* button : {cmdSearch, cmdCancel, cmdHelp}) {
        buttons->Add(button, 0, wxEXPAND | wxBOTTOM, gap);
    }
    auto* all = new wxBoxSizer(wxHORIZONTAL);
    all->Add(request, 1, wxEXPAND | wxRIGHT, units_.Pixels(kGroupGap));
    all->Add(buttons);
    return all;
}

void frmSearch::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int margin = px(kWindowMargin);
    const int gap = px(kControlGap);
    auto* labels = new wxBoxSizer(wxHORIZONTAL);
    labels->Add(lblStatus, 1, wxALIGN_CENTRE_VERTICAL | wxLEFT, px(4));
    labels->Add(lblCount, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT | wxRIGHT, px(4));
    lblCount->SetMinSize({px(kCountWidth), -1});
    statusArea_->SetSizer(labels);
    statusArea_->SetMinSize({-1, lblStatus->GetCharHeight() + px(4)});
    auto* status = new wxBoxSizer(wxHORIZONTAL);
    status->Add(statusArea_, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, gap);
    status->Add(cmdExpandShrink, 0, wxALIGN_CENTRE_VERTICAL);

    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(LayoutOfRequest(), 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, margin);
    all->AddSpacer(gap);
    all->Add(status, 0, wxEXPAND | wxLEFT | wxRIGHT, margin);
    all->AddSpacer(px(kGroupGap));
    lblColHeaderBack->SetMinSize({-1, px(kColumnHeaderHeight)});
    all->Add(lblColHeaderBack, 0, wxEXPAND | wxLEFT | wxRIGHT, margin);
    // It ends with a full line.
    const int line = LineDistance(*txtSearchResult);
    txtSearchResult->SetMinSize(
        {-1, px(kResultHeight) / line * line + 2 * FrameWidth(*txtSearchResult)});
    all->Add(txtSearchResult, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, margin);
    const wxSize needed = all->GetMinSize();
    innerWidth_ = std::max(px(kInnerWidth), needed.x);
    ExpandedHeight = needed.y;
    FillWindow(all, innerWidth_);
    ShrunkHeight = lblColHeaderBack->GetPosition().y + px(kShrunkMargin);
}

void frmSearch::OnRescaled(double times) {
    SideWindow::OnRescaled(times);
    for (int* const pixels : {&innerWidth_, &ExpandedHeight, &ShrunkHeight}) {
        *pixels = static_cast<int>(std::lround(*pixels * times));
    }
}

void frmSearch::BindEvents() {
    LeadAccessKeysTo(*this, {{lblPrompt_, cboSearchWhat}});
    Bind(wxEVT_CLOSE_WINDOW, &frmSearch::OnClose, this);
    SelectAllOnCtrlA(*cboSearchWhat, *cboSearchWhat);
    for (const wxEventTypeTag<wxCommandEvent>& type : {wxEVT_TEXT, wxEVT_COMBOBOX}) {
        cboSearchWhat->Bind(type, [this](wxCommandEvent& event) {
            session_.OnTextChanged(Utf8Text(cboSearchWhat->GetValue()));
            event.Skip();
        });
    }
    cmdSearch->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { RunSearch(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnCancel(); });
    cmdHelp->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { messages_.Show(WildcardHelp()); });
    cmdExpandShrink->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.ToggleResultArea(); });
    lblColHeaderBack->Bind(wxEVT_SIZE, [this](wxSizeEvent&) { DrawColumnHeader(); });
    picColHeader->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { txtSearchResult->SetFocus(); });
    ShowAppInfoOnMenuRequest(*txtSearchResult, values_.info);
}

void frmSearch::FillHistory() {
    for (const std::string& item : SearchListItems(values_.Header.SearchListText)) {
        cboSearchWhat->Append(WxTextOfBytes(item));
    }
}

void frmSearch::DrawColumnHeader() {
    const wxSize size = lblColHeaderBack->GetSize();
    picColHeader->SetSize(0, 0, size.x, size.y);
    picColHeader->SetSecondColumn(FrameWidth(*txtSearchResult) + kTextMarginPixels +
                                  SetTabStop(*txtSearchResult, kTabStopDialogUnits));
}

void frmSearch::ShowSearchWindow() {
    session_.Open();
    ShowModal();
}

void frmSearch::RunSearch() {
    SearchRequest request = options_->Request();
    request.text = Utf8Text(cboSearchWhat->GetValue());
    session_.RunSearch(request, options_->GoesOn());
}

void frmSearch::OnCancel() {
    if (!heldEnter_->PressesButton()) {
        session_.PressCancel();
    }
}

// Closing by the user hides the window. When the program ends, a running search ends, and the main
// window destroys this one.
void frmSearch::OnClose(wxCloseEvent& event) {
    if (event.CanVeto()) {
        event.Veto();
        session_.DismissSearchWindow();
    } else {
        session_.Abandon();
        if (IsModal()) {
            EndModal(wxID_CANCEL);
        }
    }
}

void frmSearch::ShowDisplay(const SearchDisplay& display) {
    const auto last = std::exchange(shown_, display);
    const auto isNew = [&](auto part) { return !last || (*last).*part != display.*part; };
    if (isNew(&SearchDisplay::isBusy)) {
        ShowBusy(display.isBusy);
    }
    cmdSearch->Enable(display.canSearch);
    options_->OfferToGoOn(display.canGoOn);
    if (isNew(&SearchDisplay::status)) {
        lblStatus->SetLabelText(WxText(display.status));
        SetSpokenDescription(*txtSearchResult, WxText(display.status));
        Announce(*lblStatus);
    }
    if (isNew(&SearchDisplay::count) || isNew(&SearchDisplay::countTone)) {
        lblCount->SetForegroundColour(display.countTone == Tone::Warning
                                          ? DarkRedOn(lblCount->GetBackgroundColour())
                                          : wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
        lblCount->SetLabelText(WxText(display.count));
        lblCount->Update();
    }
    if (!display.isBusy) {
        SpeakOnlyName(*lblCount, WxText(display.count));
    }
    if (isNew(&SearchDisplay::resultAreaShown)) {
        ShowResultArea(display.resultAreaShown);
    }
    if (isNew(&SearchDisplay::isAnimated)) {
        picAnim->Run(display.isAnimated);
    }
    if (display.isBusy && isNew(&SearchDisplay::isBusy)) {
        PaintNow(*this);
        heldEnter_->SearchIsShown();  // the window may have taken its time to become larger
    }
}

void frmSearch::ShowBusy(bool busy) {
    if (busy) {
        heldEnter_->SearchBegins();
        fineTimer_.emplace();
    } else {
        heldEnter_->SearchEnds();
        fineTimer_.reset();
    }
    options_->Enable(!busy);
    for (wxWindow* control :
         std::initializer_list<wxWindow*>{cmdHelp, cmdExpandShrink, cboSearchWhat}) {
        control->Enable(!busy);
    }
    cmdCancel->SetBitmap(busy ? StopPicture() : CancelPicture());
    SetSpokenName(*cmdCancel, busy ? "Stop" : "Cancel");
}

void frmSearch::ShowResult(const std::string& text, Tone tone) {
    txtSearchResult->SetForegroundColour(
        tone == Tone::Warning ? RedOn(txtSearchResult->GetBackgroundColour())
                              : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    txtSearchResult->ChangeValue(WxText(text));
}

void frmSearch::ShowResultArea(bool show) {
    cmdExpandShrink->SetBitmap(show ? ShrinkPicture() : ExpandPicture());
    const char* const tip = show ? "Hide search result" : "Show search result";
    cmdExpandShrink->SetToolTip(tip);
    SetSpokenName(*cmdExpandShrink, tip);
    // The TAB key must not reach hidden controls either.
    lblColHeaderBack->Show(show);
    txtSearchResult->Show(show);
    EndEnlarging();
    surface_->FillWindow({innerWidth_, show ? ExpandedHeight : ShrunkHeight});
    surface_->Refresh();
    CenterOverOwner();
    if (show) {
        LetUserEnlarge();
    }
}

void frmSearch::MoveFocus(SearchFocus focus) {
    if (focus == SearchFocus::SearchText) {
        cboSearchWhat->SetFocus();
    } else if (focus == SearchFocus::Result) {
        txtSearchResult->SetFocus();
    } else {
        cmdCancel->SetFocus();
    }
}

void frmSearch::AddToHistory() {
    AddToComboHistory(*cboSearchWhat);
}

void frmSearch::LetEventsRun(int restMs) {
    LetPendingEventsRun(restMs);
}

void frmSearch::HideWindow() {
    cboSearchWhat->Enable();
    cboSearchWhat->SetValue(wxEmptyString);
    cboSearchWhat->SetFocus();
    if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

}  // namespace brelex
