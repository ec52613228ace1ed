// SPDX-License-Identifier: MIT
// The real help book in the real viewer on this desktop, looked at from outside.
#include "help/help_viewer.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/clipbrd.h>
#include <wx/html/helpfrm.h>
#include <wx/html/htmlwin.h>
#include <wx/image.h>
#include <wx/notebook.h>
#include <wx/process.h>
#include <wx/settings.h>
#include <wx/stream.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include "base/file_io.h"
#include "platform/desktop/system_desktop.h"
#include "platform/system/modShowHelp.h"
#include "platform/system/program_folder.h"
#include "tests/platform/enlarge.h"
#include "tests/platform/help_registration.h"
#include "tests/platform/help_window.h"
#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"

namespace brelex {
namespace {

constexpr int kPatienceMs = 20000;  // the viewer is a program that has to start

std::string Book() {
    return ProgramFolder() + kHelpFileName;
}

// The viewer beside the tests, run by them.
class ViewerProcess final : public wxProcess {
  public:
    explicit ViewerProcess(const std::string& page = {}) {
        Redirect();
        const wxString program = WxText(ProgramFolder() + "brelex-help");
        const wxString book = WxText(Book());
        const wxString pageText = WxText(page);
        const wchar_t* const command[] = {program.wc_str(), book.wc_str(),
                                          page.empty() ? nullptr : pageText.wc_str(), nullptr};
        // Else Windows would hide the viewer's window as if it were a console.
        EXPECT_NE(wxExecute(command, wxEXEC_ASYNC | wxEXEC_SHOW_CONSOLE, this), 0);
    }

    ViewerProcess(const ViewerProcess&) = delete;
    ViewerProcess& operator=(const ViewerProcess&) = delete;

    ~ViewerProcess() override {
        if (!hasEnded_) {
            wxKill(GetPid(), wxSIGKILL);
            EXPECT_TRUE(WaitFor([this] { return hasEnded_; }, kPatienceMs));
        }
    }

    void OnTerminate(int, int status) override {
        status_ = status;
        hasEnded_ = true;
        for (int byte = GetErrorStream()->GetC(); byte != wxEOF; byte = GetErrorStream()->GetC()) {
            errors_ += static_cast<char>(byte);
        }
    }

    [[nodiscard]] bool HasEnded() const { return hasEnded_; }

    [[nodiscard]] int Status() const { return status_; }

    /// What it wrote to its standard error.
    [[nodiscard]] const std::string& Errors() const { return errors_; }

  private:
    bool hasEnded_ = false;
    int status_ = -1;
    std::string errors_;
};

class HelpViewerTest : public testing::Test {
  protected:
    void SetUp() override {
        anchor_ = new wxFrame(nullptr, wxID_ANY, "A window of the tests", wxPoint(0, 0));
        anchor_->ShowWithoutActivating();
        ASSERT_FALSE(desktop_.BringWindowForward(kHelpTitle));
    }

    void TearDown() override {
        anchor_->Destroy();
        CloseHelp(desktop_);
        EXPECT_TRUE(WaitFor([&] { return PlaceOfWindow(kHelpTitle).IsEmpty(); }, kPatienceMs));
    }

    void ShowHelp(const std::string& page = {}) {
        ShowHelpContents({ProgramFolder(), "brevilexicon"}, desktop_, messages_, page);
        EXPECT_TRUE(messages_.shown.empty());
    }

    [[nodiscard]] static bool StaysOpenFor(int ms) {
        return StaysFor(ms, [] { return !PlaceOfWindow(kHelpTitle).IsEmpty(); });
    }

    void WaitForKeyboard() {
        ASSERT_TRUE(WaitFor([] { return WindowHasKeyboard(kHelpTitle); }, kPatienceMs));
    }

    // Waits until the page in the viewer begins with a text. It is copied as a user would.
    void ExpectPage(const std::string& beginning) {
        WaitForKeyboard();
        EmptyClipboard();
        std::string text;
        const bool begins = WaitFor(
            [&] {
                user_.Char('A', wxMOD_CONTROL);
                user_.Char('C', wxMOD_CONTROL);
                return WaitFor(
                    [&] {
                        text = CopiedText();
                        text.erase(0, text.find_first_not_of("\r\n"));
                        return text.starts_with(beginning);
                    },
                    300);
            },
            kPatienceMs);
        EXPECT_TRUE(begins) << text.substr(0, 100);
    }

    // Has the viewer find keys and clicks for the contents before and behind the wish to close it.
    void CloseBetweenKeysAndClicks(const ViewerProcess& viewer, wxPoint contents) {
        user_.MouseMove(contents);
        user_.MouseClick();
        int asleep = 0;
        constexpr int kLongEnough = 40;
        ASSERT_TRUE(WaitFor(
            [&] { return (asleep = IsAsleep(viewer.GetPid()) ? asleep + 1 : 0) >= kLongEnough; },
            kPatienceMs));
        const Standstill standstill(viewer.GetPid());
        user_.Char(WXK_DOWN);
        desktop_.AskWindowToClose(kHelpTitle);
        // The window manager passes it on meanwhile.
        EXPECT_TRUE(StaysFor(100, [&] { return !viewer.HasEnded(); })) << "it stands still";
        for (int i = 1; i <= 3; ++i) {
            user_.Char(WXK_DOWN);
            user_.Char(WXK_UP);
            user_.MouseMove(contents + wxPoint(0, 25 * i));
            user_.MouseClick();
        }
    }

    wxUIActionSimulator user_;
    wxFrame* anchor_ = nullptr;  // from some window of the tests the simulator learns its scale
    SystemDesktop desktop_;
    FakeMessageSink messages_;
};

TEST_F(HelpViewerTest, HelpOpensOnceAndClosesWhenItIsAskedTo) {
    ShowHelp();
    ASSERT_TRUE(WaitFor([] { return !PlaceOfWindow(kHelpTitle).IsEmpty(); }, kPatienceMs));
    // Asked for twice it is still one: closing that one leaves none.
    ShowHelp();
    EXPECT_TRUE(StaysOpenFor(1500));
    // A window of another title is not meant.
    EXPECT_FALSE(desktop_.BringWindowForward("Brevilexicon Hel"));
    desktop_.AskWindowToClose("Brevilexicon Hel");
    EXPECT_TRUE(StaysOpenFor(300));
    EXPECT_TRUE(desktop_.BringWindowForward(kHelpTitle));
    CloseHelp(desktop_);
    EXPECT_TRUE(WaitFor([&] { return !desktop_.BringWindowForward(kHelpTitle); }));
    EXPECT_TRUE(StaysFor(300, [&] { return !desktop_.BringWindowForward(kHelpTitle); }));
}

TEST_F(HelpViewerTest, OpensAtAPageAndTurnsToOthers) {
    ShowHelp("search.html");
    ExpectPage("Searching the Database");
    ShowHelp("viewer.html");
    ExpectPage("The Entry Viewer");
    ShowHelp("about.html#donate");
    ExpectPage("About, Credits and Donations");
    ShowHelp();
    EXPECT_TRUE(StaysOpenFor(300));
    ExpectPage("About, Credits and Donations");
    CloseHelp(desktop_);
    EXPECT_TRUE(WaitFor([] { return PlaceOfWindow(kHelpTitle).IsEmpty(); }, kPatienceMs));
}

TEST_F(HelpViewerTest, WithoutAPageOrWithAnUnknownOneItOpensAtTheFirst) {
    ShowHelp();
    ExpectPage("Welcome");
    desktop_.TurnToPage(kHelpTitle, "nowhere.html");
    desktop_.TurnToPage(kHelpTitle, "file:" + Book() + "#zip:keys.html");
    EXPECT_TRUE(StaysOpenFor(300));
    ExpectPage("Welcome");
    desktop_.TurnToPage(kHelpTitle, "keys.html");
    ExpectPage("Keys");
}

TEST_F(HelpViewerTest, EscapeClosesItAndItHadNothingToComplainOf) {
    ViewerProcess viewer("keys.html");
    WaitForKeyboard();
    // The window manager may call it active shortly before keys arrive.
    ASSERT_TRUE(WaitFor(
        [&] {
            user_.Char(WXK_ESCAPE);
            return WaitFor([&] { return viewer.HasEnded(); }, 500);
        },
        kPatienceMs));
    EXPECT_EQ(viewer.Status(), 0);
    EXPECT_EQ(viewer.Errors(), "");
}

TEST_F(HelpViewerTest, KeysAndClicksWhileItClosesDoNotBreakIt) {
    for (int i = 0; i < 3; ++i) {
        ViewerProcess viewer;
        WaitForKeyboard();
        const wxRect place = PlaceOfWindow(kHelpTitle);
        CloseBetweenKeysAndClicks(viewer, place.GetPosition() + wxPoint(90, place.height / 3));
        ASSERT_TRUE(WaitFor([&] { return viewer.HasEnded(); }, kPatienceMs));
        EXPECT_EQ(viewer.Status(), 0);
        EXPECT_EQ(viewer.Errors(), "");
    }
}

// As users have it who only unpacked it: nothing is registered, the folder has any name.
TEST_F(HelpViewerTest, TheViewerStartsFromAFolderOfAnyName) {
    const TestFolder folder;
    const auto program = folder.Path() / PathOfUtf8("d\u00e9j\u00e0 vu 100% $HOME 'quoted'");
    std::filesystem::create_directory(program);
    for (const std::string file : {"brelex-help", "brelex-help.exe", kHelpFileName}) {
        const auto original = PathOfUtf8(ProgramFolder() + file);
        if (std::filesystem::exists(original)) {
            std::filesystem::copy_file(original, program / file);
        }
    }
    const std::string place = WithTrailingSeparator(Utf8OfPath(program));
    ASSERT_TRUE(desktop_.StartHelpViewer(place, place + kHelpFileName, "tray.html"));
    ExpectPage("Always at Hand");
    CloseHelp(desktop_);
    EXPECT_TRUE(WaitFor([] { return PlaceOfWindow(kHelpTitle).IsEmpty(); }, kPatienceMs));
}

TEST_F(HelpViewerTest, WithoutAViewerInTheFolderNoneStarts) {
    const TestFolder folder;
    EXPECT_FALSE(desktop_.StartHelpViewer(folder.Text(), Book(), ""));
    std::filesystem::create_directory(folder.Path() / "brelex-help");
    EXPECT_FALSE(desktop_.StartHelpViewer(folder.Text(), Book(), ""));
}

// Without a viewer in that folder, by what the desktop has for such files.
TEST_F(HelpViewerTest, TheBookOpensFromAFolderWithBlanksAndAccents) {
    const HelpRegistration registration;
    const TestFolder folder;
    const auto program = folder.Path() / PathOfUtf8("d\u00e9j\u00e0 vu 100%");
    std::filesystem::create_directory(program);
    std::filesystem::copy_file(PathOfUtf8(ProgramFolder()) / kHelpFileName,
                               program / kHelpFileName);
    ShowHelpContents({Utf8OfPath(program) + "/", "brevilexicon"}, desktop_, messages_);
    EXPECT_TRUE(messages_.shown.empty());
    ASSERT_TRUE(WaitFor([&] { return desktop_.BringWindowForward(kHelpTitle); }, kPatienceMs));
}

// The window of the viewer, in this program.
class HelpWindowTest : public testing::Test {
  protected:
    void Show(const char* page = "") {
        ASSERT_TRUE(viewer_.Show(WxText(Book()), page));
        ASSERT_TRUE(WaitFor([&] { return HasKeyboard(Frame()); }));
    }

    void TearDown() override {
        Frame().Close();
        EXPECT_TRUE(WaitFor([&] { return viewer_.GetHelpWindow() == nullptr; }));
    }

    [[nodiscard]] wxFrame& Frame() { return *viewer_.GetFrame(); }

    // Whether the title of each entry of the contents is whole, with room for a scroll bar.
    void ExpectWholeTitles(const wxTreeItemId& parent) {
        wxTreeCtrl& contents = *viewer_.GetHelpWindow()->GetTreeCtrl();
        wxTreeItemIdValue cookie = nullptr;
        for (auto item = contents.GetFirstChild(parent, cookie); item.IsOk();
             item = contents.GetNextChild(parent, cookie)) {
            ++titles_;
            wxRect place;
            ASSERT_TRUE(contents.GetBoundingRect(item, place, true));
            EXPECT_LT(place.GetRight(), contents.GetClientSize().x) << contents.GetItemText(item);
            ExpectWholeTitles(item);
        }
    }

    void ExpectWholeColumn() {
        Show();
        wxTreeCtrl& contents = *viewer_.GetHelpWindow()->GetTreeCtrl();
        ExpectWholeTitles(contents.GetRootItem());
        EXPECT_GT(titles_, 20);
        const auto* const notebook = dynamic_cast<wxNotebook*>(contents.GetGrandParent());
        ASSERT_NE(notebook, nullptr);
        EXPECT_EQ(notebook->GetPageCount(), 3U);
        EXPECT_TRUE(ShowsAllTabs(*notebook));
        // The first page has one of the widest pictures.
        EXPECT_FALSE(viewer_.GetHelpWindow()->GetHtmlWindow()->HasScrollbar(wxHORIZONTAL));
    }

    [[nodiscard]] wxHtmlWindow& Page() { return *viewer_.GetHelpWindow()->GetHtmlWindow(); }

    // How many points of the page on the screen have the color of its texts.
    [[nodiscard]] int InkOfPage() {
        const wxImage picture = PictureOfScreen(Page().GetScreenRect());
        const wxColour ink = SystemColour(wxSYS_COLOUR_WINDOWTEXT);
        int points = 0;
        for (int y = 0; y < picture.GetHeight(); ++y) {
            for (int x = 0; x < picture.GetWidth(); ++x) {
                points += ColourAt(picture, x, y) == ink ? 1 : 0;
            }
        }
        return points;
    }

    void Press(int key, int modifiers = 0) {
        ASSERT_TRUE(WaitFor([&] { return Page().HasFocus(); }));
        user_.Char(key, modifiers);
        LetEventsArrive();
    }

    HelpViewer viewer_;
    wxUIActionSimulator user_;
    int titles_ = 0;
};

TEST_F(HelpWindowTest, CannotBeMadeTooSmallToRead) {
    Show();
    EnlargeAsUser(Frame(), {-2000, -2000});
    EXPECT_FALSE(WaitFor([&] { return Frame().GetClientSize().x < 450; }, 500));
    EXPECT_GE(Frame().GetClientSize().y, 300);
    EXPECT_LT(Frame().GetClientSize().y, 400) << "smaller than it was";
}

TEST_F(HelpWindowTest, TabFramesALinkAndEnterFollowsIt) {
    Show("keys.html");
    Settle();
    const int before = InkOfPage();
    Press(WXK_TAB);
    constexpr int kLeastFrame = 200;
    EXPECT_TRUE(WaitFor([&] { return InkOfPage() >= before + kLeastFrame; }));
    Press(WXK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return Page().GetOpenedPageTitle() == "Searching the Database"; }))
        << Page().GetOpenedPageTitle();
}

TEST_F(HelpWindowTest, ShiftTabGoesBackToTheLinkBefore) {
    Show("keys.html");
    Press(WXK_TAB);
    Press(WXK_TAB);
    Press(WXK_TAB);
    Press(WXK_TAB, wxMOD_SHIFT);
    Press(WXK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return Page().GetOpenedPage().Contains("lookup.html"); }))
        << Page().GetOpenedPage();
}

TEST_F(HelpWindowTest, ALinkBelowTheViewScrollsIntoIt) {
    Show("keys.html");
    const int top = Page().GetViewStart().y;
    Press(WXK_TAB, wxMOD_SHIFT);  // the last one
    EXPECT_TRUE(WaitFor([&] { return Page().GetViewStart().y > top; }));
    EXPECT_TRUE(Page().HasFocus());
}

TEST_F(HelpWindowTest, BeyondTheLastLinkTabLeavesThePage) {
    Show("keys.html");
    Press(WXK_TAB, wxMOD_SHIFT);  // the last one
    Press(WXK_TAB);
    EXPECT_TRUE(WaitFor([&] { return !Page().HasFocus(); }));
}

TEST_F(HelpWindowTest, TitlesAndTabsAreWhole) {
    ExpectWholeColumn();
}

TEST_F(HelpWindowTest, TitlesAndTabsAreWholeWithALargeFont) {
    const LargeFont font;
    ExpectWholeColumn();
}

// ctest runs this with dark themes, too.
TEST_F(HelpWindowTest, APageHasTheUsersColors) {
    Show();
    const wxHtmlWindow& page = *viewer_.GetHelpWindow()->GetHtmlWindow();
    const wxRect place = page.GetScreenRect();
    const wxColour ground = SystemColour(wxSYS_COLOUR_WINDOW);
    EXPECT_TRUE(WaitFor([&] {
        const wxImage picture = PictureOfScreen({place.x + 3, place.y + 3, 4, 4});
        return picture.IsOk() && ColourAt(picture, 2, 2) == ground;
    }));
}

TEST_F(HelpWindowTest, ThePageHasTheKeyboardAndF6GoesToTheContentsAndBack) {
    Show();
    const wxWindow& page = *viewer_.GetHelpWindow()->GetHtmlWindow();
    EXPECT_TRUE(WaitFor([&] { return page.HasFocus(); }));
    wxTreeCtrl& contents = *viewer_.GetHelpWindow()->GetTreeCtrl();
    wxUIActionSimulator().Char(WXK_F6);
    EXPECT_TRUE(WaitFor([&] { return contents.HasFocus(); }));
    wxUIActionSimulator().Char(WXK_F6);
    EXPECT_TRUE(WaitFor([&] { return page.HasFocus(); }));
}

TEST(SystemDesktop, SaysThatNoProgramOpensAFileOfAnUnknownKind) {
    const TestFolder folder;
    SystemDesktop desktop;
    EXPECT_FALSE(desktop.Open(folder.Write("Some.brelex-kind", {"\0\1\2\3", 4})));
}

TEST(SystemDesktop, SaysThatNoProgramOpensAnAddress) {
    SystemDesktop desktop;
    EXPECT_FALSE(desktop.Open("x-brelex-nothing-opens-this:there"));
}

}  // namespace
}  // namespace brelex
