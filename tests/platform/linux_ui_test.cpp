// SPDX-License-Identifier: MIT
// What the windows ask of an X11 desktop.
#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/textctrl.h>

#include <gtk/gtk.h>

#include "base/app_info.h"
#include "platform/desktop/help_association.h"
#include "platform/desktop/program_identity.h"
#include "platform/list/text_columns.h"
#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"
#include "ui/controls/toolbar.h"
#include "ui/main/main_menus.h"

// Last, because it defines words such as None and Status.
#include <X11/Xlib.h>

namespace brelex {
namespace {

class HotKey : public MainWindowTest {
  protected:
    void Press() { user_.Char('G', wxMOD_CONTROL | wxMOD_SHIFT); }

    // A window that has the keyboard and lies over the main window.
    wxFrame* Cover() {
        auto* other = new wxFrame(nullptr, wxID_ANY, "Another window", window_->GetPosition(),
                                  window_->GetSize());
        other->Show();
        other->Raise();
        EXPECT_TRUE(WaitFor([&] { return other->IsActive(); }));
        return other;
    }
};

// The test has a home of its own.
TEST(HelpRegistration, MakesTheViewerTheUsersAndTakesThatBack) {
    const std::filesystem::path data = g_get_user_data_dir();
    const std::filesystem::path defaults =
        std::filesystem::path(g_get_user_config_dir()) / "mimeapps.list";
    const auto entry = data / "applications" / "example.brevilexicon.Brevilexicon.Help.desktop";
    const auto type = data / "mime" / "packages" / "brelex-help-type.xml";
    const TestFolder folder;
    const std::string program = folder.Write("a$ \"b\\ `c", "#!/bin/sh\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    ASSERT_TRUE(OpenHelpFilesWith(program));
    EXPECT_NE(ReadText(defaults).find(
                  "application/x-brelex-help=example.brevilexicon.Brevilexicon.Help.desktop"),
              std::string::npos);
    EXPECT_NE(ReadText(type).find("Brelex.hlp"), std::string::npos);
    EXPECT_NE(ReadText(data / "mime" / "globs2").find(":brelex.hlp"), std::string::npos);
    // What the desktop makes of the Exec line.
    GKeyFile* const file = g_key_file_new();
    ASSERT_TRUE(g_key_file_load_from_file(file, entry.c_str(), G_KEY_FILE_NONE, nullptr));
    char* const exec = g_key_file_get_string(file, "Desktop Entry", "Exec", nullptr);
    int count = 0;
    char** words = nullptr;
    EXPECT_TRUE(g_shell_parse_argv(exec, &count, &words, nullptr)) << exec;
    ASSERT_EQ(count, 2);
    EXPECT_EQ(std::string(words[0]), program);
    g_strfreev(words);
    g_free(exec);
    g_key_file_free(file);

    ASSERT_TRUE(OpenHelpFilesWith(""));
    EXPECT_FALSE(std::filesystem::exists(entry));
    EXPECT_FALSE(std::filesystem::exists(type));
    EXPECT_EQ(ReadText(defaults).find("x-brelex-help"), std::string::npos);
    EXPECT_TRUE(OpenHelpFilesWith(""));  // nothing to take back
}

TEST(SetSpokenProgramName, IsTheNameThatScreenReadersHave) {
    SetSpokenProgramName("A Program");
    EXPECT_STREQ(atk_object_get_name(atk_get_root()), "A Program");
}

// The build tree's share/ contains the icon theme of the program.
TEST(SymbolicIcon, TakesTheColorOfTheText) {
    constexpr int kSize = 16;
    GtkIconInfo* const info = gtk_icon_theme_lookup_icon(
        gtk_icon_theme_get_default(), (std::string(kApplicationId) + "-symbolic").c_str(), kSize,
        GTK_ICON_LOOKUP_FORCE_SIZE);
    ASSERT_NE(info, nullptr) << "XDG_DATA_DIRS lacks the share/ of the build tree";
    const GdkRGBA red{1, 0, 0, 1};
    GdkPixbuf* const picture =
        gtk_icon_info_load_symbolic(info, &red, nullptr, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(gdk_pixbuf_get_width(picture), kSize);
    int opaque = 0;
    for (int i = 0; i < kSize * kSize; ++i) {
        const guchar* const pixel =
            gdk_pixbuf_read_pixels(picture) +
            static_cast<std::ptrdiff_t>(i / kSize) * gdk_pixbuf_get_rowstride(picture) +
            static_cast<std::ptrdiff_t>(i % kSize) * 4;
        if (pixel[3] == 255) {
            ++opaque;
            EXPECT_EQ((std::vector<int>{pixel[0], pixel[1], pixel[2]}),
                      (std::vector<int>{255, 0, 0}))
                << "pixel " << i;
        }
    }
    EXPECT_GT(opaque, 100);
    EXPECT_LT(opaque, 200) << "the letter is cut out";
    g_object_unref(picture);
    g_object_unref(info);
}

// What the box and the list show, as GTK draws the window.
class PaintingOfAKey : public MainWindowTest {
  protected:
    static gboolean NoteDrawn(GtkWidget* /*widget*/, cairo_t* /*context*/, gpointer self) {
        auto& test = *static_cast<PaintingOfAKey*>(self);
        test.drawn_.push_back(test.BoxText() + ": " + test.SelectedRecord());
        return FALSE;
    }

    std::vector<std::string> drawn_;
};

// Otherwise the list would change a frame after the box.
TEST_F(PaintingOfAKey, ShowsTheTextAndItsEntryTogether) {
    Type("a", "A");
    GtkWidget* const window = GTK_WIDGET(window_->GetHandle());
    const gulong handler = g_signal_connect(window, "draw", G_CALLBACK(NoteDrawn), this);
    SelectAllInBox();
    Type("x", "X");
    Type("s", "XS");
    ASSERT_TRUE(WaitFor([&] { return drawn_.back().starts_with("XS:"); }));
    g_signal_handler_disconnect(window, handler);
    const std::set<std::string> drawn(drawn_.begin(), drawn_.end());
    EXPECT_EQ(drawn,
              std::set<std::string>({"A: AB\tAddress Bus", "X: XML\tExtensible Markup Language",
                                     "XS: XSS\tCross-Site Scripting"}));
}

TEST_F(MainWindowTest, AMenuFlattensTheIconOfTheToolbar) {
    const auto& bar = dynamic_cast<Toolbar&>(*Control("picToolbar"));
    user_.MouseMove(bar.ClientToScreen(wxPoint(18, 18)));
    user_.MouseMove(bar.ClientToScreen(wxPoint(20, 20)));
    ASSERT_TRUE(WaitFor([&] { return bar.EdgeOf(0) == Edge::Raised; }));
    user_.Char('F', wxMOD_ALT);
    EXPECT_TRUE(WaitFor([&] { return bar.EdgeOf(0) == Edge::Flat; }));
    ASSERT_TRUE(WaitFor([] { return !MenuOnScreen().IsEmpty(); }));
    user_.Char(WXK_ESCAPE);
    EXPECT_TRUE(WaitFor([] { return MenuOnScreen().IsEmpty(); }));
}

// As long as another program holds the mouse, no menu can open.
TEST_F(MainWindowTest, AMenuThatCannotOpenLeavesTheKeyboardToTheWindow) {
    Display* const other = XOpenDisplay(nullptr);
    ASSERT_EQ(XGrabPointer(other, DefaultRootWindow(other), False, ButtonPressMask, GrabModeAsync,
                           GrabModeAsync, None, None, CurrentTime),
              GrabSuccess);
    user_.Char('O', wxMOD_ALT);
    LetEventsArrive();
    XCloseDisplay(other);
    user_.Char(WXK_ESCAPE);
    LetEventsArrive();
    EXPECT_EQ(gtk_grab_get_current(), nullptr);
    Type("x", "X");
}

TEST_F(HotKey, BringsACoveredWindowForward) {
    wxFrame* const other = Cover();
    Press();
    EXPECT_TRUE(IsBack());
    other->Destroy();
}

TEST_F(HotKey, BringsAMinimisedWindowBack) {
    wxFrame* const other = Cover();
    window_->Iconize();
    ASSERT_TRUE(WaitFor([&] { return IsMinimised() && !IsOnScreen(*window_); }));
    Press();
    EXPECT_TRUE(IsBack());
    other->Destroy();
}

TEST_F(HotKey, BringsAHiddenWindowBack) {
    wxFrame* const other = Cover();
    window_->Hide();
    ASSERT_TRUE(WaitFor([&] { return !IsOnScreen(*window_); }));
    Press();
    EXPECT_TRUE(IsBack());
    other->Destroy();
}

TEST_F(HotKey, BringsTheWindowBackOnTopIfItStaysThere) {
    wxCommandEvent stay(wxEVT_MENU, IdOf(Command::StayOnTop));
    stay.SetInt(1);
    window_->ProcessWindowEvent(stay);
    ASSERT_TRUE(WaitFor([&] { return IsKeptAbove(*window_); }));
    window_->Hide();
    ASSERT_TRUE(WaitFor([&] { return !IsOnScreen(*window_); }));
    Press();
    EXPECT_TRUE(IsBack());
    EXPECT_TRUE(WaitFor([&] { return IsKeptAbove(*window_); }));
}

TEST_F(HotKey, IsGivenBackWhenTheWindowCloses) {
    TearDown();
    window_ = nullptr;
    auto* other = new wxFrame(nullptr, wxID_ANY, "Another window");
    bool arrived = false;
    auto* box = new wxTextCtrl(other, wxID_ANY);
    box->SetFocus();
    other->Bind(wxEVT_CHAR_HOOK, [&](wxKeyEvent& event) { arrived |= event.GetKeyCode() == 'G'; });
    other->Show();
    other->Raise();
    ASSERT_TRUE(WaitFor([&] { return other->IsActive(); }));
    Press();
    EXPECT_TRUE(WaitFor([&] { return arrived; }));
    other->Destroy();
}

TEST_F(MainWindowTest, AResultBoxHasItsMarginsAndItsTabStop) {
    auto* const box = new wxTextCtrl(window_, wxID_ANY, wxEmptyString, wxDefaultPosition, {300, 80},
                                     wxTE_MULTILINE | wxTE_DONTWRAP);
    SetSideMargins(*box, 5);
    const int stop = SetTabStop(*box, 88);
    GtkTextView* const view = GTK_TEXT_VIEW(gtk_bin_get_child(GTK_BIN(box->GetHandle())));
    EXPECT_EQ(gtk_text_view_get_left_margin(view), 5);
    EXPECT_EQ(gtk_text_view_get_right_margin(view), 5);
    EXPECT_EQ(stop, box->ConvertDialogToPixels(wxPoint(88, 0)).x);
    PangoTabArray* const tabs = gtk_text_view_get_tabs(view);
    ASSERT_NE(tabs, nullptr);
    int position = 0;
    pango_tab_array_get_tab(tabs, 0, nullptr, &position);
    EXPECT_EQ(position, stop);
    pango_tab_array_free(tabs);
    box->Destroy();
}

using SearchWindowOnLinux = SideWindowTest;

TEST_F(SearchWindowOnLinux, TheResultEndsWithAFullLine) {
    InSideWindow(
        "frmSearch", [&] { window_->Run(Command::Search); },
        [&] {
            Click("cmdExpandShrink");
            auto& box = In<wxTextCtrl>("txtSearchResult");
            ASSERT_TRUE(WaitFor([&] { return box.IsShownOnScreen(); }));
            box.ChangeValue("a\nb");
            int line = 0;
            EXPECT_TRUE(WaitFor([&] {
                line = box.PositionToCoords(2).y - box.PositionToCoords(0).y;
                return line > 0;
            }));
            GtkTextView* const view = GTK_TEXT_VIEW(gtk_bin_get_child(GTK_BIN(box.GetHandle())));
            GdkRectangle seen{};
            gtk_text_view_get_visible_rect(view, &seen);
            EXPECT_EQ(seen.height % line, 0) << seen.height << "/" << line;
        });
}

using InfoWindowOnLinux = SideWindowTest;

TEST_F(InfoWindowOnLinux, AScreenReaderSaysAlsoWhatDoesNotFit) {
    const std::string expansion(5000, 'x');
    Start({"LONG\t" + expansion});
    const auto open = [&] { window_->Run(Command::DatabaseInfo); };
    InSideWindow("frmDataInfo", open, [&] {
        AtkObject* const label =
            gtk_widget_get_accessible(GTK_WIDGET(In("lblLongestExpansion").GetHandle()));
        EXPECT_EQ(std::string(atk_object_get_name(label)),
                  "Longest expansion including parenthetical note*: " + expansion +
                      " (5000 letters, abbreviated as LONG)");
    });
}

}  // namespace
}  // namespace brelex
