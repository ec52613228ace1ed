// SPDX-License-Identifier: MIT
#include "platform/desktop/wx_message_sink.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/frame.h>

#include "tests/platform/keyboard.h"
#include "tests/platform/system_box.h"
#include "tests/support/named_case.h"
#include "tests/ui/pictures.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {
namespace {

bool ShowsIcon(SystemWindow box, MessageIcon icon) {
    wxRect area = IconAreaOfBox(box);
    if (icon == MessageIcon::None) {
        return area.IsEmpty();
    }
    if (area.IsEmpty()) {
        return false;
    }
    const wxImage expected = StandardIcon(icon, ColourAt(PictureOfScreen(area), 0, 0));
    area = wxRect(expected.GetSize()).CentreIn(area);
    return Likeness(PictureOfScreen(area), expected) > 0.9;
}

class WxMessageSinkTest : public testing::Test {
  protected:
    // Shows a message in a box and calls `look` when the box is up, then `answer` until it is gone.
    static MessageAnswer ShowBox(wxWindow* owner, const Message& message,
                                 const std::function<void(SystemWindow)>& look,
                                 const std::function<void()>& answer) {
        constexpr int kTries = 10;
        int tries = 0;
        const ModalDriver driver({[] { return TakesKeys(OpenMessageBox()); },
                                  [&] {
                                      look(OpenMessageBox());
                                      return true;
                                  },
                                  [&] {
                                      if (++tries > kTries) {
                                          ADD_FAILURE() << "no key closes the box";
                                          CloseBox(OpenMessageBox());
                                      } else if (TakesKeys(OpenMessageBox())) {
                                          answer();
                                      }
                                      return false;
                                  }});
        const MessageAnswer given = WxMessageSink(owner).Show(message);
        EXPECT_TRUE(WaitFor([] { return OpenMessageBox() == nullptr; }));
        return given;
    }

    void PressEnter() { user_.Char(WXK_RETURN); }

    wxUIActionSimulator user_;
};

struct BoxCase {
    const char* name;
    MessageIcon icon;
    MessageButtons buttons;
};

class MessageBoxOf : public WxMessageSinkTest, public testing::WithParamInterface<BoxCase> {};

// An empty line makes no heading of what is before it.
TEST_P(MessageBoxOf, ShowsItsIconItsTextAndItsButtons) {
    const auto& [name, icon, buttons] = GetParam();
    const bool question = buttons == MessageButtons::YesNo;
    const Message message{"First line.\n\nSecond line with \u00E9 & <b>.", "A title", icon,
                          buttons};
    const MessageAnswer answer = ShowBox(
        nullptr, message,
        [&, icon = icon](SystemWindow box) {
            EXPECT_TRUE(WaitFor([&] { return ShowsIcon(box, icon); }));
            EXPECT_EQ(TitleOfBox(box), message.title);
            EXPECT_EQ(TextOfBox(box), message.text);
            EXPECT_TRUE(TellsItsKind(box, icon));
            std::vector<std::string> shown = ButtonsOfBox(box);
            std::sort(shown.begin(), shown.end());
            EXPECT_EQ(shown, question ? std::vector<std::string>({"No", "Yes"})
                                      : std::vector<std::string>({"OK"}));
        },
        [&] { PressEnter(); });
    EXPECT_EQ(answer, question ? MessageAnswer::Yes : MessageAnswer::Ok);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, MessageBoxOf,
    testing::Values(BoxCase{"Information", MessageIcon::Information, MessageButtons::Ok},
                    BoxCase{"InformationQuestion", MessageIcon::Information, MessageButtons::YesNo},
                    BoxCase{"Exclamation", MessageIcon::Exclamation, MessageButtons::Ok},
                    BoxCase{"ExclamationQuestion", MessageIcon::Exclamation, MessageButtons::YesNo},
                    BoxCase{"Question", MessageIcon::Question, MessageButtons::YesNo},
                    BoxCase{"QuestionWithOk", MessageIcon::Question, MessageButtons::Ok},
                    BoxCase{"Stop", MessageIcon::Stop, MessageButtons::Ok},
                    BoxCase{"StopQuestion", MessageIcon::Stop, MessageButtons::YesNo},
                    BoxCase{"None", MessageIcon::None, MessageButtons::Ok}),
    CaseName());

TEST_F(WxMessageSinkTest, TheAccessKeyOfNoAnswersNo) {
    EXPECT_EQ(ShowBox(
                  nullptr, {"Really?", "A title", MessageIcon::Question, MessageButtons::YesNo},
                  [](SystemWindow) {}, [&] { user_.Char('N', wxMOD_ALT); }),
              MessageAnswer::No);
}

TEST_F(WxMessageSinkTest, EscapeClosesAMessage) {
    EXPECT_EQ(ShowBox(
                  nullptr, {"So it is.", "A title", MessageIcon::Stop, MessageButtons::Ok},
                  [](SystemWindow) {}, [&] { user_.Char(WXK_ESCAPE); }),
              MessageAnswer::Ok);
}

// As at the start, when it is the program's only window.
TEST_F(WxMessageSinkTest, ABoxWithoutOwnerCanBeFound) {
    ShowBox(
        nullptr, {"So it is.", "A title", MessageIcon::Stop, MessageButtons::Ok},
        [](SystemWindow box) {
            EXPECT_EQ(OwnerOf(box), nullptr);
            EXPECT_TRUE(WaitFor([&] { return IsKeptAbove(box); }));
            EXPECT_TRUE(IsInTaskBar(box));
            EXPECT_TRUE(ShowsTheProgramsIcon(box));
        },
        [&] { PressEnter(); });
}

class OwnedMessageBox : public WxMessageSinkTest {
  protected:
    void SetUp() override {
        owner_ = new wxFrame(nullptr, wxID_ANY, "Owner", wxPoint(500, 300), wxSize(500, 400));
        child_ = new wxWindow(owner_, wxID_ANY);
        owner_->Show();
        owner_->Raise();
        ASSERT_TRUE(WaitFor([&] { return HasKeyboard(*owner_); }));
    }

    void TearDown() override {
        const wxWeakRef<wxWindow> closing(owner_);
        owner_->Destroy();
        EXPECT_TRUE(WaitFor([&] { return closing == nullptr; }));
    }

    void ExpectItBelongsToTheOwner(wxWindow* given) {
        ShowBox(
            given, {"So it is.", "A title", MessageIcon::Information, MessageButtons::Ok},
            [&](SystemWindow box) {
                EXPECT_EQ(OwnerOf(box), SystemWindowOf(*owner_));
                EXPECT_FALSE(IsInTaskBar(box));
                EXPECT_FALSE(IsKeptAbove(box));
                const wxRect area = AreaOf(box);
                constexpr int kDecorations = 40;
                const wxRect centered = area.CentreIn(owner_->GetScreenRect());
                EXPECT_NEAR(area.x, centered.x, kDecorations);
                EXPECT_NEAR(area.y, centered.y, kDecorations);
            },
            [&] { PressEnter(); });
        EXPECT_TRUE(owner_->IsEnabled());
        EXPECT_TRUE(WaitFor([&] { return HasKeyboard(*owner_); }));
    }

    wxFrame* owner_ = nullptr;
    wxWindow* child_ = nullptr;
};

TEST_F(OwnedMessageBox, LiesOverItsOwner) {
    ExpectItBelongsToTheOwner(owner_);
}

TEST_F(OwnedMessageBox, OfAControlLiesOverTheControlsWindow) {
    ExpectItBelongsToTheOwner(child_);
}

TEST_F(OwnedMessageBox, OfNobodyLiesOverTheWindowInFront) {
    ExpectItBelongsToTheOwner(nullptr);
}

TEST_F(OwnedMessageBox, OfAHiddenOwnerCanBeFound) {
    owner_->Hide();
    ASSERT_TRUE(WaitFor([&] { return !owner_->IsShown(); }));
    ShowBox(
        owner_, {"So it is.", "A title", MessageIcon::Stop, MessageButtons::Ok},
        [](SystemWindow box) {
            EXPECT_TRUE(IsInTaskBar(box));
            EXPECT_TRUE(ShowsTheProgramsIcon(box));
        },
        [&] { PressEnter(); });
}

}  // namespace
}  // namespace brelex
