// SPDX-License-Identifier: MIT
#include "ui/frmSearch.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <wx/bmpbuttn.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/dcclient.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "base/scope.h"
#include "base/text.h"
#include "platform/list/text_columns.h"
#include "platform/window/accessible_name.h"
#include "platform/window/paint_now.h"
#include "platform/window/prompt_button.h"
#include "search/search_list.h"
#include "search/wildcard_help.h"
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
constexpr double kInnerWidth = 640;
constexpr double kResultHeight = 230;
constexpr double kMargin = 8;
constexpr double kCountWidth = 190;
constexpr double kShrunkMargin = 3;  // below the header's upper edge

constexpr int kAnimationIntervalMs = 120;
constexpr int kTextMarginPixels = 5;
constexpr int kTabStopDialogUnits = 88;

wxColour PureRed() {
    return {255, 0, 0};
}

wxColour DarkRed() {
    return {192, 0, 0};
}

}  // namespace

frmSearch::frmSearch(wxTopLevelWindow* main, ProgramValues& values)
    : wxDialog(main, wxID_ANY, "Search Database"),
      main_(*main),
      values_(values),
      messages_(this),
      units_(*this),
      session_(values, *this, messages_) {
    SetName("frmSearch");
    SetIcons(AppIcons());
    CreateControls();
    NameControls();
    PlaceControls();
    BindEvents();
    FillHistory();
    textLimit_->Set(session_.TextLimit(SearchIn::Expansions));
    SetSideMargins(*txtSearchResult, kTextMarginPixels);
    DrawColumnHeader();
    KeepCentered(*this, main_);
}

// The controls go first: as they go they still report what happens to them.
frmSearch::~frmSearch() {
    DestroyChildren();
}

void frmSearch::CreateControls() {
    surface_ = new Surface(this);
    CreateFrames();
    CreateResultArea();
    cmdSearch->SetDefault();
    ActAtOnceOnKeys(*cmdSearch);
    SetEscapeId(cmdCancel->GetId());
    heldEnter_.emplace(*this);
}

// In the order in which the TAB key visits them. The buttons in a frame are its siblings: from
// within a frame of the toolkit no access key leads out again on Windows (seen with 3.2.2).
void frmSearch::CreateFrames() {
    lblPrompt_ = new wxStaticText(surface_, wxID_ANY, "Search &for:");
    cboSearchWhat = new wxComboBox(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                   wxDefaultSize, 0, nullptr, wxCB_DROPDOWN);
    textLimit_.emplace(*cboSearchWhat);
    fraPosition = new wxStaticBox(surface_, wxID_ANY, "Position");
    optPosition[0] = new wxRadioButton(surface_, wxID_ANY, "Any&where", wxDefaultPosition,
                                       wxDefaultSize, wxRB_GROUP);
    optPosition[1] = new wxRadioButton(surface_, wxID_ANY, "&Beginning with");
    optPosition[2] = new wxRadioButton(surface_, wxID_ANY, "En&ding with");
    optPosition[0]->SetValue(true);
    fraSearchIn = new wxStaticBox(surface_, wxID_ANY, "Search");
    optSearchIn[0] = new wxRadioButton(surface_, wxID_ANY, "&Abbreviations", wxDefaultPosition,
                                       wxDefaultSize, wxRB_GROUP);
    optSearchIn[1] = new wxRadioButton(surface_, wxID_ANY, "&Expansions");
    optSearchIn[1]->SetValue(true);
    chkMatchCase = new wxCheckBox(surface_, wxID_ANY, "&Match Case");
    chkWholeWord = new wxCheckBox(surface_, wxID_ANY, "Search Whole Word &Only");
    chkNextSearch = new wxCheckBox(surface_, wxID_ANY, "Search from &Next Position");
    chkNextSearch->Disable();
    cmdSearch = new wxButton(surface_, wxID_ANY, "&Search");
    cmdSearch->Disable();
    cmdCancel = new wxButton(surface_, wxID_ANY, "Cancel");
    cmdHelp = new wxButton(surface_, wxID_ANY, "Help on wildcards");
}

void frmSearch::CreateResultArea() {
    picAnim = new BusyAnimation(surface_, SearchFilmStrip(), kAnimationIntervalMs);
    statusArea_ = new Backdrop(surface_);
    for (wxStaticText** label : {&lblStatus, &lblCount}) {
        *label = new wxStaticText(
            statusArea_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
            wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END | (label == &lblCount ? wxALIGN_RIGHT : 0));
    }
    cmdExpandShrink = new wxBitmapButton(surface_, wxID_ANY, ExpandPicture());
    lblColHeaderBack = new Backdrop(surface_);
    picColHeader = new ColumnHeader(lblColHeaderBack, units_);
    txtSearchResult = new wxTextCtrl(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                     wxDefaultSize, wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP);
}

void frmSearch::NameControls() {
    SetNames(*cboSearchWhat, "cboSearchWhat", "Search text");
    cmdSearch->SetName("cmdSearch");
    cmdHelp->SetName("cmdHelp");
    fraPosition->SetName("fraPosition");
    fraSearchIn->SetName("fraSearchIn");
    for (std::size_t i = 0; i < optPosition.size(); ++i) {
        optPosition.at(i)->SetName("optPosition" + std::to_string(i));
    }
    for (std::size_t i = 0; i < optSearchIn.size(); ++i) {
        optSearchIn.at(i)->SetName("optSearchIn" + std::to_string(i));
    }
    chkMatchCase->SetName("chkMatchCase");
    chkWholeWord->SetName("chkWholeWord");
    chkNextSearch->SetName("chkNextSearch");
    lblStatus->SetName("lblStatus");
    lblCount->SetName("lblCount");
    lblColHeaderBack->SetName("lblColHeaderBack");
    SetNames(*txtSearchResult, "txtSearchResult", "Entries found");
}

wxSizer* frmSearch::LayoutOfControls() {
    const int gap = units_.Pixels(kMargin);
    auto* options = new wxBoxSizer(wxHORIZONTAL);
    const auto addFrame = [&](wxStaticBox* frame, const auto& buttons) {
        auto* column = new wxStaticBoxSizer(frame, wxVERTICAL);
        for (wxRadioButton* button : buttons) {
            column->Add(button, 0, wxALL, gap / 4);
        }
        options->Add(column, 0, wxEXPAND | wxRIGHT, gap);
    };
    addFrame(fraPosition, optPosition);
    addFrame(fraSearchIn, optSearchIn);
    auto* checks = new wxBoxSizer(wxVERTICAL);
    for (wxCheckBox* check : {chkMatchCase, chkWholeWord, chkNextSearch}) {
        checks->Add(check, 0, wxTOP, gap);
    }
    options->Add(checks);
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
    all->Add(request, 1, wxEXPAND | wxRIGHT, gap);
    all->Add(buttons);
    return all;
}

void frmSearch::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int gap = px(kMargin);
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
    all->Add(LayoutOfControls(), 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, gap);
    all->Add(status, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, gap);
    all->AddSpacer(gap);
    lblColHeaderBack->SetMinSize({-1, px(kColumnHeaderHeight)});
    all->Add(lblColHeaderBack, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    txtSearchResult->SetMinSize({-1, px(kResultHeight)});
    all->Add(txtSearchResult, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    surface_->SetSizer(all);

    const wxSize needed = all->GetMinSize();
    const int width = std::max(px(kInnerWidth), needed.x);
    ExpandedHeight = needed.y;
    surface_->FillWindow({width, ExpandedHeight});
    innerWidth_ = width;
    ShrunkHeight = lblColHeaderBack->GetPosition().y + px(kShrunkMargin);
}

void frmSearch::BindEvents() {
    LeadAccessKeysTo(*this, {{lblPrompt_, cboSearchWhat}});
    surface_->Bind(wxEVT_PAINT, &frmSearch::OnPaint, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmSearch::OnClose, this);
    SelectAllOnCtrlA(*cboSearchWhat, *cboSearchWhat);
    for (const wxEventTypeTag<wxCommandEvent>& type : {wxEVT_TEXT, wxEVT_COMBOBOX}) {
        cboSearchWhat->Bind(type, [this](wxCommandEvent& event) {
            session_.OnTextChanged(Utf8Text(cboSearchWhat->GetValue()));
            event.Skip();
        });
    }
    for (wxRadioButton* button : optSearchIn) {
        button->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) {
            textLimit_->Set(session_.TextLimit(Request().in));
        });
    }
    cmdSearch->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { RunSearch(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnCancel(); });
    cmdHelp->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { messages_.Show(WildcardHelp()); });
    cmdExpandShrink->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.ToggleResultArea(); });
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
    const int border = (txtSearchResult->GetSize().x - txtSearchResult->GetClientSize().x) / 2;
    picColHeader->SetSecondColumn(std::max(border, 0) + kTextMarginPixels +
                                  SetTabStop(*txtSearchResult, kTabStopDialogUnits));
}

void frmSearch::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(surface_);
    DrawFrameRound(dc, statusArea_->GetRect());
    if (ResultAreaShown()) {
        DrawFrameRound(dc, lblColHeaderBack->GetRect(), units_.Pixels(kColumnHeaderFrameAbove));
    }
}

void frmSearch::ShowSearchWindow() {
    CenterWindow(*this, main_);
    session_.Open();
    ShowModal();
}

void frmSearch::RunSearch() {
    session_.RunSearch(Request(), chkNextSearch->GetValue());
}

SearchRequest frmSearch::Request() const {
    SearchRequest request;
    request.text = Utf8Text(cboSearchWhat->GetValue());
    request.in = optSearchIn[0]->GetValue() ? SearchIn::Abbreviations : SearchIn::Expansions;
    if (optPosition[1]->GetValue()) {
        request.position = SearchPosition::Beginning;
    } else if (optPosition[2]->GetValue()) {
        request.position = SearchPosition::Ending;
    }
    request.matchCase = chkMatchCase->GetValue();
    request.wholeWord = chkWholeWord->GetValue();
    return request;
}

void frmSearch::OnCancel() {
    if (!heldEnter_->PressesButton()) {
        session_.PressCancel();
    }
}

// The user's closing hides the window. The end of the program ends a search and lets go of the
// window, which goes with the main window.
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
    chkNextSearch->Enable(display.canGoOn);
    if (isNew(&SearchDisplay::status)) {
        lblStatus->SetLabelText(WxText(display.status));
    }
    if (isNew(&SearchDisplay::count) || isNew(&SearchDisplay::countTone)) {
        lblCount->SetForegroundColour(display.countTone == Tone::Warning
                                          ? DarkRed()
                                          : wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
        lblCount->SetLabelText(WxText(display.count));
        lblCount->Update();
    }
    if (isNew(&SearchDisplay::resultAreaShown)) {
        ShowResultArea(display.resultAreaShown);
    }
    if (isNew(&SearchDisplay::isAnimated)) {
        ShowBusyAnimation(display.isAnimated);
    }
    if (display.isBusy && isNew(&SearchDisplay::isBusy)) {
        PaintNow(*this);
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
    for (wxWindow* control : std::initializer_list<wxWindow*>{
             cmdHelp, cmdExpandShrink, cboSearchWhat, fraPosition, optPosition[0], optPosition[1],
             optPosition[2], fraSearchIn, optSearchIn[0], optSearchIn[1], chkMatchCase,
             chkWholeWord}) {
        control->Enable(!busy);
    }
    cmdCancel->SetBitmap(busy ? StopPicture() : CancelPicture());
    SetNames(*cmdCancel, "cmdCancel", busy ? "Stop" : "Cancel");
}

void frmSearch::ShowResult(const std::string& text, Tone tone) {
    txtSearchResult->SetForegroundColour(
        tone == Tone::Warning ? PureRed() : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    txtSearchResult->ChangeValue(WxText(text));
}

void frmSearch::ShowResultArea(bool show) {
    cmdExpandShrink->SetBitmap(show ? ShrinkPicture() : ExpandPicture());
    const char* const tip = show ? "Hide search result" : "Show search result";
    cmdExpandShrink->SetToolTip(tip);
    SetNames(*cmdExpandShrink, "cmdExpandShrink", tip);
    // What is out of sight must not be reached with the TAB key either.
    lblColHeaderBack->Show(show);
    txtSearchResult->Show(show);
    surface_->FillWindow({innerWidth_, show ? ExpandedHeight : ShrunkHeight});
    surface_->Refresh();
    CenterWindow(*this, main_);
}

void frmSearch::ShowBusyAnimation(bool on) {
    picAnim->Run(on);
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
    LetPendingEventsRun();
    wxMilliSleep(static_cast<unsigned long>(restMs));
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
