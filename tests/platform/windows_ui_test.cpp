// SPDX-License-Identifier: MIT
// What the windows ask of Windows.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/timer.h>

#include <windows.h>
#include <shlobj.h>

#include "platform/modBrowseFolder.h"
#include "platform/wide_text.h"
#include "tests/ui/ui_test_support.h"
#include "ui/wx_text.h"

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

    static std::function<bool()> ChooseIn(const std::wstring& folder) {
        return [folder] {
            HWND const browser = BrowserWindow();
            if (browser == nullptr) {
                return false;
            }
            SendMessageW(browser, BFFM_SETSELECTIONW, TRUE,
                         reinterpret_cast<LPARAM>(folder.c_str()));
            return true;
        };
    }
};

TEST_F(BrowseForFolderTest, CancellingGivesAnEmptyText) {
    const ModalDriver driver({Press(IDCANCEL)});
    EXPECT_EQ(BrowseForFolder(nullptr, "Location of Acronyms.dat"), "");
    EXPECT_TRUE(driver.Done());
    EXPECT_TRUE(titleShown_);
}

TEST_F(BrowseForFolderTest, AFolderEndsInABackslash) {
    const ModalDriver driver({ChooseIn(folder_.Path().wstring()), Press(IDOK)});
    EXPECT_EQ(Utf8Text(BrowseForFolder(nullptr, "Location of Acronyms.dat")), folder_.Text());
    EXPECT_TRUE(driver.Done());
}

TEST_F(BrowseForFolderTest, ADriveKeepsItsOneBackslash) {
    const ModalDriver driver({ChooseIn(L"C:\\"), Press(IDOK)});
    EXPECT_EQ(Utf8Text(BrowseForFolder(nullptr, "Location of Acronyms.dat")), "C:\\");
    EXPECT_TRUE(driver.Done());
}

}  // namespace
}  // namespace brelex
