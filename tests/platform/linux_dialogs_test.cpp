// SPDX-License-Identifier: MIT
// The dialogs that GTK makes, and dialogs in fonts of the user's.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <gtk/gtk.h>

#include "base/file_io.h"
#include "platform/desktop/modBrowseFolder.h"
#include "platform/system/program_folder.h"
#include "tests/platform/system_box.h"
#include "tests/support/named_case.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/main/text_question.h"

namespace brelex {
namespace {

constexpr const char* kTitle = "Location of Acronyms.dat";

class BrowseForFolderTest : public testing::Test {
  protected:
    // Opens the folder browser, works in it when it takes keys, and returns its answer.
    static std::string Browse(std::vector<std::function<bool()>> work) {
        work.insert(work.begin(), [] { return TakesKeys(OpenWindow(kTitle)); });
        const ModalDriver driver(std::move(work));
        constexpr int kMostTicks = 150;
        int ticks = 0;
        const ModalDriver guard({[&] {
            if (++ticks > kMostTicks && OpenWindow(kTitle) != nullptr) {
                CloseBox(OpenWindow(kTitle));  // or else a failure would hang in it for ever
            }
            return false;
        }});
        std::string answer = Utf8Text(BrowseForFolder(nullptr, kTitle));
        EXPECT_TRUE(driver.Done());
        EXPECT_TRUE(WaitFor([] { return OpenWindow(kTitle) == nullptr; }));
        return answer;
    }

    // What has been typed into the browser's line for a path.
    static std::string Typed() {
        GtkWidget* const focus =
            gtk_window_get_focus(GTK_WINDOW(static_cast<GtkWidget*>(OpenWindow(kTitle))));
        return GTK_IS_ENTRY(focus) ? gtk_entry_get_text(GTK_ENTRY(focus)) : "(nothing)";
    }

    // Types a path and Enter behind what `begin` does.
    std::string AnswerToPath(const std::string& path, const std::function<void()>& begin) {
        return Browse({[&] {
                           begin();
                           return true;
                       },
                       [&] {
                           user_.Text(path.c_str());
                           return true;
                       },
                       // GTK may have completed it by a separator.
                       [&] { return Typed().rfind(path, 0) == 0; },
                       [&] {
                           user_.Char(WXK_RETURN);
                           return true;
                       }});
    }

    TestFolder folder_;
    wxUIActionSimulator user_;
};

TEST_F(BrowseForFolderTest, ATypedPathIsTheAnswer) {
    EXPECT_EQ(AnswerToPath(folder_.Text(), [] {}), folder_.Text());
}

TEST_F(BrowseForFolderTest, APathTypedBehindCtrlLIsTheAnswer) {
    std::string path = folder_.Text();
    path.pop_back();
    const auto pressCtrlL = [&] { user_.Char('L', wxMOD_CONTROL); };
    EXPECT_EQ(AnswerToPath(path, pressCtrlL), folder_.Text());
}

TEST_F(BrowseForFolderTest, ItOpensWhereTheProgramIs) {
    std::string shown;
    Browse({[&] {
                auto* const chooser = static_cast<GtkWidget*>(OpenWindow(kTitle));
                char* const folder = gtk_file_chooser_get_current_folder(GTK_FILE_CHOOSER(chooser));
                shown = folder != nullptr ? WithTrailingSeparator(folder) : "";
                g_free(folder);
                return !shown.empty();
            },
            [&] {
                user_.Char(WXK_ESCAPE);
                return true;
            }});
    EXPECT_EQ(shown, ProgramFolder());
}

TEST_F(BrowseForFolderTest, EscapeGivesNoAnswer) {
    EXPECT_EQ(Browse({[&] {
                  user_.Char(WXK_ESCAPE);
                  return true;
              }}),
              "");
}

TEST_F(BrowseForFolderTest, ItCanBeFoundAmongOtherWindows) {
    Browse({[&] {
                auto* const browser = OpenWindow(kTitle);
                EXPECT_TRUE(IsInTaskBar(browser));
                EXPECT_TRUE(ShowsTheProgramsIcon(browser));
                return true;
            },
            [&] {
                user_.Char(WXK_ESCAPE);
                return true;
            }});
}

struct FontCase {
    const char* name;
    const char* font;
};

// Dialogs while the user has chosen a font.
class DialogsInFont : public SideWindowTest, public testing::WithParamInterface<FontCase> {
  public:
    DialogsInFont() {
        g_object_get(gtk_settings_get_default(), "gtk-font-name", &font_, nullptr);
        g_object_set(gtk_settings_get_default(), "gtk-font-name", GetParam().font, nullptr);
        LetEventsArrive();
    }

    DialogsInFont(const DialogsInFont&) = delete;
    DialogsInFont& operator=(const DialogsInFont&) = delete;

    ~DialogsInFont() override {
        g_object_set(gtk_settings_get_default(), "gtk-font-name", font_, nullptr);
        g_free(font_);
        LetEventsArrive();
    }

  private:
    char* font_ = nullptr;
};

TEST_P(DialogsInFont, ALongQuestionIsWhole) {
    const wxString prompt(
        "How many of the twenty thousand three hundred and nineteen entries that this dictionary "
        "holds would you like to be shown at once, if it could show as many (1 - 20,319):");
    TextQuestion question(window_, "A title", prompt, "1");
    ModalDriver driver({[&] { return question.IsActive(); },
                        [&] {
                            EXPECT_TRUE(
                                wxRect(wxGetDisplaySize()).Contains(question.GetScreenRect()));
                            for (const wxWindow* child : question.GetChildren()) {
                                EXPECT_TRUE(question.GetClientRect().Contains(child->GetRect()));
                                EXPECT_GE(child->GetSize().x, child->GetBestSize().x);
                                EXPECT_GE(child->GetSize().y, child->GetBestSize().y);
                            }
                            question.EndModal(wxID_CANCEL);
                            return true;
                        }});
    question.ShowModal();
    EXPECT_TRUE(driver.Done());
}

TEST_P(DialogsInFont, TheMeaningsOfSmileysFormOneColumn) {
    InSideWindow(
        "frmSmiley", [&] { window_->OpenModalForm(3); },
        [&] { EXPECT_EQ(ColumnsOfMeanings(In<wxTextCtrl>("txtReadme")).size(), 1U); });
}

INSTANTIATE_TEST_SUITE_P(Fonts, DialogsInFont,
                         testing::Values(FontCase{"Tiny", "Sans 6"}, FontCase{"Small", "Sans 8"},
                                         FontCase{"Usual", "Sans 10"},
                                         FontCase{"Serif", "Serif 11"},
                                         FontCase{"Large", "Sans 14"}, FontCase{"Huge", "Sans 22"}),
                         CaseName());

}  // namespace
}  // namespace brelex
