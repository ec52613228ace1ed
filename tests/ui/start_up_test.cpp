// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <wx/stattext.h>

#include "tests/support/named_case.h"
#include "tests/ui/ui_test_support.h"
#include "toolkit/wx_text.h"
#include "ui/frmSplash.h"

namespace brelex {
namespace {

constexpr const char* kProgramName = "Brevi Lex\xC3\xA9";

class StartUpTest : public testing::Test {
  protected:
    void TearDown() override { EXPECT_FALSE(AnyWindow()); }

    frmMain* Run() { return startUp_.Run(Surroundings(messages_)); }

    StartUpSurroundings Surroundings(MessageSink& messages) {
        return {{files_, desktop_, kProgramName, "",
                 [this](const std::string& folder, const std::string& name, bool enable) {
                     registered_.emplace_back(folder, name, enable);
                     return true;
                 }},
                messages,
                picker_,
                folder_.Text(),
                [this] {
                    clock_ += 1.234F;
                    return clock_;
                }};
    }

    [[nodiscard]] static bool AnyWindow() {
        return !WaitFor([] { return wxTopLevelWindows.empty(); });
    }

    TestFolder folder_;
    FakeMessageSink messages_;
    FakeFolderPicker picker_;
    FakeTemporaryFiles files_{folder_.Text()};
    FakeDesktop desktop_;
    StartUp startUp_;
    float clock_ = 100;
    std::vector<std::tuple<std::string, std::string, bool>>
        registered_;  // what was asked of the log-on
};

TEST_F(StartUpTest, SetsTheValuesOfTheProgram) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx", "DEF\ty"}));
    frmMain* window = Run();
    ASSERT_NE(window, nullptr);
    const ProgramValues& values = startUp_.Values();
    EXPECT_EQ(values.RecordCount, 2);
    EXPECT_EQ(values.AcronymList->RowCount(), 2);
    EXPECT_FLOAT_EQ(values.LoadingTime, 1.23F);
    EXPECT_FLOAT_EQ(values.AppVersion, 1.0F);
    EXPECT_EQ(values.AppFolder, folder_.Text());
    EXPECT_TRUE(messages_.shown.empty());
    window->Destroy();
}

TEST_F(StartUpTest, EveryStartRegistersTheProgramForTheLogOn) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}));
    frmMain* window = Run();
    ASSERT_NE(window, nullptr);
    ASSERT_EQ(registered_.size(), 1U);
    EXPECT_EQ(registered_[0], std::tuple(folder_.Text(), std::string(kProgramName), true));
    window->Destroy();
}

TEST_F(StartUpTest, AStartThatFailsRegistersNothing) {
    folder_.Write("Acronyms.dat", "not a database");
    EXPECT_EQ(Run(), nullptr);
    EXPECT_TRUE(registered_.empty());
}

TEST_F(StartUpTest, TheSplashWindowIsGoneWhenTheMainWindowIsReady) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}));
    frmMain* window = Run();
    EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmSplash") == nullptr; }));
    window->Destroy();
}

TEST_F(StartUpTest, ASecondCopySaysSoAndEnds) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}));
    frmMain* window = Run();
    ASSERT_NE(window, nullptr);
    StartUp second;
    FakeMessageSink told;
    EXPECT_EQ(second.Run(Surroundings(told)), nullptr);
    ASSERT_EQ(told.shown.size(), 1U);
    EXPECT_EQ(told.shown[0].text, "An instance of Brevilexicon is running already");
    EXPECT_EQ(told.shown[0].title, "Brevilexicon");
    EXPECT_EQ(told.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(told.shown[0].buttons, MessageButtons::Ok);
    // The first is unaffected.
    EXPECT_TRUE(StaysFor(80, [&] { return wxTopLevelWindows.Find(window) != nullptr; }));
    EXPECT_EQ(registered_.size(), 1U);
    EXPECT_EQ(startUp_.Values().RecordCount, 1);
    window->Destroy();
}

TEST_F(StartUpTest, WithoutADatabaseTheProgramEndsAfterItsQuestion) {
    EXPECT_EQ(Run(), nullptr);
    EXPECT_EQ(messages_.shown.size(), 2U);
    EXPECT_FALSE(AnyWindow());
}

TEST_F(StartUpTest, ADamagedDatabaseEndsTheProgramAfterItsMessage) {
    folder_.Write("Acronyms.dat", "not a database");
    EXPECT_EQ(Run(), nullptr);
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].text,
              "Cannot decode a corrupt database. Loading was aborted.\n\nPlease, reinstall "
              "Brevilexicon.");
    EXPECT_FALSE(AnyWindow());
}

TEST_F(StartUpTest, AnEmptyDatabaseOpensWithAnEmptyList) {
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}, [](DatabaseHeader& header) {
                      header.RecordCount = 0;
                      header.MaxAbbrvLength = -5;
                  }));
    frmMain* window = Run();
    ASSERT_NE(window, nullptr);
    window->Show();
    EXPECT_TRUE(StaysFor(200, [&] { return window->List().SelectedRow() == -1; }));
    window->GoToRecordNumber(RecordNumber{1});
    EXPECT_EQ(window->List().SelectedRow(), -1);
    window->Destroy();
}

struct CommandCase {
    const char* name;
    const char* commandLine;
    bool minimised;
};

class CommandLineTest : public MainWindowTest, public testing::WithParamInterface<CommandCase> {
  protected:
    void SetUp() override {}
};

TEST_P(CommandLineTest, OnlyTheExactWordMinimises) {
    Start({"ABC\tx"}, GetParam().commandLine);
    EXPECT_FALSE(IsMinimised());
    if (GetParam().minimised) {
        EXPECT_TRUE(WaitFor([&] { return IsMinimised(); }));
    } else {
        EXPECT_TRUE(StaysFor(900, [&] { return !IsMinimised(); }));
    }
}

INSTANTIATE_TEST_SUITE_P(Lines, CommandLineTest,
                         testing::Values(CommandCase{"TheWord", "/minimize", true},
                                         CommandCase{"Capitals", "/MINIMIZE", false},
                                         CommandCase{"LeadingBlank", " /minimize", false},
                                         CommandCase{"TrailingBlank", "/minimize ", false},
                                         CommandCase{"FurtherArgument", "/minimize x", false},
                                         CommandCase{"Nothing", "", false}),
                         CaseName());

class FrmSplashTest : public testing::Test {
  protected:
    void SetUp() override {
        info_.majorVersion = 6;
        info_.minorVersion = 1;
        info_.copyright = "Copyright & more";
        info_.homePage = "https://www.example.org";
        splash_ = new frmSplash(info_);
        splash_->Show();
        splash_->WaitUntilSeen();
    }

    void TearDown() override {
        splash_->Destroy();
        EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmSplash") == nullptr; }));
    }

    [[nodiscard]] wxStaticText* Label(const char* name) const {
        return dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName(name, splash_));
    }

    [[nodiscard]] std::string Text(const char* name) const {
        return Utf8Text(Label(name)->GetLabelText());
    }

    AppInfo info_;
    frmSplash* splash_ = nullptr;
};

TEST_F(FrmSplashTest, ShowsWhatTheProgramIs) {
    EXPECT_TRUE(splash_->IsShownOnScreen());
    EXPECT_EQ(Text("lblVersion"), "version 6.1");
    EXPECT_EQ(Text("lblPunchLine"), "The best offline database of computer acronyms");
    EXPECT_EQ(Text("lblCopyRight"), "Copyright & more\nAll Rights Reserved");
    EXPECT_EQ(Text("lblEmail"), "https://www.example.org");
    EXPECT_EQ(Text("lblMessage"), "Decoding database. Please, wait...");
    EXPECT_EQ(Text("lblPercent"), "");
}

TEST_F(FrmSplashTest, ThePercentageStartsRightBehindTheMessage) {
    WorkWatcher& progress = *splash_;
    progress.SetStatusText("Loading database (1,234 records). Please, wait...");
    wxMilliSleep(50);
    progress.SetProgress(42);
    EXPECT_EQ(Text("lblMessage"), "Loading database (1,234 records). Please, wait...");
    EXPECT_EQ(Text("lblPercent"), "42%");
    const wxRect message = Label("lblMessage")->GetRect();
    EXPECT_EQ(Label("lblPercent")->GetPosition(), wxPoint(message.x + message.width, message.y));
    EXPECT_GE(message.width, Label("lblMessage")->GetTextExtent(Label("lblMessage")->GetLabel()).x);
    const wxRect percent = Label("lblPercent")->GetRect();
    EXPECT_TRUE(splash_->GetClientRect().Contains(percent))
        << percent.x << " " << percent.y << " " << percent.width << " " << percent.height << " in "
        << splash_->GetClientSize().x << " " << splash_->GetClientSize().y;
}

TEST_F(FrmSplashTest, TheUserCannotCloseItWhileLoading) {
    splash_->Close();
    EXPECT_TRUE(StaysFor(80, [] { return wxWindow::FindWindowByName("frmSplash") != nullptr; }));
    splash_->WaitUntilSeen();
}

TEST_F(FrmSplashTest, TheLastPercentageIsAlwaysShown) {
    splash_->SetProgress(99);
    splash_->SetProgress(100);
    EXPECT_EQ(Text("lblPercent"), "100%");
}

}  // namespace
}  // namespace brelex
