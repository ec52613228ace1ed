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

/// Runs the event loop until `condition` holds. Returns false if it does not within `patienceMs`.
/// The default is long enough for a busy machine; only a failing test waits that long.
bool WaitFor(const std::function<bool()>& condition, int patienceMs = 10000);

/// Runs the events that are on their way to this program, and what their handlers postpone.
/// Afterward, simulated keys and clicks have had all their effects in this program. An answer from
/// another program, such as the window manager, may still be on its way.
void LetEventsArrive();

/// Runs the event loop for a while, for what must not happen: false as soon as `condition` does not
/// hold.
[[nodiscard]] bool StaysFor(int ms, const std::function<bool()>& condition);

/// Waits until the frame of a window has kept its place and size for a while. A window whose size
/// has changed may move to the middle again soon after.
[[nodiscard]] bool ComesToRest(const wxTopLevelWindow& window);

/// Runs the event loop for a while.
void Settle(int ms = 80);

/// Drives a modal window. Takes its steps in order, each as soon as the previous one has returned
/// true.
class ModalDriver final : private wxTimer {
  public:
    explicit ModalDriver(std::vector<std::function<bool()>> steps);

    [[nodiscard]] bool Done() const { return next_ == steps_.size(); }

    // No step runs between Stop and the next Start, whose interval limits how often a step runs.
    using wxTimer::Start;
    using wxTimer::Stop;

  private:
    void Notify() override;

    std::vector<std::function<bool()>> steps_;
    std::size_t next_ = 0;
    int ticks_ = 0;
    bool busy_ = false;
};

/// Answers message boxes at once and records what they say. Lets other dialogs open.
class MessageBoxes final : public wxModalDialogHook {
  public:
    MessageBoxes() { Register(); }

    std::vector<std::string> texts;
    std::vector<std::string> titles;
    std::vector<long> styles;  ///< buttons and icon, as given to wxMessageDialog

  protected:
    int Enter(wxDialog* dialog) override;
};

/// Answers message boxes at once, but first calls `look`, at the moment when a box would be open.
/// Meant for checking what is behind it. Lets other dialogs open.
class BehindMessages final : public wxModalDialogHook {
  public:
    explicit BehindMessages(std::function<void()> look) : look_(std::move(look)) { Register(); }

  protected:
    int Enter(wxDialog* dialog) override;

  private:
    std::function<void()> look_;
};

/// During its lifetime, exceptions in event handlers are reported as the program reports them.
/// Otherwise each fails the test.
class ExpectedExceptions {
  public:
    ExpectedExceptions() { ++count; }

    ExpectedExceptions(const ExpectedExceptions&) = delete;
    ExpectedExceptions& operator=(const ExpectedExceptions&) = delete;

    ~ExpectedExceptions() { --count; }

    static int count;  ///< how many of these exist
};

/// The open modal dialog, or the newest if there are several; null if there is none.
[[nodiscard]] wxDialog* OpenModalDialog();

/// Whether a control, or the part of it that takes typing, has the focus.
[[nodiscard]] bool IsFocusIn(const wxWindow& control);

[[nodiscard]] bool SamePictures(const wxBitmap& one, const wxBitmap& other);

/// A picture of one of our windows, as its Draw(wxDC&) draws it over green.
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

/// A color of the system, as it appears in pixels.
[[nodiscard]] wxColour SystemColour(wxSystemColour colour);

/// Starts the program over a small database, with its main window shown and active.
class MainWindowTest : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the program over `records` and waits until its main window accepts typing.
    void Start(const std::vector<std::string>& records, const std::string& commandLine = "");

    /// Does the same over the bytes of a database file.
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

    /// Waits until typed keys arrive in the main window, if the main window still exists and is
    /// shown.
    void AwaitReturnToMain() const;

    /// Whether the main window is minimized. Where a notification area shows its icon, minimizing
    /// hides the window, and the desktop may then forget that it was minimized.
    [[nodiscard]] bool IsMinimised() const;

    /// Waits until the main window is shown, not minimized, and in front.
    [[nodiscard]] bool IsBack() const;

    /// The name of the modal window that `open` opens. Closes the window at once.
    [[nodiscard]] std::string NameOfOpened(const std::function<void()>& open,
                                           const std::function<void()>& look = {}) const;

    TestFolder folder_;
    FakeMessageSink messages_;
    FakeFolderPicker picker_;
    FakeTemporaryFiles files_{folder_.Text()};
    FakeDesktop desktop_;
    std::vector<bool> runAtStartup_;  ///< the requests to run at log-on
    bool runAtStartupWorks_ = true;
    std::unique_ptr<StartUp> startUp_;
    frmMain* window_ = nullptr;
    wxUIActionSimulator user_;
};

/// A modal window over the main window.
class SideWindowTest : public MainWindowTest {
  protected:
    /// Opens the window `name`, which `open` shows modally. Once it is active, works in it, and
    /// then closes it if it is still open.
    void InSideWindow(const char* name, const std::function<void()>& open,
                      const std::function<void()>& work);

    /// The open window, or the one that was open last.
    [[nodiscard]] wxDialog& Side() const { return *side_; }

    /// A control in the open window.
    template <typename Kind = wxWindow>
    [[nodiscard]] Kind& In(const std::string& name) const {
        return dynamic_cast<Kind&>(*wxWindow::FindWindowByName(name, side_));
    }

    [[nodiscard]] std::string Label(const char* name) const;

    /// Clicks the control with the mouse.
    void Click(const char* name);

    [[nodiscard]] bool HasFocus(const char* name) const;

  private:
    // Whether typed keys arrive in the open window.
    [[nodiscard]] bool SideHasKeyboard() const;

    wxWeakRef<wxDialog> side_;  // weak, because most windows are destroyed when they close
};

/// The text on the clipboard.
[[nodiscard]] std::string ClipboardText();

void PutOnClipboard(const wxString& text);

/// Entries for tests that need no special ones.
[[nodiscard]] std::vector<std::string> SampleEntries();

}  // namespace brelex
