// SPDX-License-Identifier: MIT
#include "platform/system/modShowHelp.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class ShowHelpTest : public testing::Test {
  protected:
    void ShowHelp(const std::string& page = {}) {
        ShowHelpContents({folder_.Text(), "brevilexicon"}, desktop_, messages_, page);
    }

    void ReadMe() { OpenReadMe({folder_.Text(), "brevilexicon"}, desktop_, messages_); }

    void ExpectMessage(const std::string& text, MessageIcon icon) {
        ASSERT_EQ(messages_.shown.size(), 1U);
        EXPECT_EQ(messages_.shown[0].text, text);
        EXPECT_EQ(messages_.shown[0].title, "Brevilexicon");
        EXPECT_EQ(messages_.shown[0].icon, icon);
        EXPECT_EQ(messages_.shown[0].buttons, MessageButtons::Ok);
    }

    TestFolder folder_;
    FakeDesktop desktop_;
    FakeMessageSink messages_;
};

using Strings = std::vector<std::string>;

const char* const kNoHelp =
    "Cannot find the Help file Brelex.hlp. Ensure that the file exists on your disk. Otherwise you "
    "may need to reinstall brevilexicon.";

TEST_F(ShowHelpTest, StartsTheViewerBesideTheProgram) {
    const std::string path = folder_.Write("Brelex.hlp", "help");
    desktop_.hasViewer = true;
    ShowHelp();
    ASSERT_EQ(desktop_.viewersStarted.size(), 1U);
    EXPECT_EQ(desktop_.viewersStarted[0], (Strings{folder_.Text(), path, ""}));
    EXPECT_TRUE(desktop_.opened.empty());
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(ShowHelpTest, StartsTheViewerAtAPage) {
    const std::string path = folder_.Write("Brelex.hlp", "help");
    desktop_.hasViewer = true;
    ShowHelp("search.html#limit");
    ASSERT_EQ(desktop_.viewersStarted.size(), 1U);
    EXPECT_EQ(desktop_.viewersStarted[0], (Strings{folder_.Text(), path, "search.html#limit"}));
}

TEST_F(ShowHelpTest, WithoutThatViewerTheDesktopOpensTheFile) {
    const std::string path = folder_.Write("Brelex.hlp", "help");
    ShowHelp("search.html");
    EXPECT_EQ(desktop_.opened, Strings{path});
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(ShowHelpTest, BringsAnOpenViewerForwardInsteadOfStartingAnother) {
    folder_.Write("Brelex.hlp", "help");
    desktop_.openWindow = "Brevilexicon Help";
    ShowHelp();
    EXPECT_EQ(desktop_.broughtForward, Strings{"Brevilexicon Help"});
    EXPECT_TRUE(desktop_.opened.empty());
    EXPECT_TRUE(desktop_.viewersStarted.empty());
    EXPECT_TRUE(desktop_.turnedTo.empty()) << "the reader's place is lost";
}

TEST_F(ShowHelpTest, AnOpenViewerTurnsToThePage) {
    folder_.Write("Brelex.hlp", "help");
    desktop_.openWindow = "Brevilexicon Help";
    desktop_.hasViewer = true;
    ShowHelp("search.html");
    EXPECT_EQ(desktop_.broughtForward, Strings{"Brevilexicon Help"});
    EXPECT_EQ(desktop_.turnedTo, Strings{"Brevilexicon Help search.html"});
    EXPECT_TRUE(desktop_.viewersStarted.empty());
}

TEST_F(ShowHelpTest, AViewerOfAnotherNameIsNotTheOne) {
    folder_.Write("Brelex.hlp", "help");
    desktop_.openWindow = "Help";
    ShowHelp("search.html");
    EXPECT_EQ(desktop_.opened.size(), 1U);
    EXPECT_TRUE(desktop_.turnedTo.empty());
}

TEST_F(ShowHelpTest, SaysThatTheFileIsMissingEvenWithAnOpenViewer) {
    desktop_.openWindow = "Brevilexicon Help";
    desktop_.hasViewer = true;
    ShowHelp("search.html");
    ExpectMessage(kNoHelp, MessageIcon::Information);
    EXPECT_TRUE(desktop_.broughtForward.empty());
    EXPECT_TRUE(desktop_.viewersStarted.empty());
}

TEST_F(ShowHelpTest, AFolderOfThatNameIsNoFile) {
    std::filesystem::create_directory(folder_.Path() / "Brelex.hlp");
    ShowHelp();
    ExpectMessage(kNoHelp, MessageIcon::Information);
}

TEST_F(ShowHelpTest, AMissingFolderHasNoFile) {
    ShowHelpContents({folder_.Text() + "nowhere/", "brevilexicon"}, desktop_, messages_);
    ExpectMessage(kNoHelp, MessageIcon::Information);
}

TEST_F(ShowHelpTest, FindsTheFileInAnyCase) {
    folder_.Write("BRELEX.HLP", "help");
    ShowHelp();
    ASSERT_EQ(desktop_.opened.size(), 1U);
    EXPECT_EQ(ReadText(PathOfUtf8(desktop_.opened[0])), "help");
}

TEST_F(ShowHelpTest, SaysThatThereIsNoProgramForIt) {
    folder_.Write("Brelex.hlp", "help");
    desktop_.hasPrograms = false;
    ShowHelp();
    ExpectMessage(
        "Cannot find the associated application to open the Help file. Unable to display Help.",
        MessageIcon::Information);
}

TEST_F(ShowHelpTest, ClosingAsksTheViewerToClose) {
    CloseHelp(desktop_);
    EXPECT_EQ(desktop_.askedToClose, Strings{"Brevilexicon Help"});
}

TEST_F(ShowHelpTest, OpensTheReadMe) {
    const std::string path = folder_.Write("ReadMe.txt", "text");
    ReadMe();
    EXPECT_EQ(desktop_.openedToRead, Strings{path});
}

TEST_F(ShowHelpTest, FindsTheReadMeInAnyCase) {
    folder_.Write("readme.TXT", "text");
    ReadMe();
    ASSERT_EQ(desktop_.openedToRead.size(), 1U);
    EXPECT_EQ(ReadText(PathOfUtf8(desktop_.openedToRead[0])), "text");
}

TEST_F(ShowHelpTest, SaysThatTheReadMeIsMissing) {
    folder_.Write("ReadMe.text", "text");
    ReadMe();
    ExpectMessage("Cannot find file \"ReadMe.txt\"", MessageIcon::Stop);
    EXPECT_TRUE(desktop_.openedToRead.empty());
}

TEST_F(ShowHelpTest, SaysNothingOfAReadMeThatNoProgramOpens) {
    folder_.Write("ReadMe.txt", "text");
    desktop_.hasPrograms = false;
    ReadMe();
    EXPECT_EQ(desktop_.openedToRead.size(), 1U);
    EXPECT_TRUE(messages_.shown.empty());
}

}  // namespace
}  // namespace brelex
