// SPDX-License-Identifier: MIT
#include "ui/frmMain.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <vector>

#include <wx/app.h>
#include <wx/utils.h>

#include "lookup/desktop_answers.h"
#include "platform/desktop/unopened_menus.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/window/activation_token.h"
#include "platform/window/bring_forward.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"
#include "ui/controls/modGeneral.h"
#include "ui/controls/surface.h"
#include "ui/controls/toolbar.h"
#include "ui/main/main_menus.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 760;
constexpr double kInnerHeight = 572;
constexpr double kMargin = 8;
constexpr double kTitleWidth = 190;

constexpr int kCommandDelayMs = 500;

// Adds the address without its scheme, from the first "www" on.
wxString CaptionWith(const std::string& address) {
    const auto www = address.find("www");
    return WxText(std::string(kAppTitle) + " (" +
                  (www == std::string::npos ? address : address.substr(www)) + ")");
}

}  // namespace

frmMain::frmMain(ProgramValues& values, const MainSurroundings& surroundings)
    : wxFrame(nullptr, wxID_ANY, CaptionWith(values.info.homePage), wxDefaultPosition,
              wxDefaultSize, wxDEFAULT_FRAME_STYLE & ~(wxRESIZE_BORDER | wxMAXIMIZE_BOX)),
      values_(values),
      surroundings_(surroundings),
      units_(*this),
      surface_(new Surface(this)),
      // Waits until the toolbar is done with the mouse, because a command may end the program.
      picToolbar(new Toolbar(
          surface_, units_,
          {.onHot = [this](int icon) { status_.ShowHintOfIcon(icon); },
           .onAction = [this](Command command) { CallAfter([this, command] { Run(command); }); }})),
      title_(*surface_),
      lookup_(*surface_, units_, values,
              {.onEntryChosen = [this] { Run(Command::ViewEntry); },
               .onNumberChanged = [this](const wxString& number) { status_.ShowNumber(number); },
               .onMenuWanted = [this](const wxPoint& place) { PopUpListMenu(place); }}),
      status_(*surface_, units_),
      documents_(*this, {values.AppFolder, surroundings.programName}, surroundings.desktop,
                 [this](const std::function<void()>& show) {
                     const SideWindows::ModalScope modal(sideWindows_);
                     show();
                 }),
      sideWindows_(
          *this, values, surroundings.files,
          {.goToRecord = [this](RecordNumber number) { GoToRecordNumber(number); },
           .selectedEntry = [this] { return SelectedEntry(); },
           .openAddress = [this](const std::string& target) { documents_.OpenAddress(target); },
           .onModal = [this](bool begins) { OnModal(begins); }}),
      icons_(AppIcons()),
      tray_(*this, icons_,
            {.isModalOpen = [this] { return IsModalOpen(); },
             .raiseModal = [this] { sideWindows_.RaiseModal(); },
             .onCommand = [this](Command command) { Run(command); }}),
      tmrCheckCommand(this),
      requests_(EventsOfRequests()) {
    SetName("frmMain");
    SetIcons(icons_);
    SetMenuBar(CreateMainMenus());
    GetMenuBar()->Enable(IdOf(Command::StayOnTop), CanStayOnTop());
    LetGoOfUnopenedMenus();
    PlaceControls();
    BindEvents();
    std::vector<ControlHint> hints = lookup_.Hints();
    hints.push_back(title_.Hint(values));
    status_.WatchHints(hints);
    CheckRunAtStartup(true);
    lookup_.GiveBoxTheFocus();
    tmrCheckCommand.StartOnce(kCommandDelayMs);
}

// Destroys the controls first, because they still send events while they are destroyed.
frmMain::~frmMain() {
    DestroyChildren();
}

void frmMain::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    surface_->ForgetAreas();
    const int margin = px(kMargin);
    const int boxLeft = 2 * margin + px(kTitleWidth);
    // If the screen is too narrow, the instruction takes more lines; if it is too low, the list
    // gets fewer rows.
    wxSize inner(std::max(px(kInnerWidth), boxLeft + lookup_.InstructionWidth() + margin),
                 px(kInnerHeight));
    inner.DecTo(LargestInside(*this));
    picToolbar->SetSize(0, 0, inner.x, picToolbar->GetBestSize().y);
    const int top = picToolbar->GetSize().y;
    const int belowBox = lookup_.PlaceBox(boxLeft, top, inner.x - boxLeft - margin);
    // One pixel lower, because the toolbar would cover the upper edge of the frame.
    title_.Place({margin, top + 1, px(kTitleWidth), belowBox - top - 1}, units_);
    // The list ends with a full row, and so does the window.
    const int belowList = status_.Height() + margin;
    inner.y = belowList + lookup_.PlaceList(margin, belowBox + margin, inner.x - 2 * margin,
                                            inner.y - belowList);
    status_.LayoutStatusBar(inner, px(kTitleWidth), values_);
    surface_->FillWindow(inner);
}

void frmMain::BindEvents() {
    Bind(wxEVT_SHOW, &frmMain::OnShow, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmMain::OnClose, this);
    wxTheApp->Bind(wxEVT_QUERY_END_SESSION, &frmMain::OnQueryEndSession, this);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent& event) { Run(CommandOf(event.GetId())); },
        IdOf(kCommands.front().command), IdOf(kCommands.back().command));
    // GTK does not report that the mouse leaves while a menu is open.
    Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
        picToolbar->LetGo();
        ExplainMenu(event);
        event.Skip();
    });
    Bind(wxEVT_MENU_CLOSE, [this](wxMenuEvent& event) {
        status_.ShowHint("");
        event.Skip();
    });
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        units_.Rescale(ScaleOf(event));
        picToolbar->Rescale();
        // The toolkit first gives the window the size that Windows suggests.
        CallAfter([this] { PlaceControls(); });
    });
    Bind(wxEVT_TIMER, &frmMain::OnCheckCommand, this, tmrCheckCommand.GetId());
    // If a control has no window of its own, its mouse events go to the window under it.
    for (wxWindow* window :
         std::initializer_list<wxWindow*>{surface_, &status_.NumberWindow(), &status_.CountWindow(),
                                          &title_.Label(), &title_.Image()}) {
        window->Bind(wxEVT_LEFT_DCLICK, &frmMain::OnDoubleClick, this);
    }
}

// A key or a click may arrive between the moment when the window closes and its destruction. What
// it opened would outlive the window.
void frmMain::Run(Command command) {
    if (wxTheApp->IsScheduledForDestruction(this)) {
        return;
    }
    switch (command) {
        case Command::Exit:
            Close();
            break;
        case Command::GoToRow:
            GoToRecordNumber(kAskForRecord);
            break;
        case Command::StayOnTop:
            CheckStayOnTop(!IsStayOnTop);
            break;
        case Command::RunAtStartup:
            CheckRunAtStartup(!runsAtStartup_);
            break;
        case Command::Help:
            documents_.ShowHelp();
            break;
        case Command::ReadMe:
            documents_.ShowReadMe();
            break;
        case Command::ViewEntry:
            if (lookup_.SelectedRow() >= 0) {
                sideWindows_.OpenEntryViewer();
            }
            break;
        case Command::CopyEntry: {
            WxMessageSink messages(this);
            CopyEntryToClipboard(SelectedEntry(), messages);
        } break;
        default:
            OpenModalForm(DetailsOf(command).window);
            break;
    }
}

void frmMain::OnModal(bool begins) {
    if (begins) {
        picToolbar->LetGo();
    }
    tray_.MenuChanged();
    if (IsStayOnTop) {
        SetTopMost(*this, !begins);
    }
}

// A disabled item cannot be selected, so the hint on it comes with its menu.
void frmMain::ExplainMenu(const wxMenuEvent& event) {
    if (!CanStayOnTop() && event.GetMenu() != nullptr &&
        event.GetMenu()->FindItem(IdOf(Command::StayOnTop)) != nullptr) {
        status_.ShowHint("On Wayland, windows cannot stay on top");
    }
}

// The check mark shows the user's choice even if the system does not carry it out.
void frmMain::CheckStayOnTop(bool stays) {
    IsStayOnTop = stays;
    GetMenuBar()->Check(IdOf(Command::StayOnTop), stays);
    SetTopMost(*this, stays);
}

void frmMain::CheckRunAtStartup(bool runs) {
    runsAtStartup_ = runs;
    GetMenuBar()->Check(IdOf(Command::RunAtStartup), runs);
    surroundings_.setRunAtStartup(values_.AppFolder, surroundings_.programName, runs);
}

void frmMain::ShowMessage(const Message& message) {
    const SideWindows::ModalScope modal(sideWindows_);
    WxMessageSink(nullptr).Show(message);  // over the window in front
}

void frmMain::GoToRecordNumber(RecordNumber nRecordNumber) {
    std::optional<SideWindows::ModalScope> modal;
    if (nRecordNumber == kAskForRecord) {
        modal.emplace(sideWindows_);  // the command asks a question and may show an error
    }
    lookup_.GoToRecordNumber(nRecordNumber);
}

std::string_view frmMain::SelectedEntry() const {
    const std::int32_t row = lookup_.SelectedRow();
    return row < 0 ? std::string_view() : values_.AcronymList->RowText(row);
}

void frmMain::PopUpListMenu(const wxPoint& place) {
    if (!wxTheApp->IsScheduledForDestruction(this) && !IsModalOpen()) {
        PopupMenu(CreateListMenu().get(),
                  place == wxDefaultPosition ? place : ScreenToClient(place));
    }
}

// Requests wait until the desktop has its answer, because what they start may wait for the user.
EntryRequestEvents frmMain::EventsOfRequests() {
    return {
        .onShow =
            [this](const std::string& id, const std::string& /*activationToken*/) {
                CallAfter([this, id] { ShowRequested(id); });
            },
        .onCopy = [this](const std::string& id) { CallAfter([this, id] { CopyRequested(id); }); }};
}

// Behind a modal window, the entry stays as it is.
void frmMain::ShowRequested(const std::string& id) {
    if (wxTheApp->IsScheduledForDestruction(this)) {
        return;
    }
    if (!id.empty() && !IsModalOpen()) {
        lookup_.ShowChosen(id);
    }
    tray_.BringWindowForward();
}

void frmMain::CopyRequested(const std::string& id) {
    if (const auto row = RowOfAnswer(*values_.AcronymList, id)) {
        WxMessageSink messages(this);
        CopyEntryToClipboard(values_.AcronymList->RowText(*row), messages);
    }
}

// The desktop forgets a window's band when the window is hidden (GTK on X11).
void frmMain::OnShow(wxShowEvent& event) {
    if (event.IsShown() && IsStayOnTop && !IsModalOpen()) {
        SetTopMost(*this, true);
    }
    event.Skip();
}

void frmMain::OnDoubleClick(wxMouseEvent& event) {
    struct Place {
        const wxWindow& window;
        Command command;
    };

    const wxPoint mouse = wxGetMousePosition();
    for (const Place& place : {Place{status_.NumberWindow(), Command::GoToRow},
                               Place{status_.CountWindow(), Command::DatabaseInfo},
                               Place{title_.Image(), Command::About}}) {
        if (place.window.GetScreenRect().Contains(mouse)) {
            Run(place.command);
            return;
        }
    }
    event.Skip();
}

void frmMain::OnClose(wxCloseEvent& event) {
    // The code that shows the modal window still needs this one.
    if (IsModalOpen()) {
        if (event.CanVeto()) {
            event.Veto();
        } else {
            sideWindows_.CloseMainWhenNotModal();
        }
        return;
    }
    tmrCheckCommand.Stop();
    picToolbar->LetGo();
    sideWindows_.UnloadOtherForms();
    tray_.Remove();
    documents_.CloseHelpViewer();
    Destroy();
    wxWakeUpIdle();  // this destroys the window even outside an event of the toolkit
}

// A modal window prevents the main window from closing, but it must not prevent the user from
// logging off. Nothing would be lost, and the system ends the process.
// NOLINTNEXTLINE(readability-make-member-function-const): the toolkit binds no const methods
void frmMain::OnQueryEndSession(wxCloseEvent& event) {
    event.Skip(!IsModalOpen());
}

void frmMain::OnCheckCommand(wxTimerEvent& /*event*/) {
    if (surroundings_.commandLine == "/minimize") {
        tray_.MinimizeWindow();
    }
}

}  // namespace brelex
