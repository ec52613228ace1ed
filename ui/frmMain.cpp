// SPDX-License-Identifier: MIT
#include "ui/frmMain.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include <wx/app.h>
#include <wx/dcclient.h>
#include <wx/dialog.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include "base/number_text.h"
#include "base/scope.h"
#include "platform/window/accessible_name.h"
#include "platform/window/bring_forward.h"
#include "presentation/help_pages.h"
#include "toolkit/app_icon.h"
#include "toolkit/pending_events.h"
#include "toolkit/wx_text.h"
#include "ui/controls/access_keys.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/column_header.h"
#include "ui/controls/surface.h"
#include "ui/controls/text_entry.h"
#include "ui/controls/title_image.h"
#include "ui/controls/toolbar.h"
#include "ui/frmAbout.h"
#include "ui/frmAnagram.h"
#include "ui/frmCheckData.h"
#include "ui/frmDataInfo.h"
#include "ui/frmDonation.h"
#include "ui/frmSearch.h"
#include "ui/frmSmiley.h"
#include "ui/frmSplash.h"
#include "ui/frmViewEntry.h"
#include "ui/main/main_menus.h"
#include "ui/main/side_windows.h"
#include "ui/modGeneral.h"
#include "ui/text_question.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 760;
constexpr double kInnerHeight = 572;
constexpr double kMargin = 8;
constexpr double kTitleWidth = 190;
constexpr double kStatusFrameHeight = 18;
constexpr double kHintWidth = 450;

constexpr int kFewestRows = 6;
constexpr int kCommandDelayMs = 500;

bool IsModalDialog(const wxWindow* window) {
    const auto* const dialog = dynamic_cast<const wxDialog*>(window);
    return dialog != nullptr && dialog->IsModal();
}

// Of modal windows over each other the topmost, which was made last; null if there is none.
wxWindow* TopmostModalDialog() {
    wxWindow* topmost = nullptr;
    for (wxWindow* window : wxTopLevelWindows) {
        topmost = IsModalDialog(window) ? window : topmost;
    }
    return topmost;
}

std::optional<NavigationKey> NavigationKeyOf(int keyCode) {
    switch (keyCode) {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            return NavigationKey::Enter;
        case WXK_DOWN:
        case WXK_NUMPAD_DOWN:
            return NavigationKey::Down;
        case WXK_UP:
        case WXK_NUMPAD_UP:
            return NavigationKey::Up;
        case WXK_PAGEUP:
        case WXK_NUMPAD_PAGEUP:
            return NavigationKey::PageUp;
        case WXK_PAGEDOWN:
        case WXK_NUMPAD_PAGEDOWN:
            return NavigationKey::PageDown;
        default:
            return std::nullopt;
    }
}

// Shows a window that is made for one use.
void ShowOnce(wxDialog* window) {
    window->ShowModal();
    window->Destroy();
}

// The address without its scheme, from the first "www" on.
std::string ShownAddress(const std::string& address) {
    const auto www = address.find("www");
    return www == std::string::npos ? address : address.substr(www);
}

}  // namespace

// The time that a modal window is up: the icon shows no menu then, and the main window does not
// stay above the other. Within one, another changes nothing.
class frmMain::ModalScope {
  public:
    explicit ModalScope(frmMain& window)
        : window_(window),
          outermost_(!std::exchange(window.IsModalOpen, true)) {
        window_.picToolbar->LetGo();
        if (outermost_) {
            window_.TrayMenuChanged();
            if (window_.IsStayOnTop) {
                SetTopMost(window_, false);
            }
        }
    }

    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    ~ModalScope() {
        if (outermost_) {
            if (window_.IsStayOnTop) {
                SetTopMost(window_, true);
            }
            window_.IsModalOpen = false;
            window_.TrayMenuChanged();
            if (window_.closesWhenNotModal_) {
                window_.CallAfter([&window = window_] { window.Close(true); });
            }
        }
    }

  private:
    frmMain& window_;
    bool outermost_;
};

frmMain::frmMain(ProgramValues& values, RecordStore& store)
    : wxFrame(nullptr, wxID_ANY, kAppTitle, wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE & ~(wxRESIZE_BORDER | wxMAXIMIZE_BOX)),
      values_(values),
      store_(store),
      messages_(this),
      lookup_(values, *this, messages_),
      units_(*this),
      trayBehaviour_(*this),
      tmrCheckCommand(this) {
    SetName("frmMain");
    SetIcons(AppIcons());
    SetMenuBar(CreateMainMenus());
    CreateControls();
    BindEvents();
    txtAbbrv->SetFocus();
}

// The controls go first: as they go they still report what happens to them.
frmMain::~frmMain() {
    DestroyChildren();
}

void frmMain::CreateControls() {
    surface_ = new Surface(this);
    picToolbar = new Toolbar(surface_, units_, EventsOfToolbar());
    lblAppTitle = new Backdrop(surface_);
    imgAppTitle = new TitleImage(lblAppTitle);
    lblInstruction = new wxStaticText(
        surface_, wxID_ANY,
        "&Type the first few letters of the acronym/abbreviation you are looking for:");
    // Directly behind the instruction, whose access key leads to it.
    txtAbbrv = new wxTextCtrl(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxTE_PROCESS_ENTER);
    lblColHeaderBack = new Backdrop(surface_);
    picColHeader = new ColumnHeader(lblColHeaderBack, units_);
    lstAcronyms = &CreateEntryListControl(*surface_, units_.Pixels(kExpansionTextAt));
    for (wxStaticText** label : {&lblRecNumber, &lblDescription, &lblRecCount}) {
        *label = new wxStaticText(surface_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                  wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
        (*label)->SetFont(units_.StripFont());
    }
    lblAppTitle->SetName("lblAppTitle");
    lblInstruction->SetName("lblInstruction");
    lblColHeaderBack->SetName("lblColHeaderBack");
    SetNames(*imgAppTitle, "imgAppTitle", kAppTitle);
    SetNames(*txtAbbrv, "txtAbbrv", "First letters of the abbreviation");
    SetNames(lstAcronyms->Window(), "lstAcronyms", "Entries");
    lblRecNumber->SetName("lblRecNumber");
    lblDescription->SetName("lblDescription");
    lblRecCount->SetName("lblRecCount");
}

void frmMain::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int margin = px(kMargin);
    const int boxLeft = 2 * margin + px(kTitleWidth);
    const wxSize largest = LargestInside(*this);
    const int wanted =
        std::max(px(kInnerWidth), boxLeft + lblInstruction->GetBestSize().x + margin);
    // Of a height that the screen does not have, the list goes without.
    const wxSize inner(std::min(wanted, largest.x), std::min(px(kInnerHeight), largest.y));
    if (wanted > inner.x) {
        lblInstruction->Wrap(inner.x - boxLeft - margin);
    }
    const wxSize instruction = lblInstruction->GetBestSize();
    picToolbar->SetSize(0, 0, inner.x, picToolbar->GetBestSize().y);
    const int top = picToolbar->GetSize().y;
    const int boxTop = top + instruction.y + px(3);
    // The toolkit's best height does not always follow a large font (seen with GTK 3.24).
    const int boxHeight = std::max(txtAbbrv->GetBestSize().y, txtAbbrv->GetCharHeight() + px(11));
    lblInstruction->SetSize(boxLeft, top, inner.x - boxLeft - margin, instruction.y);
    txtAbbrv->SetSize(boxLeft, boxTop, inner.x - boxLeft - margin, boxHeight);
    lblAppTitle->SetSize(margin, top, px(kTitleWidth), boxTop + boxHeight - top);

    const int listTop = boxTop + boxHeight + margin + px(kColumnHeaderHeight);
    const int belowList = px(kStatusFrameHeight + 2) + margin;
    // The list, and the window with it, ends between two rows.
    const int rows = std::max(lstAcronyms->RowsIn(inner.y - belowList - listTop), kFewestRows);
    const int listHeight = lstAcronyms->HeightOfRows(rows);
    lstAcronyms->Window().SetSize(margin, listTop, inner.x - 2 * margin, listHeight);
    inner_ = {inner.x, listTop + listHeight + belowList};
    surface_->FillWindow(inner_);
}

void frmMain::DrawColumnHeader() {
    const wxRect list = lstAcronyms->Window().GetRect();
    const int height = units_.Pixels(kColumnHeaderHeight);
    lblColHeaderBack->SetSize(list.x, list.y - height, list.width, height);
    picColHeader->SetSize(0, 0, list.width, height);
}

void frmMain::LayoutStatusBar() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int height = px(kStatusFrameHeight);
    const int top = inner_.y - height - px(2);
    int x = px(1);
    const auto place = [&](wxStaticText& label, int width) {
        AddFrame(x, top, width, height);
        label.SetSize(x + px(3), top + px(2), width - px(6), height - px(3));
        x += width + px(3);
    };
    lblRecNumber->SetLabelText(wxEmptyString);
    place(*lblRecNumber, lblAppTitle->GetSize().x);
    lblDescription->SetLabelText(wxEmptyString);
    const wxString count =
        WxText(FormatGrouped(values_.RecordCount, values_.groupSeparator) + " entries");
    // On a screen too small for all the number of entries comes first.
    const int countWidth = lblRecCount->GetTextExtent(count).x + px(12);
    place(*lblDescription,
          std::max(std::min(px(kHintWidth), inner_.x - x - px(5) - countWidth), px(kMargin)));
    place(*lblRecCount, inner_.x - x - px(2));
    lblRecCount->SetLabelText(count);
}

void frmMain::PlaceTitleImage() {
    const wxRect label = lblAppTitle->GetRect();
    const int inset = units_.Pixels(6);
    imgAppTitle->FitInto({label.width - 2 * inset, label.height - 2 * inset});
    const wxSize image = imgAppTitle->GetSize();
    imgAppTitle->Move((label.width - image.x) / 2 + 1, (label.height - image.y) / 2 + 1);
    // Round the label, which covers what is drawn under it.
    AddFrame(label.x - 1, label.y - 1, label.width + 1, label.height + 1);
}

void frmMain::AddFrame(int left, int top, int width, int height) {
    frames_.emplace_back(left, top, width, height);
}

void frmMain::BindEvents() {
    Bind(wxEVT_ICONIZE, &frmMain::OnIconize, this);
    Bind(wxEVT_SHOW, &frmMain::OnShow, this);
    Bind(wxEVT_ACTIVATE, &frmMain::OnActivate, this);
    LeadAccessKeysTo(*this, {{lblInstruction, txtAbbrv}});
    surface_->Bind(wxEVT_PAINT, &frmMain::OnPaint, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmMain::OnClose, this);
    wxTheApp->Bind(wxEVT_QUERY_END_SESSION, &frmMain::OnQueryEndSession, this);
    Bind(wxEVT_MENU, &frmMain::OnMenu, this, kFileItem, kMenuIdEnd);
    // GTK does not tell when the mouse leaves with a menu open.
    Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
        picToolbar->LetGo();
        event.Skip();
    });
    Bind(wxEVT_TIMER, &frmMain::OnCheckCommand, this, tmrCheckCommand.GetId());
    txtAbbrv->Bind(wxEVT_TEXT, &frmMain::OnBoxText, this);
    txtAbbrv->Bind(wxEVT_KEY_DOWN, &frmMain::OnBoxKeyDown, this);
    TypeInCapitals(*txtAbbrv, *txtAbbrv);
    SelectAllOnCtrlA(*txtAbbrv, *txtAbbrv);
    txtAbbrv->Bind(wxEVT_SET_FOCUS, &frmMain::OnBoxFocus, this);
    txtAbbrv->Bind(wxEVT_TEXT_PASTE, &frmMain::OnBoxPaste, this);
    BindListEvents();
    // Where a control is no window of its own, its mouse events are those of the one under it.
    for (wxWindow* window : std::initializer_list<wxWindow*>{surface_, lblRecNumber, lblRecCount,
                                                             lblAppTitle, imgAppTitle}) {
        window->Bind(wxEVT_LEFT_DCLICK, &frmMain::OnDoubleClick, this);
    }
    picColHeader->Bind(wxEVT_LEFT_DOWN,
                       [this](wxMouseEvent&) { lstAcronyms->Window().SetFocus(); });
}

void frmMain::BindListEvents() {
    lstAcronyms->onClick = [this] {
        // Only a list that is used is clicked; but on GTK the click comes before the focus it
        // brings.
        const bool wasNavigating = std::exchange(lookup_.IsNavigating, true);
        lookup_.OnListClick();
        lookup_.IsNavigating = wasNavigating;
    };
    lstAcronyms->onEnter = [this] { OpenEntryViewer(); };
    lstAcronyms->onRightPress = [this](std::int32_t row) { ShowListMenuAtMouse(row); };
    lstAcronyms->onMenuKey = [this] { ShowListMenuAtRow(); };
    lstAcronyms->Window().Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        lookup_.OnListGotFocus();
        event.Skip();
    });
    lstAcronyms->Window().Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        lookup_.OnListLostFocus();
        event.Skip();
    });
}

void frmMain::AddHints() {
    const char* const listHint =
        "Press Carriage Return or double-click an entry in the list to view it";
    hints_.emplace(*surface_, *lblDescription);
    hints_->Add(*txtAbbrv, "Type here the acronym/abbreviation you are looking for");
    hints_->Add(lstAcronyms->Window(), listHint);
    hints_->Add(*picColHeader, listHint);
    hints_->Add(*lblRecCount,
                "Number of entries in the database (double-click to view Database Info)");
    hints_->Add(*lblRecNumber, "Current record number (double-click to go to specified record)");
    hints_->Add(*imgAppTitle,
                WxText(std::string(kAppTitle) + " version " +
                       FormatOneDecimal(values_.AppVersion, values_.decimalSeparator) + ", " +
                       values_.info.copyright));
    std::vector<wxString> ofToolbar;
    ofToolbar.reserve(kToolbarIcons.size());
    for (const ToolbarIcon& icon : kToolbarIcons) {
        ofToolbar.emplace_back(icon.description);
    }
    hints_->Watch(ofToolbar);
}

TrayEvents frmMain::TrayEventsOfWindow() {
    TrayEvents events;
    events.onLeftRelease = [this] { trayBehaviour_.OnLeftRelease(); };
    events.onRightRelease = [this] { trayBehaviour_.OnRightRelease(*trayIcon_); };
    events.menu = [this] { return trayBehaviour_.Menu(); };
    // When the menu, and the desktop that may have sent this, are done with it: it can end the
    // program.
    events.onMenuItem = [this](int index) {
        CallAfter([this, index] { trayBehaviour_.OnMenuItem(index); });
    };
    // A program that starts with the session is often there before the panel is.
    events.onShown = [this] {
        if (IsShown() && IsIconized()) {
            Hide();
        }
    };
    events.onGone = [this] {
        // A window that nothing could bring back must not stay hidden.
        if (!IsShown()) {
            Iconize();
            Show();
        }
    };
    return events;
}

bool frmMain::Load(frmSplash& splash, const MainSurroundings& surroundings) {
    const float before = surroundings.secondsSinceMidnight();
    if (!LoadDatabase(values_, store_, {surroundings.files, splash, surroundings.messages})) {
        return false;
    }
    values_.LoadingTime = LoadingTimeBetween(before, surroundings.secondsSinceMidnight());
    lstAcronyms->SetRows(store_);
    PlaceControls();
    SetTitle(WxText(std::string(kAppTitle) + " (" + ShownAddress(values_.info.homePage) + ")"));
    DrawColumnHeader();
    LayoutStatusBar();
    PlaceTitleImage();
    SetMaxBoxLength(static_cast<std::size_t>(std::max(values_.Header.MaxAbbrvLength, 0)));
    AddHints();
    hotKey_ = std::make_unique<ActivationHotKey>(*this, [this] { ActivateWindow(); });
    trayIcon_ = AddTrayIcon(AppIcons(), kAppTitle, TrayEventsOfWindow());
    files_ = &surroundings.files;
    desktop_ = &surroundings.desktop;
    programName_ = surroundings.programName;
    openAddress_ = [this](const std::string& address) { OpenAddress(address); };
    helpKey_.emplace([this](const std::string& window) { return ShowHelpOf(window); });
    setRunAtStartup_ = surroundings.setRunAtStartup;
    setRunAtStartup_(true);
    splash.Destroy();
    commandLine_ = surroundings.commandLine;
    tmrCheckCommand.StartOnce(kCommandDelayMs);
    return true;
}

void frmMain::OpenModalForm(int number) {
    if (IsModalOpen) {
        return;  // a window that was just closed may still have a search to end
    }
    const ModalScope modal(*this);
    switch (number) {
        case kSearchWindow:
            if (search_ == nullptr) {
                search_ = new frmSearch(this, values_);
            }
            search_->ShowSearchWindow();
            break;
        case kAnagramWindow:
            if (anagram_ == nullptr) {
                anagram_ = new frmAnagram(this, values_, [this](std::int32_t recordNumber) {
                    GoToRecordNumber(recordNumber);
                });
            }
            anagram_->ShowAnagramWindow();
            break;
        case kDataInfoWindow:
            ShowOnce(new frmDataInfo(this, values_));
            break;
        case kSmileyWindow:
            ShowOnce(new frmSmiley(this, values_.info));
            break;
        case kAboutWindow:
            ShowOnce(new frmAbout(this, values_, openAddress_));
            break;
        case kCheckDataWindow:
            ShowOnce(new frmCheckData(this, values_, *files_));
            break;
        case kDonationWindow:
            ShowOnce(new frmDonation(this, values_.info, openAddress_));
            break;
        default:
            break;
    }
}

void frmMain::ShowMessage(const Message& message) {
    const ModalScope modal(*this);
    WxMessageSink(nullptr).Show(message);  // over whatever is in front
}

void frmMain::OpenEntryViewer() {
    if (IsModalOpen || SelectedRow() < 0) {
        return;
    }
    const ModalScope modal(*this);
    ShowOnce(new frmViewEntry(
        this, [this] { return SelectedEntry(); }, values_.info));
}

std::string_view frmMain::SelectedEntry() const {
    const std::int32_t row = SelectedRow();
    return row < 0 ? std::string_view() : store_.RowText(row);
}

void frmMain::ShowHelp(const std::string& page) {
    const ModalScope modal(*this);    // it may complain
    WxMessageSink messages(nullptr);  // over whatever is in front
    ShowHelpContents({values_.AppFolder, programName_}, *desktop_, messages, page);
}

// The main window's own key is that of its menu. In a window of another program, such as a browser
// for folders, none is ours.
bool frmMain::ShowHelpOf(const std::string& window) {
    const std::string_view page = HelpPageOf(window);
    if (window == "frmMain" || page.empty()) {
        return false;
    }
    ShowHelp(std::string(page));
    return true;
}

void frmMain::ShowReadMe() {
    const ModalScope modal(*this);
    OpenReadMe({values_.AppFolder, programName_}, *desktop_, messages_);
}

void frmMain::OpenAddress(const std::string& address) {
    if (isOpeningAddress_) {
        return;  // what is let run may ask for it again
    }
    const Busy busy(isOpeningAddress_);
    desktop_->Open(address);
    LetPendingEventsRun();
}

ToolbarEvents frmMain::EventsOfToolbar() {
    ToolbarEvents events;
    events.onHot = [this](int icon) {
        lblDescription->SetLabelText(
            icon < 0 ? "" : kToolbarIcons.at(static_cast<std::size_t>(icon)).description);
    };
    // When the toolbar is done with the mouse: an action may end the program.
    events.onAction = [this](int icon) { CallAfter([this, icon] { RunToolbarAction(icon); }); };
    return events;
}

void frmMain::RunToolbarAction(int icon) {
    switch (icon) {
        case kSearchIcon:
            OpenModalForm(kSearchWindow);
            break;
        case kAnagramIcon:
            OpenModalForm(kAnagramWindow);
            break;
        case kSmileyIcon:
            OpenModalForm(kSmileyWindow);
            break;
        case kHelpIcon:
            ShowHelp("");
            break;
        case kAboutIcon:
            OpenModalForm(kAboutWindow);
            break;
        case kDonationIcon:
            OpenModalForm(kDonationWindow);
            break;
        case kExitIcon:
            Close();
            break;
        default:
            break;
    }
}

void frmMain::GoToRecordNumber(std::int32_t nRecordNumber) {
    FlushBoxChange();
    std::optional<ModalScope> modal;
    if (nRecordNumber == -1) {
        modal.emplace(*this);  // it asks, and may complain
    }
    lookup_.GoToRecordNumber(nRecordNumber);
}

void frmMain::UnloadOtherForms() {
    const wxWindowList windows = wxTopLevelWindows;  // destroying changes the list
    for (wxWindow* window : windows) {
        // Ours have names; the toolkit has windows of its own among them.
        if (window != this && window->GetName().StartsWith("frm")) {
            window->Destroy();
        }
    }
}

void frmMain::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(surface_);
    surface_->DoPrepareDC(dc);
    for (const wxRect& frame : frames_) {
        Draw3DFrame(dc, frame);
    }
}

void frmMain::OnMenu(wxCommandEvent& event) {
    const int id = event.GetId();
    switch (id) {
        case kFileItem:
            OpenModalForm(kDataInfoWindow);
            break;
        case kFileItem + 1:
            OpenModalForm(kCheckDataWindow);
            break;
        case kFileItem + 3:
            Close();
            break;
        case kSearchItem:
            OpenModalForm(kSearchWindow);
            break;
        case kSearchItem + 1:
            OpenModalForm(kAnagramWindow);
            break;
        case kSearchItem + 3:
            GoToRecordNumber(-1);
            break;
        case kOptionsItem:
            IsStayOnTop = event.IsChecked();
            SetTopMost(*this, IsStayOnTop);
            break;
        case kOptionsItem + 2:
            setRunAtStartup_(event.IsChecked());
            break;
        case kHelpItem:
            ShowHelp("");
            break;
        case kHelpItem + 2:
            ShowReadMe();
            break;
        case kHelpItem + 3:
            OpenModalForm(kSmileyWindow);
            break;
        case kHelpItem + 5:
            OpenModalForm(kDonationWindow);
            break;
        case kHelpItem + 6:
            OpenModalForm(kAboutWindow);
            break;
        case kListboxRClickItem:
            OpenEntryViewer();
            break;
        case kListboxRClickItem + 2:
            CopyEntryToClipboard(SelectedEntry(), messages_);
            break;
        default:
            event.Skip();
    }
}

void frmMain::OnClose(wxCloseEvent& event) {
    // Whoever shows the modal window still needs it.
    if (IsModalOpen) {
        if (event.CanVeto()) {
            event.Veto();
        } else {
            closesWhenNotModal_ = true;
            EndModalWindows();
        }
        return;
    }
    tmrCheckCommand.Stop();
    picToolbar->LetGo();
    UnloadOtherForms();
    RemoveTrayIcon(trayIcon_);
    if (desktop_ != nullptr) {  // there may have been no time to load
        CloseHelp(*desktop_);
    }
    Destroy();
    wxWakeUpIdle();  // which destroys; what closed the window may not be an event of the toolkit's
}

// A modal window keeps the main window from closing, but not the user from logging off: nothing is
// lost, and the system ends the process.
// NOLINTNEXTLINE(readability-make-member-function-const): the toolkit binds no const methods
void frmMain::OnQueryEndSession(wxCloseEvent& event) {
    event.Skip(!IsModalOpen);
}

void frmMain::EndModalWindows() {
    const wxWindowList windows = wxTopLevelWindows;
    for (wxWindow* window : windows) {
        if (IsModalDialog(window) && window->GetName().StartsWith("frm")) {
            window->Close(true);
        }
    }
}

// One edit is one change: overtyping a selection deletes and inserts, and on GTK that is reported
// twice. So a change waits until the toolkit is done with the edit, but never beyond the next key.
void frmMain::OnBoxText(wxCommandEvent& /*event*/) {
    if (!boxChangePending_) {
        boxChangePending_ = true;
        CallAfter(&frmMain::FlushBoxChange);
    }
}

void frmMain::FlushBoxChange() {
    if (boxChangePending_) {
        boxChangePending_ = false;
        lookup_.OnBoxChanged();
    }
}

void frmMain::OnBoxKeyDown(wxKeyEvent& event) {
    FlushBoxChange();
    const auto key = NavigationKeyOf(event.GetKeyCode());
    if (!key) {
        event.Skip();
    } else if (*key == NavigationKey::Enter && event.HasAnyModifiers()) {
        MoveCaretToEnd();  // the list opens no entry then
    } else {
        lookup_.OnBoxKeyDown(*key);
    }
}

void frmMain::OnBoxFocus(wxFocusEvent& event) {
    if (!std::exchange(caretStays_, false)) {
        // After the toolkit has placed the caret where the mouse was pressed.
        CallAfter([this] { txtAbbrv->SelectAll(); });
    }
    event.Skip();
}

void frmMain::SetMaxBoxLength(std::size_t length) {
    maxBoxLength_ = length;
    txtAbbrv->SetMaxLength(static_cast<unsigned long>(length));
}

void frmMain::OnBoxPaste(wxClipboardTextEvent& event) {
    event.Skip(!PasteWhatFits(*txtAbbrv, maxBoxLength_));
}

void frmMain::OnDoubleClick(wxMouseEvent& event) {
    const wxPoint mouse = wxGetMousePosition();
    if (lblRecNumber->GetScreenRect().Contains(mouse)) {
        GoToRecordNumber(-1);
    } else if (lblRecCount->GetScreenRect().Contains(mouse)) {
        OpenModalForm(kDataInfoWindow);
    } else if (imgAppTitle->GetScreenRect().Contains(mouse)) {
        OpenModalForm(kAboutWindow);
    } else {
        event.Skip();
    }
}

// Minimising hides the window into its icon. Without an icon on the screen it only minimises, as
// nothing could bring it back.
void frmMain::OnIconize(wxIconizeEvent& event) {
    if (event.IsIconized() && HasTrayIcon()) {
        Hide();
    }
    TrayMenuChanged();
    event.Skip();
}

// Windows restores the window itself for the hot key. The toolkit takes no notice of that, and
// would not tell of the window's being minimised any more.
void frmMain::OnShow(wxShowEvent& event) {
    if (event.IsShown()) {
        CatchUpWithSystem();
        // The desktop forgets the band that a window was in when it hides (GTK on X11).
        if (IsStayOnTop && !IsModalOpen) {
            SetTopMost(*this, true);
        }
    }
    TrayMenuChanged();
    event.Skip();
}

void frmMain::OnActivate(wxActivateEvent& event) {
    if (event.GetActive()) {
        CatchUpWithSystem();
    }
    event.Skip();
}

void frmMain::CatchUpWithSystem() {
    CallAfter([this] {
        if (!IsShown() && SystemShows(*this)) {
            RestoreWindow();
        }
    });
}

void frmMain::MinimiseWindow() {
    Iconize();
    // Wayland does not tell of a minimised window.
    if (HasTrayIcon()) {
        Hide();
    }
}

bool frmMain::HasTrayIcon() const {
    return trayIcon_ != nullptr && trayIcon_->IsShown();
}

void frmMain::TrayMenuChanged() {
    if (trayIcon_ != nullptr) {
        trayIcon_->MenuChanged();
    }
}

void frmMain::RestoreWindow() {
    BringForward(*this);
}

void frmMain::ActivateWindow() {
    BringForward(*this);
    if (wxWindow* const modal = TopmostModalDialog()) {
        modal->Raise();
    }
}

// Where the mouse is the row is seen, and must stay under it.
void frmMain::ShowListMenuAtMouse(std::int32_t row) {
    ShowListMenu(row, [this] { PopupMenu(CreateListMenu().get()); });
}

void frmMain::ShowListMenuAtRow() {
    const std::int32_t row = SelectedRow();
    lstAcronyms->ScrollIntoView(row);
    ShowListMenu(row, [this, row] {
        const wxPoint place = lstAcronyms->RowRect(row).GetBottomLeft() + wxPoint(FromDIP(16), 0);
        PopupMenu(CreateListMenu().get(),
                  ScreenToClient(lstAcronyms->Window().ClientToScreen(place)));
    });
}

void frmMain::ShowListMenu(std::int32_t row, const std::function<void()>& popUp) {
    if (isListMenuOpen_ || IsModalOpen) {
        return;
    }
    isListMenuOpen_ = true;
    lstAcronyms->SelectRow(row);
    lstAcronyms->Window().SetFocus();
    const wxWeakRef<frmMain> self(this);
    LetPendingEventsRun();
    if (!self) {
        return;
    }
    if (!IsBeingDeleted() && !IsModalOpen) {
        lookup_.OnListMenu();
        popUp();
    }
    if (self) {
        isListMenuOpen_ = false;
    }
}

void frmMain::OnCheckCommand(wxTimerEvent& /*event*/) {
    if (commandLine_ == "/minimize") {
        MinimiseWindow();
    }
}

std::int32_t frmMain::SelectedRow() const {
    return lstAcronyms->SelectedRow();
}

void frmMain::SelectRow(std::int32_t row) {
    lstAcronyms->SelectRow(row);
    lstAcronyms->ScrollIntoView(row);
}

void frmMain::SetTopRow(std::int32_t row) {
    lstAcronyms->SetTopRow(row);
}

void frmMain::SendKeyToList(NavigationKey key) {
    lstAcronyms->SendKey(key);
}

std::string frmMain::BoxText() const {
    return Utf8Text(txtAbbrv->GetValue());
}

void frmMain::SetBoxText(const std::string& text) {
    const wxString shown = WxText(text);
    if (shown.length() > maxBoxLength_) {
        // A damaged header may say less than its abbreviations have. GTK would show nothing then.
        SetMaxBoxLength(shown.length());
    }
    txtAbbrv->ChangeValue(shown);
}

void frmMain::MoveCaretToEnd() {
    txtAbbrv->SetInsertionPointEnd();
}

void frmMain::SetRecordNumberText(const std::string& text) {
    lblRecNumber->SetLabelText(WxText(text));
}

std::string frmMain::AskText(const std::string& title, const std::string& prompt,
                             const std::string& defaultText) {
    // The box gets the focus back with its caret where it is put meanwhile.
    caretStays_ = txtAbbrv->HasFocus();
    TextQuestion dialog(this, WxText(title), WxText(prompt), WxText(defaultText));
    return dialog.ShowModal() == wxID_OK ? Utf8Text(dialog.GetValue()) : std::string();
}

}  // namespace brelex
