// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dialog.h>
#include <wx/image.h>
#include <wx/modalhook.h>
#include <wx/settings.h>
#include <wx/testing.h>
#include <wx/timer.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include "app/start_up.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"
#include "ui/frmMain.h"

class wxTextCtrl;

namespace brelex {

/// Runs the event loop until `condition` holds; false if it does not within `patienceMs`, which
/// only a test that fails waits for: it is long enough for a busy machine.
bool WaitFor(const std::function<bool()>& condition, int patienceMs = 10000);

/// Runs the events that are under way to this program, and what their handlers put off: simulated
/// keys and clicks have done then what they do here. What another program has to answer, such as
/// the window manager, may still come.
void LetEventsArrive();

/// Runs the event loop for a while, for what must not happen.
void Settle(int ms = 80);

/// Drives a modal window: takes its steps in order, each as soon as the one before returned true.
class ModalDriver final : private wxTimer {
  public:
    explicit ModalDriver(std::vector<std::function<bool()>> steps);

    [[nodiscard]] bool Done() const { return next_ == steps_.size(); }

    // No step is taken between Stop and the next Start, which says how often one may be.
    using wxTimer::Start;
    using wxTimer::Stop;

  private:
    void Notify() override;

    std::vector<std::function<bool()>> steps_;
    std::size_t next_ = 0;
    int ticks_ = 0;
    bool busy_ = false;
};

/// Answers message boxes at once and keeps what they say. Other dialogs are shown.
class MessageBoxes final : public wxModalDialogHook {
  public:
    MessageBoxes() { Register(); }

    std::vector<std::string> texts;
    std::vector<std::string> titles;
    std::vector<long> styles;  ///< buttons and icon, as given to wxMessageDialog

  protected:
    int Enter(wxDialog* dialog) override;
};

/// Answers message boxes at once and calls `look` before, when they would be up: for what stands
/// behind them. Other dialogs are shown.
class BehindMessages final : public wxModalDialogHook {
  public:
    explicit BehindMessages(std::function<void()> look) : look_(std::move(look)) { Register(); }

  protected:
    int Enter(wxDialog* dialog) override;

  private:
    std::function<void()> look_;
};

/// Exceptions in event handlers are told as the program tells them, as long as this lives; else
/// each is a failure of the test.
class ExpectedExceptions {
  public:
    ExpectedExceptions() { ++count; }

    ExpectedExceptions(const ExpectedExceptions&) = delete;
    ExpectedExceptions& operator=(const ExpectedExceptions&) = delete;

    ~ExpectedExceptions() { --count; }

    static int count;  ///< of those that live
};

/// The modal dialog that is open, of several over each other the one that was made last; null if
/// there is none.
[[nodiscard]] wxDialog* OpenModalDialog();

/// Whether a control, or the part of it that is typed into, has the focus.
[[nodiscard]] bool IsFocusIn(const wxWindow& control);

[[nodiscard]] bool SamePictures(const wxBitmap& one, const wxBitmap& other);

/// What a window of ours draws with its Draw(wxDC&), over green.
template <typename Drawn>
[[nodiscard]] wxImage PictureOf(const Drawn& window) {
    wxBitmap bitmap(window.GetClientSize(), 24);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxGREEN_BRUSH);
    dc.Clear();
    window.Draw(dc);
    dc.SelectObject(wxNullBitmap);
    return bitmap.ConvertToImage();
}

[[nodiscard]] wxColour ColourAt(const wxImage& image, int x, int y);

/// A colour of the system as pixels have it.
[[nodiscard]] wxColour SystemColour(wxSystemColour colour);

/// The started program over a small database of a test's own, its main window shown and active.
class MainWindowTest : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the program over `records` and waits until its main window can be typed into.
    void Start(const std::vector<std::string>& records, const std::string& commandLine = "");

    /// The same over the bytes of a database file.
    void StartWith(const std::string& databaseFile, const std::string& commandLine);

    [[nodiscard]] wxWindow* Control(const char* name) const;
    [[nodiscard]] wxTextCtrl& Box() const;
    [[nodiscard]] std::string BoxText() const;
    [[nodiscard]] std::string LabelText(const char* name) const;

    /// The record text of the selected row; empty if there is none.
    [[nodiscard]] std::string SelectedRecord() const;

    /// Types with real key events and waits until the box shows `shown`.
    void Type(const char* keys, const std::string& shown);

    void SelectAllInBox();

    /// Waits until typed keys arrive in the look-up box.
    void GiveBoxTheKeyboard();

    /// Waits until keys that are typed arrive in the main window, if it is still there to be seen.
    void AwaitReturnToMain() const;

    /// Whether the main window is minimised, which hides it where a notification area shows its
    /// icon: the desktop may forget then that it was minimised.
    [[nodiscard]] bool IsMinimised() const;

    /// Waits until the main window is shown, not minimised, and in front.
    [[nodiscard]] bool IsBack() const;

    /// The name of the modal window that `open` opens, which is closed at once.
    [[nodiscard]] std::string NameOfOpened(const std::function<void()>& open,
                                           const std::function<void()>& look = {}) const;

    TestFolder folder_;
    FakeMessageSink messages_;
    FakeFolderPicker picker_;
    FakeTemporaryFiles files_{folder_.Text()};
    FakeDesktop desktop_;
    std::vector<bool> runAtStartup_;  ///< what was asked of the log-on
    bool runAtStartupWorks_ = true;
    std::unique_ptr<StartUp> startUp_;
    frmMain* window_ = nullptr;
    wxUIActionSimulator user_;
};

/// A modal window over the main window.
class SideWindowTest : public MainWindowTest {
  protected:
    /// Opens the window `name`, which `open` shows modally, works in it when it is active, and
    /// closes it if it is still open.
    void InSideWindow(const char* name, const std::function<void()>& open,
                      const std::function<void()>& work);

    /// The open window, or the one that was open last.
    [[nodiscard]] wxDialog& Side() const { return *side_; }

    /// A control of the open window.
    template <typename Kind = wxWindow>
    [[nodiscard]] Kind& In(const std::string& name) const {
        return dynamic_cast<Kind&>(*wxWindow::FindWindowByName(name, side_));
    }

    [[nodiscard]] std::string Label(const char* name) const;

    /// Clicks with the mouse.
    void Click(const char* name);

    [[nodiscard]] bool HasFocus(const char* name) const;

  private:
    // Whether keys arrive in the open window.
    [[nodiscard]] bool SideHasKeyboard() const;

    wxWeakRef<wxDialog> side_;  // most are destroyed when they close
};

/// The text on the clipboard.
[[nodiscard]] std::string ClipboardText();

void PutOnClipboard(const wxString& text);

/// Entries for tests that need no special ones.
[[nodiscard]] std::vector<std::string> SampleEntries();

}  // namespace brelex
