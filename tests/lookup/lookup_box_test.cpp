// SPDX-License-Identifier: MIT
#include "lookup/lookup_box.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

// A window without a screen: a box, a list of which three rows are visible, a label.
class FakeView final : public LookupView {
  public:
    explicit FakeView(const RowList& rows) : rows_(rows) {}

    [[nodiscard]] std::int32_t SelectedRow() const override { return selected; }

    void SelectRow(std::int32_t row, Scrolling scrolling) override {
        FailOnce();
        selected = row;
        if (scrolling == Scrolling::SecondFromTop) {
            topRow = std::max(row - 1, 0);
        }
    }

    void SendKeyToList(NavigationKey key) override {
        FailOnce();
        if (key == NavigationKey::Enter) {
            ++viewerOpened;
            return;
        }
        const std::int32_t row = RowAfterKey(key, selected, rows_.RowCount(), 3);
        if (row != selected) {
            selected = row;
            lookup->OnListClick(row);
        }
    }

    void SetBoxText(const std::string& text) override {
        FailOnce();
        box = text;
    }

    void MoveCaretToEnd() override { ++caretMoves; }

    void SetRecordNumberText(const std::string& text) override { number = text; }

    std::string AskText(const std::string& title, const std::string& prompt,
                        const std::string& defaultText) override {
        asked = title + "|" + prompt + "|" + defaultText;
        return answer;
    }

    LookupBox* lookup = nullptr;
    std::int32_t selected = -1;
    std::int32_t topRow = 0;
    std::string box;
    std::string number;
    std::string asked;
    std::string answer;
    int caretMoves = 0;
    int viewerOpened = 0;
    bool fails = false;  // the next call that changes something has not enough memory

  private:
    void FailOnce() {
        if (std::exchange(fails, false)) {
            throw std::bad_alloc();
        }
    }

    const RowList& rows_;
};

class LookupBoxTest : public testing::Test {
  protected:
    LookupBoxTest() {
        values_.AcronymList = &rows_;
        values_.RecordCount = rows_.RowCount();
        view_.lookup = &lookup_;
    }

    void Type(const std::string& text) {
        view_.box = text;
        lookup_.OnBoxChanged(text);
    }

    FakeRows rows_{{"AA\tx", "AB\tx", "AB\ty", "AC\tx", "XML\tx", "XSS\tx", "Z\xC9\tx"}};
    ProgramValues values_;
    FakeView view_{rows_};
    FakeMessageSink messages_;
    LookupBox lookup_{values_, view_, messages_};
};

TEST_F(LookupBoxTest, BeginsWithTheFirstRowAndAnEmptyBox) {
    EXPECT_EQ(lookup_.FoundRow, 0);
    EXPECT_EQ(lookup_.LastText, "");
    EXPECT_FALSE(lookup_.IsNavigating);
    EXPECT_FALSE(lookup_.IsLookupBusy);
}

TEST_F(LookupBoxTest, TypingSelectsTheFirstEntrySecondFromTheTop) {
    Type("A");
    Type("AB");
    EXPECT_EQ(view_.selected, 1);
    EXPECT_EQ(view_.topRow, 0);
    EXPECT_EQ(view_.number, "2");
    EXPECT_EQ(lookup_.FoundRow, 1);
    EXPECT_EQ(lookup_.LastText, "AB");
}

TEST_F(LookupBoxTest, WithNoMatchTheLongestBeginningCounts) {
    Type("X");
    Type("XQ");
    EXPECT_EQ(view_.selected, 4);
    EXPECT_EQ(view_.number, "5");
}

TEST_F(LookupBoxTest, ClearingTheBoxSelectsTheFirstRow) {
    Type("XSS");
    Type("");
    EXPECT_EQ(view_.selected, 0);
    EXPECT_EQ(view_.topRow, 0);
    EXPECT_EQ(view_.number, "1");
}

TEST_F(LookupBoxTest, ARowThatIsSelectedAlreadyIsNotScrolled) {
    Type("X");
    view_.topRow = 2;
    Type("XM");
    EXPECT_EQ(view_.selected, 4);
    EXPECT_EQ(view_.topRow, 2);
}

TEST_F(LookupBoxTest, TextOutsideTheCodePageMatchesNothing) {
    Type("AB日");
    EXPECT_EQ(view_.selected, 1);
}

TEST_F(LookupBoxTest, RecordNumbersAreGrouped) {
    std::vector<std::string> many;
    many.reserve(1500);
    for (int i = 0; i < 1500; ++i) {
        many.push_back("A" + std::to_string(10000 + i) + "\tx");
    }
    const FakeRows rows(many);
    values_.AcronymList = &rows;
    values_.groupSeparator = ".";
    Type("A11233");
    EXPECT_EQ(view_.number, "1.234");
}

TEST_F(LookupBoxTest, DownMovesTheSelectionAndShowsItsAbbreviation) {
    Type("AB");
    lookup_.OnBoxKeyDown(NavigationKey::Down);
    lookup_.OnBoxKeyDown(NavigationKey::Down);
    EXPECT_EQ(view_.selected, 3);
    EXPECT_EQ(view_.box, "AC");
    EXPECT_EQ(view_.number, "4");
    EXPECT_EQ(view_.caretMoves, 2);
    EXPECT_EQ(lookup_.LastText, "AC");
    EXPECT_FALSE(lookup_.IsNavigating);
    EXPECT_FALSE(lookup_.IsLookupBusy);
}

TEST_F(LookupBoxTest, AnAccentInTheAbbreviationReachesTheBox) {
    Type("Z");
    lookup_.GoToRecordNumber(RecordNumber{7});
    EXPECT_EQ(view_.box, "ZÉ");
}

TEST_F(LookupBoxTest, EnterGoesToTheListAndLeavesTheBox) {
    Type("AB");
    lookup_.OnBoxKeyDown(NavigationKey::Enter);
    EXPECT_EQ(view_.viewerOpened, 1);
    EXPECT_EQ(view_.box, "AB");
}

TEST_F(LookupBoxTest, AClickWritesTheBoxOnlyWhileTheListNavigates) {
    view_.selected = 4;
    lookup_.OnListClick(4);
    EXPECT_EQ(view_.box, "");
    EXPECT_EQ(view_.number, "");
    lookup_.OnListGotFocus();
    lookup_.OnListClick(4);
    EXPECT_EQ(view_.box, "XML");
    EXPECT_EQ(view_.number, "5");
    lookup_.OnListLostFocus();
    EXPECT_FALSE(lookup_.IsNavigating);
}

TEST_F(LookupBoxTest, TextFromTheListIsNotLookedUp) {
    lookup_.OnListGotFocus();
    view_.selected = 2;  // the second AB
    lookup_.OnListClick(2);
    EXPECT_EQ(view_.selected, 2);
    lookup_.OnListLostFocus();
    Type("A");
    EXPECT_EQ(view_.selected, 0);
}

TEST_F(LookupBoxTest, TheMenuOfARowWritesItsAbbreviationAndLooksNothingUp) {
    Type("X");
    view_.selected = 2;
    lookup_.OnListMenu(2);
    EXPECT_EQ(view_.box, "AB");
    EXPECT_EQ(view_.number, "3");
    EXPECT_EQ(view_.selected, 2);
    EXPECT_FALSE(lookup_.IsNavigating);
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, TypingGoesOnAfterALookUpThatFailed) {
    view_.fails = true;
    EXPECT_THROW(Type("X"), std::bad_alloc);
    EXPECT_FALSE(lookup_.IsLookupBusy);
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, TypingGoesOnAfterAKeyThatFailed) {
    view_.fails = true;
    EXPECT_THROW(lookup_.OnBoxKeyDown(NavigationKey::Down), std::bad_alloc);
    EXPECT_FALSE(lookup_.IsNavigating);
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, TypingGoesOnAfterARecordNumberThatFailed) {
    view_.fails = true;
    EXPECT_THROW(lookup_.GoToRecordNumber(RecordNumber{3}), std::bad_alloc);
    EXPECT_FALSE(lookup_.IsNavigating);
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, TextThatChangesOnlyInCaseStopsTheListForGood) {
    Type("AB");
    Type("ab");
    EXPECT_TRUE(lookup_.IsLookupBusy);
    Type("XML");
    EXPECT_EQ(view_.selected, 1);
    Type("");
    EXPECT_EQ(view_.selected, 1);
    // Keys, clicks and record numbers go on working.
    lookup_.OnBoxKeyDown(NavigationKey::Down);
    EXPECT_EQ(view_.selected, 2);
    EXPECT_EQ(view_.box, "AB");
    lookup_.GoToRecordNumber(RecordNumber{6});
    EXPECT_EQ(view_.selected, 5);
    EXPECT_EQ(view_.box, "XSS");
    EXPECT_EQ(view_.number, "6");
}

// Toolkits report changes where there are none: a letter that no longer fits, all text selected.
TEST_F(LookupBoxTest, AReportWithoutAChangeIsNone) {
    Type("");
    EXPECT_FALSE(lookup_.IsLookupBusy);
    Type("XML");
    Type("XML");
    EXPECT_FALSE(lookup_.IsLookupBusy);
    Type("AB");
    EXPECT_EQ(view_.selected, 1);
    lookup_.OnBoxKeyDown(NavigationKey::Down);
    lookup_.OnBoxKeyDown(NavigationKey::Down);
    EXPECT_EQ(view_.box, "AC");
    Type("AC");
    EXPECT_FALSE(lookup_.IsLookupBusy) << "nor after a text that the list wrote";
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, AnEntryChosenElsewhereIsSecondFromTheTop) {
    lookup_.ShowChosen("AB\ty");
    EXPECT_EQ(view_.selected, 2);
    EXPECT_EQ(view_.topRow, 1);
    EXPECT_EQ(view_.box, "AB");
    EXPECT_EQ(view_.number, "3");
    EXPECT_EQ(view_.caretMoves, 1);
    lookup_.ShowChosen("xs");
    EXPECT_EQ(view_.selected, 5);
    EXPECT_EQ(view_.box, "XSS");
}

TEST_F(LookupBoxTest, ChoosingWhatTheBoxHasIsNotTyping) {
    Type("AB");
    lookup_.ShowChosen("AB\tx");
    lookup_.ShowChosen("AB\tx");
    EXPECT_FALSE(lookup_.IsLookupBusy);
    EXPECT_FALSE(lookup_.IsNavigating);
    Type("XS");
    EXPECT_EQ(view_.selected, 5);
}

TEST_F(LookupBoxTest, TheOnlyEntryCanBeChosen) {
    const FakeRows one({"AB\tx"});
    values_.AcronymList = &one;
    lookup_.ShowChosen("AB\tx");
    EXPECT_EQ(view_.box, "AB");
}

TEST_F(LookupBoxTest, NothingCanBeChosenFromAnEmptyList) {
    const FakeRows none({});
    values_.AcronymList = &none;
    lookup_.ShowChosen("AB\tx");
    EXPECT_EQ(view_.selected, -1);
    EXPECT_EQ(view_.box, "");
}

TEST_F(LookupBoxTest, GoToRecordNumberSelectsAndLooksNothingUp) {
    lookup_.GoToRecordNumber(RecordNumber{3});
    EXPECT_EQ(view_.selected, 2);
    EXPECT_EQ(view_.box, "AB");
    EXPECT_EQ(view_.number, "3");
    EXPECT_EQ(view_.caretMoves, 1);
    EXPECT_EQ(view_.asked, "");
    EXPECT_FALSE(lookup_.IsNavigating);
}

TEST_F(LookupBoxTest, GoToRecordNumberLeavesNavigatingAsItWas) {
    lookup_.OnListGotFocus();
    lookup_.GoToRecordNumber(RecordNumber{3});
    EXPECT_TRUE(lookup_.IsNavigating);
}

struct AnswerCase {
    const char* name;
    const char* answer;
    std::optional<std::int32_t> row;  // selected; none if refused
};

class GoToRecordTest : public LookupBoxTest, public testing::WithParamInterface<AnswerCase> {};

TEST_P(GoToRecordTest, TakesTheAnswer) {
    lookup_.GoToRecordNumber(RecordNumber{2});
    view_.answer = GetParam().answer;
    lookup_.GoToRecordNumber(kAskForRecord);
    EXPECT_EQ(view_.asked, "Go to Record|Go to record (1 - 7):|2");
    EXPECT_EQ(view_.selected, GetParam().row.value_or(1));
    const bool refused = !GetParam().row && *GetParam().answer != '\0';
    ASSERT_EQ(messages_.shown.size(), refused ? 1U : 0U);
    if (refused) {
        EXPECT_EQ(messages_.shown[0].text, "Invalid record number");
        EXPECT_EQ(messages_.shown[0].title, "Go to Record");
        EXPECT_EQ(messages_.shown[0].icon, MessageIcon::Exclamation);
        EXPECT_EQ(messages_.shown[0].buttons, MessageButtons::Ok);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Answers, GoToRecordTest,
    testing::Values(AnswerCase{"ANumber", "4", 3}, AnswerCase{"ZeroIsTheFirst", "0", 0},
                    AnswerCase{"NegativeIsTheFirst", "-20", 0},
                    AnswerCase{"MinusOneTypedIsTheFirst", "-1", 0},
                    AnswerCase{"HugeIsTheLast", "2000000000", 6}, AnswerCase{"Grouped", "1,000", 6},
                    AnswerCase{"Blanks", " 5 ", 4}, AnswerCase{"Letters", "abc", std::nullopt},
                    AnswerCase{"Beyond32Bits", "3000000000", std::nullopt},
                    AnswerCase{"OnlyABlank", " ", std::nullopt},
                    AnswerCase{"CancelIsSilent", "", std::nullopt}),
    CaseName());

TEST(LookupBoxWithOneEntry, IsSelectedByTypingAndByItsNumber) {
    const FakeRows rows({"A\tx"});
    ProgramValues values;
    values.AcronymList = &rows;
    values.RecordCount = 1;
    FakeView view(rows);
    FakeMessageSink messages;
    LookupBox lookup(values, view, messages);
    view.lookup = &lookup;
    lookup.OnBoxChanged("A");
    EXPECT_EQ(view.selected, 0);
    view.selected = -1;
    lookup.GoToRecordNumber(RecordNumber{1});
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(view.number, "1");
}

TEST(LookupBoxWithoutEntries, NothingIsSelectedAndNothingFails) {
    const FakeRows rows({});
    ProgramValues values;
    values.AcronymList = &rows;
    FakeView view(rows);
    FakeMessageSink messages;
    LookupBox lookup(values, view, messages);
    view.lookup = &lookup;
    view.box = "A";
    lookup.OnBoxChanged(view.box);
    lookup.OnBoxKeyDown(NavigationKey::Down);
    lookup.GoToRecordNumber(RecordNumber{1});
    EXPECT_EQ(view.selected, -1);
    EXPECT_EQ(view.number, "0");
    EXPECT_EQ(view.box, "A");
}

}  // namespace
}  // namespace brelex
