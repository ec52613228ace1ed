// SPDX-License-Identifier: MIT
// What the windows ask of Windows.
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/textctrl.h>
#include <wx/timer.h>

#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

#include "base/file_io.h"
#include "platform/desktop/command_line.h"
#include "platform/desktop/modBrowseFolder.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/list/text_columns.h"
#include "platform/system/wide_text.h"
#include "tests/platform/screen.h"
#include "tests/support/named_case.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/controls/modGeneral.h"

namespace brelex {
namespace {

std::string TextOf(HWND window) {
    std::wstring text(500, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 500)));
    return Utf8OfWide(text);
}

// Keeps what this thread's windows are sent while it lives.
class SentMessages {
  public:
    struct Sent {
        UINT message;
        WPARAM wParam;
        std::string windowTitle;
    };

    explicit SentMessages(UINT wanted) {
        current = this;
        wanted_ = wanted;
        hook_ = SetWindowsHookExW(WH_CALLWNDPROC, &OnMessage, nullptr, GetCurrentThreadId());
    }

    SentMessages(const SentMessages&) = delete;
    SentMessages& operator=(const SentMessages&) = delete;

    ~SentMessages() {
        UnhookWindowsHookEx(hook_);
        current = nullptr;
    }

    std::vector<Sent> sent;

  private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam) {
        const auto* message = reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code >= 0 && message->message == current->wanted_) {
            current->sent.push_back({message->message, message->wParam, TextOf(message->hwnd)});
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline SentMessages* current = nullptr;
    UINT wanted_ = 0;
    HHOOK hook_ = nullptr;
};

TEST_F(MainWindowTest, StartingAsksForTheHotKeyCtrlShiftG) {
    const SentMessages messages(WM_SETHOTKEY);
    Start(SampleEntries());
    ASSERT_EQ(messages.sent.size(), 1U);
    EXPECT_EQ(messages.sent[0].wParam, 839U);
    EXPECT_EQ(messages.sent[0].windowTitle.rfind("Brevilexicon (", 0), 0U);
}

// The system asks; when it then ends the session it ends the process itself.
TEST(StartUpOnWindows, ALogOffThatArrivesWhileLoadingClosesTheWindowAfterwards) {
    const TestFolder folder;
    folder.Write("Acronyms.dat", DatabaseBytes(NumberedRecords(3000)));
    FakeMessageSink messages;
    FakeFolderPicker picker;
    FakeTemporaryFiles files(folder.Text());
    FakeDesktop desktop;
    StartUp startUp;
    auto* const question = new wxCloseEvent(wxEVT_QUERY_END_SESSION);
    question->SetCanVeto(true);
    wxTheApp->QueueEvent(question);
    frmMain* const window =
        startUp.Run({{files, desktop, "brevilexicon", "",
                      [](const std::string&, const std::string&, bool) { return true; }},
                     messages,
                     picker,
                     folder.Text(),
                     [] { return 0.0F; }});
    ASSERT_NE(window, nullptr);
    window->Show();
    EXPECT_TRUE(WaitFor([&] { return wxTopLevelWindows.Find(window) == nullptr; }));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "~bx6120.tmp"));
}

TEST_F(MainWindowTest, TheListIsTheSystemsListView) {
    std::wstring name(100, L'\0');
    name.resize(static_cast<std::size_t>(
        GetClassNameW(window_->List().Window().GetHWND(), name.data(), 100)));
    EXPECT_EQ(Utf8OfWide(name), "SysListView32");
}

TEST_F(MainWindowTest, TheRowFoundIsPlainToSeeWhileTheBoxHasTheFocus) {
    Type("xs", "XS");
    const wxRect list = window_->List().Window().GetScreenRect();
    ASSERT_EQ(SelectedRecord(), "XSS\tCross-Site Scripting");
    const std::int32_t row = window_->List().SelectedRow() - window_->List().TopRow();
    HDC const screen = GetDC(nullptr);
    const int middle = list.y + window_->List().RowHeight() * row + window_->List().RowHeight() / 2;
    const COLORREF colour = GetPixel(screen, list.x + list.width / 2, middle);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(colour, GetSysColor(COLOR_HIGHLIGHT));
}

BOOL CALLBACK KeepIfDialog(HWND window, LPARAM target) {
    std::wstring name(20, L'\0');
    name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), 20)));
    if (name != L"#32770" || IsWindowVisible(window) == 0) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(target) = window;
    return FALSE;
}

// The folder browser while it is up.
HWND BrowserWindow() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &KeepIfDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool Shows(HWND dialog, const std::string& text) {
    for (HWND child = FindWindowExW(dialog, nullptr, nullptr, nullptr); child != nullptr;
         child = FindWindowExW(dialog, child, nullptr, nullptr)) {
        if (TextOf(child) == text) {
            return true;
        }
    }
    return false;
}

class BrowseForFolderTest : public testing::Test {
  protected:
    TestFolder folder_;
    bool titleShown_ = false;

    // Waits for the browser, looks at its title and presses a button.
    std::function<bool()> Press(int button) {
        return [this, button] {
            HWND const browser = BrowserWindow();
            if (browser == nullptr) {
                return false;
            }
            titleShown_ = Shows(browser, "Location of Acronyms.dat");
            PostMessageW(browser, WM_COMMAND, static_cast<WPARAM>(button), 0);
            return true;
        };
    }

    // Selects a folder, again and again until the browser's tree shows it.
    static std::function<bool()> ChooseIn(const std::wstring& folder, const std::string& shown) {
        return [folder, shown] {
            HWND const browser = BrowserWindow();
            if (browser == nullptr) {
                return false;
            }
            SendMessageW(browser, BFFM_SETSELECTIONW, TRUE,
                         reinterpret_cast<LPARAM>(folder.c_str()));
            return SelectedName(browser).find(shown) != std::string::npos;
        };
    }

    static std::string SelectedName(HWND browser) {
        HWND const tree = FindDescendant(browser, L"SysTreeView32");
        std::wstring text(300, L'\0');
        TVITEMW item{};
        item.mask = TVIF_TEXT;
        item.hItem = TreeView_GetSelection(tree);
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return Utf8OfWide(item.pszText);
    }

    static HWND FindDescendant(HWND window, const wchar_t* className) {
        HWND found = FindWindowExW(window, nullptr, className, nullptr);
        for (HWND child = FindWindowExW(window, nullptr, nullptr, nullptr);
             child != nullptr && found == nullptr;
             child = FindWindowExW(window, child, nullptr, nullptr)) {
            found = FindDescendant(child, className);
        }
        return found;
    }
};

TEST_F(BrowseForFolderTest, CancellingGivesAnEmptyText) {
    const ModalDriver driver({Press(IDCANCEL)});
    EXPECT_EQ(BrowseForFolder(nullptr, "Location of Acronyms.dat"), "");
    EXPECT_TRUE(driver.Done());
    EXPECT_TRUE(titleShown_);
}

TEST_F(BrowseForFolderTest, TheBrowserCanBeFoundAmongOtherWindows) {
    const ModalDriver driver({[] {
                                  HWND const browser = BrowserWindow();
                                  if (browser == nullptr) {
                                      return false;
                                  }
                                  EXPECT_TRUE(IsInTaskBar(browser));
                                  EXPECT_TRUE(ShowsTheProgramsIcon(browser));
                                  return true;
                              },
                              Press(IDCANCEL)});
    EXPECT_EQ(BrowseForFolder(nullptr, "Location of Acronyms.dat"), "");
    EXPECT_TRUE(driver.Done());
}

TEST_F(BrowseForFolderTest, AFolderEndsInABackslash) {
    const ModalDriver driver(
        {ChooseIn(folder_.Path().wstring(), Utf8OfPath(folder_.Path().filename())), Press(IDOK)});
    EXPECT_EQ(Utf8Text(BrowseForFolder(nullptr, "Location of Acronyms.dat")), folder_.Text());
    EXPECT_TRUE(driver.Done());
}

TEST_F(BrowseForFolderTest, ADriveKeepsItsOneBackslash) {
    const ModalDriver driver({ChooseIn(L"C:\\", "C:"), Press(IDOK)});
    EXPECT_EQ(Utf8Text(BrowseForFolder(nullptr, "Location of Acronyms.dat")), "C:\\");
    EXPECT_TRUE(driver.Done());
}

// The hot key makes the system do this.
TEST_F(MainWindowTest, AWindowThatTheSystemItselfRestoresHidesAgainWhenMinimised) {
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
    ShowWindow(window_->GetHWND(), SW_RESTORE);
    ASSERT_TRUE(WaitFor([&] { return window_->IsShown() && !window_->IsIconized(); }));
    EXPECT_TRUE(StaysFor(100, [&] { return IsWindowVisible(window_->GetHWND()) != 0; }));
    ShowWindow(window_->GetHWND(), SW_MINIMIZE);
    EXPECT_TRUE(WaitFor([&] { return !window_->IsShown(); }));
}

TEST_F(MainWindowTest, ADoubleClickWithShiftOpensTheEntryAndShiftEnterDoesNot) {
    Type("abc", "ABC");
    int opened = 0;
    EntryListControl& list = window_->List();
    list.onEnter = [&] { ++opened; };
    list.Window().SetFocus();
    ASSERT_TRUE(WaitFor([&] { return window_->Lookup().IsNavigating; }));
    user_.Char(WXK_RETURN, wxMOD_SHIFT);
    EXPECT_TRUE(StaysFor(150, [&] { return opened == 0; }));
    const int row = list.SelectedRow() - list.TopRow();
    user_.MouseMove(
        list.Window().ClientToScreen({40, row * list.RowHeight() + list.RowHeight() / 2}));
    LetEventsArrive();
    user_.KeyDown(WXK_SHIFT);
    user_.MouseDblClick();
    user_.KeyUp(WXK_SHIFT);
    EXPECT_TRUE(WaitFor([&] { return opened == 1; }));
}

struct CommandLineCase {
    const char* name;
    const wchar_t* line;
    const char* text;
};

class TextBehindProgramTest : public testing::TestWithParam<CommandLineCase> {};

TEST_P(TextBehindProgramTest, IsTheWholeArgumentText) {
    EXPECT_EQ(Utf8OfWide(TextBehindProgram(GetParam().line, L"C:\\My Programs\\brevilexicon.exe")),
              GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, TextBehindProgramTest,
    testing::Values(
        CommandLineCase{"Quoted", L"\"C:\\My Programs\\brevilexicon.exe\" /minimize", "/minimize"},
        CommandLineCase{"AsTheLogOnGivesIt", L"c:\\my programs\\brevilexicon.exe /minimize",
                        "/minimize"},
        CommandLineCase{"TypedAtThePrompt", L"brevilexicon  /minimize", "/minimize"},
        CommandLineCase{"TypedAtThePromptInQuotes",
                        L"\"C:\\My Programs\\brevilexicon.exe\"  /minimize", "/minimize"},
        CommandLineCase{"NotTrimmedAtItsEnd", L"brevilexicon /minimize ", "/minimize "},
        CommandLineCase{"TwoArguments", L"brevilexicon /minimize x", "/minimize x"},
        CommandLineCase{"AnArgumentInQuotes", L"brevilexicon \" /minimize\"", "\" /minimize\""},
        CommandLineCase{"Nothing", L"\"C:\\My Programs\\brevilexicon.exe\"", ""},
        CommandLineCase{"AnOpenQuote", L"\"C:\\My", ""}, CommandLineCase{"Empty", L"", ""}),
    CaseName());

TEST(TextBehindProgramThatWasRenamed, IsTheWholeArgumentText) {
    const std::wstring program = L"D:\\B\u00FCcher 2.0\\My L\u00C9xico.exe";
    EXPECT_EQ(TextBehindProgram(L"d:\\b\u00FCcher 2.0\\my l\u00E9xico.exe /minimize", program),
              L"/minimize");
    EXPECT_EQ(TextBehindProgram(L"\"" + program + L"\" /minimize", program), L"/minimize");
}

TEST(ArgumentTextOnWindows, IsWhatTheseTestsWereStartedWith) {
    const std::wstring line = GetCommandLineW();
    const std::wstring text = ArgumentText({}).ToStdWstring();
    EXPECT_TRUE(line.ends_with(text));
    EXPECT_EQ(text.find(L"ui_tests"), std::wstring::npos);
}

TEST_F(MainWindowTest, StayOnTopPutsTheWindowIntoTheTopmostBand) {
    const auto isTopMost = [&] {
        return (GetWindowLongW(window_->GetHWND(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    };
    EXPECT_FALSE(isTopMost());
    SetTopMost(*window_, true);
    EXPECT_TRUE(isTopMost());
    SetTopMost(*window_, false);
    EXPECT_FALSE(isTopMost());
}

// Keeps the clipboard open, as another program may, for some time (milliseconds).
class ClipboardHolder {
  public:
    explicit ClipboardHolder(int ms) {
        thread_ = std::thread([this, ms] {
            held_ = OpenClipboard(nullptr) != FALSE;
            ready_ = true;
            Sleep(static_cast<DWORD>(ms));
            CloseClipboard();
        });
        while (!ready_) {
            Sleep(1);
        }
    }

    ClipboardHolder(const ClipboardHolder&) = delete;
    ClipboardHolder& operator=(const ClipboardHolder&) = delete;

    ~ClipboardHolder() { thread_.join(); }

    [[nodiscard]] bool Holds() const { return held_; }

  private:
    std::atomic<bool> held_ = false;
    std::atomic<bool> ready_ = false;
    std::thread thread_;
};

TEST_F(MainWindowTest, CopyingWaitsForAProgramThatHoldsTheClipboard) {
    const MessageBoxes boxes;
    PutOnClipboard("before");
    {
        const ClipboardHolder holder(80);
        ASSERT_TRUE(holder.Holds());
        WxMessageSink messages(window_);
        CopyEntryToClipboard("RAM\tRandom Access Memory", messages);
    }
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_EQ(ClipboardText(), "RAM = Random Access Memory");
}

TEST_F(MainWindowTest, CopyingGivesUpWithAMessageIfTheClipboardStaysHeld) {
    const MessageBoxes boxes;
    PutOnClipboard("before");
    {
        const ClipboardHolder holder(1000);
        ASSERT_TRUE(holder.Holds());
        WxMessageSink messages(window_);
        CopyEntryToClipboard("RAM\tRandom Access Memory", messages);
    }
    ASSERT_EQ(boxes.texts.size(), 1U);
    EXPECT_EQ(boxes.texts[0],
              "The entry could not be copied: another program is using the clipboard. Try again.");
    EXPECT_EQ(ClipboardText(), "before");
}

TEST_F(MainWindowTest, AResultBoxHasItsMarginsAndItsTabStop) {
    auto* const box = new wxTextCtrl(window_, wxID_ANY, wxEmptyString, wxDefaultPosition, {600, 80},
                                     wxTE_MULTILINE | wxTE_DONTWRAP);
    SetSideMargins(*box, 5);
    const int stop = SetTabStop(*box, 88);
    box->ChangeValue("A\tb");
    HWND const window = static_cast<HWND>(box->GetHandle());
    const LRESULT margins = SendMessageW(window, EM_GETMARGINS, 0, 0);
    EXPECT_EQ(LOWORD(margins), 5);
    EXPECT_EQ(HIWORD(margins), 5);
    const LRESULT first = SendMessageW(window, EM_POSFROMCHAR, 0, 0);
    const LRESULT second = SendMessageW(window, EM_POSFROMCHAR, 2, 0);
    EXPECT_LE(std::abs(LOWORD(second) - LOWORD(first) - stop), 2);
    box->Destroy();
}

TEST_F(MainWindowTest, ATopMarginChangesOnlyTheTopAndLastsOverANewSize) {
    auto* const box = new wxTextCtrl(window_, wxID_ANY, wxEmptyString, wxDefaultPosition, {600, 80},
                                     wxTE_MULTILINE | wxTE_DONTWRAP);
    const auto area = [&] {
        RECT text{};
        SendMessageW(static_cast<HWND>(box->GetHandle()), EM_GETRECT, 0,
                     reinterpret_cast<LPARAM>(&text));
        return wxRect(wxPoint(text.left, text.top), wxPoint(text.right, text.bottom));
    };
    SetSideMargins(*box, 5);
    const wxRect before = area();
    SetTopMargin(*box, 9);
    EXPECT_EQ(area().x, before.x);
    EXPECT_EQ(area().width, before.width);
    EXPECT_LE(area().GetBottom(), before.GetBottom());  // whole lines
    EXPECT_EQ(area().y, 9);
    box->SetSize(500, 90);
    EXPECT_TRUE(WaitFor([&] { return area().y == 9 && area().width < before.width; }));
    EXPECT_EQ(area().x, before.x);
    box->Destroy();
}

}  // namespace
}  // namespace brelex
