// SPDX-License-Identifier: MIT
#include "tests/ui/ui_test_support.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "toolkit/wx_text.h"

namespace brelex {

bool WaitFor(const std::function<bool()>& condition, int patienceMs) {
    const wxStopWatch watch;
    do {
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
        wxTheApp->ProcessIdle();
        if (condition()) {
            return true;
        }
        wxMilliSleep(5);  // yielding alone would starve the toolkit's frame clock
    } while (watch.Time() < patienceMs);
    return condition();
}

void LetEventsArrive() {
    constexpr int kRounds = 3;  // a handler may put off work, and that again
    for (int i = 0; i < kRounds; ++i) {
        AwaitSimulatedInput();
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
        wxTheApp->ProcessPendingEvents();
        wxTheApp->ProcessIdle();
    }
}

bool StaysFor(int ms, const std::function<bool()>& condition) {
    return !WaitFor([&] { return !condition(); }, ms);
}

bool ComesToRest(const wxTopLevelWindow& window) {
    return WaitFor([&] {
        const wxRect frame = FrameOnScreen(window);
        return StaysFor(200, [&] { return FrameOnScreen(window) == frame; });
    });
}

void Settle(int ms) {
    WaitFor([] { return false; }, ms);
}

int ExpectedExceptions::count = 0;

wxDialog* OpenModalDialog() {
    wxDialog* last = nullptr;
    for (wxWindow* window : wxTopLevelWindows) {
        auto* const dialog = dynamic_cast<wxDialog*>(window);
        // On Windows a dialog that was ended is modal until it returns.
        last = dialog != nullptr && dialog->IsModal() && dialog->IsShown() ? dialog : last;
    }
    return last;
}

bool IsFocusIn(const wxWindow& control) {
    const wxWindow* const focus = wxWindow::FindFocus();
    return focus != nullptr && (focus == &control || focus->GetParent() == &control);
}

bool SamePictures(const wxBitmap& one, const wxBitmap& other) {
    const wxImage a = one.ConvertToImage();
    const wxImage b = other.ConvertToImage();
    const auto bytes =
        static_cast<std::size_t>(a.GetWidth()) * static_cast<std::size_t>(a.GetHeight()) * 3;
    return a.GetSize() == b.GetSize() && std::memcmp(a.GetData(), b.GetData(), bytes) == 0;
}

wxColour ColourAt(const wxImage& image, int x, int y) {
    return {image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)};
}

wxColour SystemColour(wxSystemColour colour) {
    const wxColour c = wxSystemSettings::GetColour(colour);
    return {c.Red(), c.Green(), c.Blue()};
}

ModalDriver::ModalDriver(std::vector<std::function<bool()>> steps) : steps_(std::move(steps)) {
    constexpr int kStepMs = 50;
    Start(kStepMs);
}

void ModalDriver::Notify() {
    constexpr int kMostTicks = 600;
    if (busy_ || Done()) {
        return;
    }
    busy_ = true;
    if (++ticks_ > kMostTicks) {
        // Or else a failure would hang in the modal window for ever.
        if (wxDialog* const dialog = OpenModalDialog()) {
            dialog->EndModal(wxID_CANCEL);
        }
    } else if (steps_[next_]()) {
        ++next_;
    }
    busy_ = false;
}

int MessageBoxes::Enter(wxDialog* dialog) {
    auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
    if (box == nullptr) {
        return wxID_NONE;
    }
    texts.push_back(Utf8Text(box->GetMessage()));
    titles.push_back(Utf8Text(box->GetTitle()));
    styles.push_back(box->GetMessageDialogStyle());
    return wxID_OK;
}

int BehindMessages::Enter(wxDialog* dialog) {
    if (dynamic_cast<wxMessageDialog*>(dialog) == nullptr) {
        return wxID_NONE;
    }
    look_();
    return wxID_OK;
}

void MainWindowTest::SetUp() {
    Start(SampleEntries());
}

void MainWindowTest::TearDown() {
    if (window_ != nullptr) {
        const wxSize display = wxGetDisplaySize();
        user_.MouseMove(display.x - 1, display.y - 1);  // where it hovers over no later window
        const wxWeakRef<wxWindow> closing(window_);
        window_->Destroy();
        window_ = nullptr;
        EXPECT_TRUE(WaitFor([&] { return closing == nullptr; }));
        LetEventsArrive();
    }
}

void MainWindowTest::Start(const std::vector<std::string>& records,
                           const std::string& commandLine) {
    StartWith(DatabaseBytes(records), commandLine);
}

void MainWindowTest::StartWith(const std::string& databaseFile, const std::string& commandLine) {
    TearDown();
    startUp_.reset();
    folder_.Write("Acronyms.dat", databaseFile);
    startUp_ = std::make_unique<StartUp>();
    window_ = startUp_->Run(
        {{files_, desktop_, "brevilexicon", commandLine,
          [this](const std::string& /*folder*/, const std::string& /*name*/, bool enable) {
              runAtStartup_.push_back(enable);
              return runAtStartupWorks_;
          }},
         messages_,
         picker_,
         folder_.Text(),
         [] { return 0.0F; }});
    ASSERT_NE(window_, nullptr);
    window_->Show();
    GiveBoxTheKeyboard();
}

// Without the focus no simulated key arrives. The desktop may still be giving it to what is left of
// the window before.
void MainWindowTest::GiveBoxTheKeyboard() {
    bool active = false;
    for (int i = 0; i < 8 && !active; ++i) {
        window_->Raise();
        Box().SetFocus();
        active = WaitFor(
            [this] { return HasKeyboard(*window_) && wxWindow::FindFocus() == &Box(); }, 1000);
    }
    ASSERT_TRUE(active);
    LetEventsArrive();
}

void MainWindowTest::AwaitReturnToMain() const {
    LetEventsArrive();
    const bool isThere = wxTopLevelWindows.Find(window_) != nullptr && !IsMinimised();
    if (isThere && OpenModalDialog() == nullptr) {
        WaitFor([this] { return HasKeyboard(*window_); }, 1000);
    }
}

wxWindow* MainWindowTest::Control(const char* name) const {
    return wxWindow::FindWindowByName(name, window_);
}

wxTextCtrl& MainWindowTest::Box() const {
    return dynamic_cast<wxTextCtrl&>(*Control("txtAbbrv"));
}

std::string MainWindowTest::BoxText() const {
    return Utf8Text(Box().GetValue());
}

std::string MainWindowTest::LabelText(const char* name) const {
    return Utf8Text(dynamic_cast<wxStaticText&>(*Control(name)).GetLabelText());
}

std::string MainWindowTest::SelectedRecord() const {
    const std::int32_t row = window_->List().SelectedRow();
    return row < 0 ? std::string() : std::string(startUp_->Values().AcronymList->RowText(row));
}

void MainWindowTest::Type(const char* keys, const std::string& shown) {
    for (const char* key = keys; *key != '\0'; ++key) {
        user_.Char(*key);
    }
    EXPECT_TRUE(WaitFor([&] { return BoxText() == shown; })) << BoxText();
    LetEventsArrive();
}

void MainWindowTest::SelectAllInBox() {
    user_.Char(WXK_HOME);
    user_.Char(WXK_END, wxMOD_SHIFT);
    EXPECT_TRUE(WaitFor([&] { return Utf8Text(Box().GetStringSelection()) == BoxText(); }));
}

void SideWindowTest::InSideWindow(const char* name, const std::function<void()>& open,
                                  const std::function<void()>& work) {
    ModalDriver driver({[&] {
                            side_ = dynamic_cast<wxDialog*>(wxWindow::FindWindowByName(name));
                            return SideHasKeyboard();
                        },
                        [&] {
                            LetEventsArrive();
                            work();
                            return true;
                        },
                        [&] {
                            if (side_ && side_->IsModal()) {
                                side_->EndModal(wxID_CANCEL);
                            }
                            return true;
                        }});
    open();
    // Now and then Wine loses a key while it gives the focus to a window.
    if (!WaitFor([&] { return driver.Done(); }) && wxWindow::FindWindowByName(name) == nullptr) {
        GiveBoxTheKeyboard();
        open();
    }
    EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    AwaitReturnToMain();
}

bool SideWindowTest::SideHasKeyboard() const {
    wxWindow* const focus = wxWindow::FindFocus();
    return side_ && side_->IsShown() && HasKeyboard(*side_) && focus != nullptr &&
           wxGetTopLevelParent(focus) == side_.get();
}

namespace {

// The window manager may see a click first and pass it on only then.
class ButtonReleases final : public wxEventFilter {
  public:
    ButtonReleases() { wxEvtHandler::AddFilter(this); }

    ButtonReleases(const ButtonReleases&) = delete;
    ButtonReleases& operator=(const ButtonReleases&) = delete;

    ~ButtonReleases() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        count_ += event.GetEventType() == wxEVT_LEFT_UP ? 1 : 0;
        return Event_Skip;
    }

    [[nodiscard]] int Count() const { return count_; }

  private:
    int count_ = 0;
};

}  // namespace

std::string SideWindowTest::Label(const char* name) const {
    return Utf8Text(In<wxStaticText>(name).GetLabelText());
}

void SideWindowTest::Click(const char* name) {
    wxRect area;
    do {  // the display may be moving the window
        area = In(name).GetScreenRect();
        // Where a check box has its text and not only room behind it.
        user_.MouseMove(area.x + std::min(area.width / 2, 40), area.y + area.height / 2);
        LetEventsArrive();
    } while (In(name).GetScreenRect() != area);
    const ButtonReleases releases;
    user_.MouseClick();
    WaitFor([&] { return releases.Count() > 0; }, 1000);  // none from what is disabled
    LetEventsArrive();
}

bool SideWindowTest::HasFocus(const char* name) const {
    return IsFocusIn(In(name));
}

std::string ClipboardText() {
    const wxClipboardLocker clipboard;
    wxTextDataObject text;
    if (!clipboard || !wxTheClipboard->GetData(text)) {
        return {};
    }
    return Utf8Text(text.GetText());
}

void PutOnClipboard(const wxString& text) {
    const wxClipboardLocker clipboard;
    ASSERT_TRUE(wxTheClipboard->SetData(new wxTextDataObject(text)));
}

bool MainWindowTest::IsMinimised() const {
    return window_->IsIconized() || !window_->IsShown();
}

bool MainWindowTest::IsBack() const {
    return WaitFor([&] { return !IsMinimised() && window_->IsActive(); });
}

std::string MainWindowTest::NameOfOpened(const std::function<void()>& open,
                                         const std::function<void()>& look) const {
    std::string name;
    ModalDriver driver({[&] {
        wxDialog* const dialog = OpenModalDialog();
        if (dialog == nullptr) {
            return false;
        }
        name = Utf8Text(dialog->GetName());
        if (look) {
            look();
        }
        dialog->EndModal(wxID_CANCEL);
        return true;
    }});
    open();
    EXPECT_TRUE(WaitFor([&] { return driver.Done(); }));
    AwaitReturnToMain();
    return name;
}

std::vector<std::string> SampleEntries() {
    std::vector<std::string> records = {"AB\tAddress Bus",
                                        "AB\tAudio Bus",
                                        "ABC\tAtanasoff-Berry Computer",
                                        "R&D\tResearch and Development",
                                        "XML\tExtensible Markup Language",
                                        "XSS\tCross-Site Scripting"};
    for (int i = 0; i < 1500; ++i) {
        records.push_back("M" + std::to_string(10000 + i) + "\tMiddle entry");
    }
    return records;
}

}  // namespace brelex
