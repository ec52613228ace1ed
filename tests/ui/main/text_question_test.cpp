// SPDX-License-Identifier: MIT
#include "ui/main/text_question.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <wx/textctrl.h>

#include "tests/platform/keyboard.h"
#include "tests/platform/screen.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"

namespace brelex {
namespace {

class TextQuestionTest : public MainWindowTest {
  protected:
    // Asks over the main window, calls `look` when the question is up and then presses `key`.
    std::string Ask(const wxString& prompt, const std::function<void(TextQuestion&)>& look,
                    const std::string& keys, int lastKey) {
        TextQuestion question(window_, "A title", prompt, "123");
        ModalDriver driver(
            {[&] { return question.IsShown() && HasKeyboard(question); },
             [&] {
                 look(question);
                 return true;
             },
             [&] {
                 user_.Text(keys.c_str());
                 return true;
             },
             [&] { return Answer(question).GetValue() == (keys.empty() ? "123" : keys); },
             [&] {
                 user_.Char(lastKey);
                 return true;
             }});
        const int result = question.ShowModal();
        EXPECT_TRUE(driver.Done());
        return result == wxID_OK ? Utf8Text(question.GetValue()) : "(none)";
    }

    static wxTextCtrl& Answer(const wxWindow& question) {
        return dynamic_cast<wxTextCtrl&>(*wxWindow::FindWindowByName("txtAnswer", &question));
    }
};

TEST_F(TextQuestionTest, TypingReplacesTheProposedText) {
    EXPECT_EQ(Ask(
                  "How many?",
                  [](TextQuestion& question) {
                      EXPECT_EQ(question.GetTitle(), "A title");
                      EXPECT_EQ(Answer(question).GetValue(), "123");
                      EXPECT_EQ(Answer(question).GetStringSelection(), "123");
                  },
                  "7", WXK_RETURN),
              "7");
}

TEST_F(TextQuestionTest, EnterAloneTakesTheProposedTextAndEscapeGivesNone) {
    const auto look = [](TextQuestion&) {};
    EXPECT_EQ(Ask("How many?", look, "", WXK_RETURN), "123");
    EXPECT_EQ(Ask("How many?", look, "5", WXK_ESCAPE), "(none)");
}

TEST_F(TextQuestionTest, CarriesTheProgramsIconAndCannotBeResized) {
    Ask(
        "How many?",
        [](TextQuestion& question) {
            auto* const window = SystemWindowOf(question);
            EXPECT_TRUE(ShowsTheProgramsIcon(window));
            EXPECT_FALSE(CanBeResized(window));
        },
        "", WXK_ESCAPE);
}

TEST_F(TextQuestionTest, AScreenReaderSaysThePromptInItsBox) {
    Ask(
        "How many (1 - 7):",
        [](TextQuestion& question) {
            EXPECT_EQ(SpokenNameOf(Answer(question)), "How many (1 - 7):");
        },
        "", WXK_ESCAPE);
}

TEST_F(TextQuestionTest, ALongPromptIsWholeOnTheScreen) {
    wxString prompt;
    for (int i = 0; i < 60; ++i) {
        prompt += "many words ";
    }
    Ask(
        prompt + "end",
        [](TextQuestion& question) {
            EXPECT_TRUE(wxRect(wxGetDisplaySize()).Contains(question.GetScreenRect()));
            for (const wxWindow* child : question.GetChildren()) {
                EXPECT_TRUE(question.GetClientRect().Contains(child->GetRect()));
                EXPECT_GE(child->GetSize().x, child->GetBestSize().x);
                EXPECT_GE(child->GetSize().y, child->GetBestSize().y);
            }
        },
        "", WXK_ESCAPE);
}

}  // namespace
}  // namespace brelex
