// SPDX-License-Identifier: MIT
#include "database/locate_database.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class LocateDatabaseTest : public testing::Test {
  protected:
    bool Locate() { return LocateDatabase(values_, program_.Text(), picker_, messages_); }

    void ExpectMessage(std::size_t index, const std::string& text, MessageIcon icon,
                       MessageButtons buttons) {
        ASSERT_LT(index, messages_.shown.size());
        EXPECT_EQ(messages_.shown[index].text, text);
        EXPECT_EQ(messages_.shown[index].title, "Brevilexicon");
        EXPECT_EQ(messages_.shown[index].icon, icon);
        EXPECT_EQ(messages_.shown[index].buttons, buttons);
    }

    TestFolder program_;
    TestFolder other_;
    ProgramValues values_;
    FakeFolderPicker picker_;
    FakeMessageSink messages_;
};

constexpr const char* kQuestion =
    "Brevilexicon cannot find the 'Acronyms.dat' database file. Do you want to try to find this "
    "yourself?";

TEST_F(LocateDatabaseTest, TheFileInTheProgramsFolderIsFoundWithoutAWord) {
    program_.Write("Acronyms.dat", "x");
    EXPECT_TRUE(Locate());
    EXPECT_EQ(values_.AppFolder, program_.Text());
    EXPECT_EQ(values_.DatabasePath, program_.Text() + "Acronyms.dat");
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(LocateDatabaseTest, CaseOfTheFileNameDoesNotMatter) {
    program_.Write("acronyms.DAT", "x");
    EXPECT_TRUE(Locate());
    EXPECT_EQ(ReadText(PathOfUtf8(values_.DatabasePath)), "x");
}

TEST_F(LocateDatabaseTest, AFolderOfThatNameIsNotTheFile) {
    std::filesystem::create_directory(program_.Path() / "Acronyms.dat");
    messages_.answers = {MessageAnswer::No};
    EXPECT_FALSE(Locate());
}

TEST_F(LocateDatabaseTest, ALongerNameIsNotTheFile) {
    program_.Write("Acronyms.data", "x");
    EXPECT_FALSE(Locate());
}

TEST_F(LocateDatabaseTest, NoEndsWithTheAdviceToReinstall) {
    messages_.answers = {MessageAnswer::No};
    EXPECT_FALSE(Locate());
    ASSERT_EQ(messages_.shown.size(), 2U);
    ExpectMessage(0, kQuestion, MessageIcon::Question, MessageButtons::YesNo);
    ExpectMessage(1,
                  "Brevilexicon cannot find the 'Acronyms.dat' database file. Check to see that "
                  "the file exists on your disk. If it doesn't, you need to reinstall "
                  "Brevilexicon.",
                  MessageIcon::Stop, MessageButtons::Ok);
    EXPECT_TRUE(picker_.titles.empty());
}

TEST_F(LocateDatabaseTest, CancellingTheFolderBrowserEndsWithoutAFurtherMessage) {
    messages_.answers = {MessageAnswer::Yes};
    EXPECT_FALSE(Locate());
    EXPECT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(picker_.titles, std::vector<std::string>{"Location of Acronyms.dat"});
}

TEST_F(LocateDatabaseTest, TheChosenFolderIsTaken) {
    other_.Write("Acronyms.dat", "x");
    messages_.answers = {MessageAnswer::Yes};
    picker_.folders = {other_.Text()};
    EXPECT_TRUE(Locate());
    EXPECT_EQ(values_.DatabasePath, other_.Text() + "Acronyms.dat");
    EXPECT_EQ(values_.AppFolder, program_.Text());
    EXPECT_EQ(messages_.shown.size(), 1U);
}

TEST_F(LocateDatabaseTest, AfterAFailedFolderThereIsAnotherTryAsOftenAsTheUserSaysYes) {
    other_.Write("Acronyms.dat", "x");
    messages_.answers = {MessageAnswer::Yes, MessageAnswer::Yes, MessageAnswer::Yes};
    picker_.folders = {program_.Text(), program_.Text(), other_.Text()};
    EXPECT_TRUE(Locate());
    ASSERT_EQ(messages_.shown.size(), 3U);
    const std::string again = "Brevilexicon could not find the 'Acronyms.dat' database file in " +
                              program_.Text() + "\n\nDo you want to try again?";
    ExpectMessage(1, again, MessageIcon::Question, MessageButtons::YesNo);
    ExpectMessage(2, again, MessageIcon::Question, MessageButtons::YesNo);
    EXPECT_EQ(picker_.titles.size(), 3U);
}

TEST_F(LocateDatabaseTest, NoToAnotherTryEndsWithoutAFurtherMessage) {
    messages_.answers = {MessageAnswer::Yes, MessageAnswer::No};
    picker_.folders = {other_.Text()};
    EXPECT_FALSE(Locate());
    EXPECT_EQ(messages_.shown.size(), 2U);
}

TEST_F(LocateDatabaseTest, CancellingTheSecondTryEndsWithoutAFurtherMessage) {
    messages_.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    picker_.folders = {other_.Text()};
    EXPECT_FALSE(Locate());
    EXPECT_EQ(messages_.shown.size(), 2U);
}

TEST_F(LocateDatabaseTest, AMissingProgramFolderIsLikeAMissingFile) {
    EXPECT_FALSE(LocateDatabase(values_, program_.Text() + "nowhere", picker_, messages_));
    ExpectMessage(0, kQuestion, MessageIcon::Question, MessageButtons::YesNo);
}

}  // namespace
}  // namespace brelex
