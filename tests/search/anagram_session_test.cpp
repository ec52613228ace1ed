// SPDX-License-Identifier: MIT
#include "search/anagram_session.h"

#include <cstddef>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

// A window that keeps what it is told, and in which a test may do something while events run.
class FakeAnagramView final : public AnagramView {
  public:
    void ShowDisplay(const AnagramDisplay& display) override {
        shown = display;
        if (!display.percentDone.empty() &&
            (percents.empty() || percents.back() != display.percentDone)) {
            percents.push_back(display.percentDone);
        }
    }

    void ShowRows() override { ++showings; }

    void MoveFocus(AnagramFocus newFocus) override { focus = newFocus; }

    void AddToHistory() override { ++additionsToHistory; }

    void LetEventsRun() override {
        if (onEvents) {
            onEvents();
        }
    }

    void EmptyLetters() override { isEmptied = true; }

    void HideWindow() override { isHidden = true; }

    AnagramDisplay shown;
    std::vector<std::string> percents;  ///< and counts, in their order
    int showings = 0;
    AnagramFocus focus = AnagramFocus::Letters;
    int additionsToHistory = 0;
    bool isEmptied = false;
    bool isHidden = false;
    std::function<void()> onEvents;
};

std::vector<std::string> AnagramEntries() {
    std::vector<std::string> records = {
        "C-PU\tHyphenated", "CP U\tWith a blank", "CPU\tCentral Processing Unit",
        "UCP\tUniform Cp",  "ram\tSmall",         "Zz\tLast"};
    for (int i = 0; i < 244; ++i) {
        records.push_back("M" + std::to_string(10000 + i) + "\tMiddle entry");
    }
    return records;
}

class AnagramSessionTest : public testing::Test {
  protected:
    AnagramSessionTest() {
        values_.AcronymList = &rows_;
        values_.Header.MaxAbbrvLength = 6;
        session_.Open();
    }

    void Search(const std::string& letters) {
        session_.OnLettersChanged(letters);
        session_.RunSearch(letters);
    }

    [[nodiscard]] std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        rows.reserve(static_cast<std::size_t>(session_.Rows().RowCount()));
        for (std::int32_t row = 0; row < session_.Rows().RowCount(); ++row) {
            rows.emplace_back(session_.Rows().RowText(row));
        }
        return rows;
    }

    FakeRows rows_{AnagramEntries()};
    ProgramValues values_;
    FakeAnagramView view_;
    FakeMessageSink messages_;
    std::vector<std::int32_t> visited_;  // record numbers
    AnagramSession session_{values_, view_, messages_,
                            [this](std::int32_t number) { visited_.push_back(number); }};
};

const std::vector<std::string> kCpuHits = {"C-PU\tHyphenated", "CPU\tCentral Processing Unit",
                                           "UCP\tUniform Cp"};

TEST_F(AnagramSessionTest, TheListIsRefreshedOnlyWhenItsRowsHaveChanged) {
    Search("PUC");
    EXPECT_EQ(view_.showings, 2);  // at the pauses after the first record and after 100 more
    Search("XQ");
    EXPECT_EQ(view_.showings, 4);  // without rows, and with the one that says so
}

TEST_F(AnagramSessionTest, TheWarningOfTheLastSearchIsGoneWhileTheNextRuns) {
    Search("XQ");
    EXPECT_TRUE(view_.shown.listIsWarning);
    bool isWarning = true;
    view_.onEvents = [&] { isWarning = view_.shown.listIsWarning; };
    Search("PUC");
    EXPECT_FALSE(isWarning);
    EXPECT_FALSE(view_.shown.listIsWarning);
}

TEST_F(AnagramSessionTest, OpensEmpty) {
    AnagramDisplay empty;
    empty.letterCount = "0";
    empty.rearrangements = "0";
    EXPECT_EQ(view_.shown, empty);
    EXPECT_EQ(view_.focus, AnagramFocus::Letters);
    EXPECT_EQ(session_.Prompt(), "&Type the letters (minimum 2 - maximum 6):");
    EXPECT_EQ(session_.LetterLimit(), 6U);
    EXPECT_TRUE(Rows().empty());
    values_.Header.MaxAbbrvLength = -1;
    EXPECT_EQ(session_.LetterLimit(), 0U);
}

struct LettersCase {
    const char* name;
    const char* letters;
    const char* length;
    const char* rearrangements;
    bool canSearch;
};

class AnagramLettersShown : public AnagramSessionTest,
                            public testing::WithParamInterface<LettersCase> {};

TEST_P(AnagramLettersShown, AreCounted) {
    session_.OnLettersChanged("something");
    session_.OnLettersChanged(GetParam().letters);
    EXPECT_EQ(view_.shown.letterCount, GetParam().length);
    EXPECT_EQ(view_.shown.rearrangements, GetParam().rearrangements);
    EXPECT_EQ(view_.shown.canSearch, GetParam().canSearch);
}

INSTANTIATE_TEST_SUITE_P(Table, AnagramLettersShown,
                         testing::Values(LettersCase{"None", "", "0", "0", false},
                                         LettersCase{"One", "C", "1", "1", false},
                                         LettersCase{"Two", "CP", "2", "2", true},
                                         LettersCase{"Three", "CPU", "3", "6", true},
                                         LettersCase{"Repeated", "AAB", "3", "3", true},
                                         LettersCase{"InEitherCase", "AaB", "3", "3", true},
                                         LettersCase{"TheSame", "CC", "2", "1", true},
                                         LettersCase{"WithDigits", "ZZ1M", "4", "12", true},
                                         LettersCase{"WithAnAccent", "\u00C9T", "2", "2", true},
                                         LettersCase{"Six", "ABCDEF", "6", "720", true},
                                         LettersCase{"InGroups", "ABCDEFG", "7", "5,040", true}),
                         CaseName());

TEST_F(AnagramSessionTest, LessThanTwoDistinctLettersAreRefused) {
    for (const char* letters : {"CC", "AAA", "A1"}) {
        session_.OnLettersChanged(letters);
        messages_.shown.clear();
        view_.focus = AnagramFocus::FirstHit;
        session_.RunSearch(letters);
        ASSERT_EQ(messages_.shown.size(), 1U);
        EXPECT_EQ(messages_.shown[0].text, "Type at least 2 distinct letters");
        EXPECT_EQ(messages_.shown[0].title, "Brevilexicon");
        EXPECT_EQ(messages_.shown[0].icon, MessageIcon::Exclamation);
        EXPECT_EQ(view_.focus, AnagramFocus::Letters);
        EXPECT_EQ(view_.shown.percentDone, "");
        EXPECT_EQ(view_.additionsToHistory, 0);
    }
}

TEST_F(AnagramSessionTest, ShowsTheHitsInTheOrderOfTheMainList) {
    Search("PUC");
    EXPECT_EQ(Rows(), kCpuHits);
    EXPECT_EQ(view_.shown.percentDone, "Found 3");
    EXPECT_EQ(view_.shown.listTip, "Double-click an entry to go to the record");
    EXPECT_FALSE(view_.shown.listIsWarning);
    EXPECT_FALSE(view_.shown.isBusy);
    EXPECT_TRUE(view_.shown.canSearch);
    EXPECT_EQ(view_.focus, AnagramFocus::FirstHit);
    EXPECT_EQ(view_.additionsToHistory, 1);
    EXPECT_EQ(session_.LastSearchedLetters(), U"PUC");
}

TEST_F(AnagramSessionTest, AnEntryInSmallLettersIsFoundAndSoIsTheOneTyped) {
    Search("MAR");
    EXPECT_EQ(Rows(), std::vector<std::string>{"ram\tSmall"});
    Search("CPU");
    EXPECT_EQ(Rows(), kCpuHits);
}

TEST_F(AnagramSessionTest, SaysInTheListThatThereAreNone) {
    Search("PUC");
    Search("XYZ");
    EXPECT_EQ(Rows(), std::vector<std::string>{" None Found!"});
    EXPECT_EQ(view_.shown.percentDone, "Found 0");
    EXPECT_TRUE(view_.shown.listIsWarning);
    EXPECT_EQ(view_.shown.listTip, "");
    EXPECT_EQ(view_.focus, AnagramFocus::AllLetters);
    Search("MAR");
    EXPECT_EQ(view_.shown.percentDone, "Found 1");
    EXPECT_FALSE(view_.shown.listIsWarning);
}

TEST_F(AnagramSessionTest, OtherLettersClearTheResultButAReportOfTheSameDoesNot) {
    Search("PUC");
    session_.OnLettersChanged("PUC");
    EXPECT_EQ(Rows(), kCpuHits);
    EXPECT_EQ(view_.shown.percentDone, "Found 3");
    const int showings = view_.showings;
    session_.OnLettersChanged("PU");
    EXPECT_TRUE(Rows().empty());
    EXPECT_EQ(view_.showings, showings + 1);
    EXPECT_EQ(view_.shown.percentDone, "");
}

TEST_F(AnagramSessionTest, ShowsProgressAtEvery100thEntry) {
    Search("PUC");
    EXPECT_EQ(view_.percents,
              (std::vector<std::string>{"Done 0%", "Done 40%", "Done 80%", "Found 3"}));
}

TEST_F(AnagramSessionTest, ShowsItsHitsWhileItSearchesAndOnlyIfThereAreNewOnes) {
    std::vector<std::size_t> rowsAtPauses;
    view_.onEvents = [&] { rowsAtPauses.push_back(Rows().size()); };
    Search("PUC");
    EXPECT_EQ(rowsAtPauses, (std::vector<std::size_t>{0, 1, 3, 3}));
    EXPECT_EQ(view_.showings, 2);
}

TEST_F(AnagramSessionTest, WhileItSearchesItTakesNoInputAndStaysOpen) {
    int looks = 0;
    view_.onEvents = [&] {
        ++looks;
        EXPECT_TRUE(view_.shown.isBusy);
        EXPECT_FALSE(view_.shown.canSearch);
        session_.DismissAnagramWindow();
        EXPECT_FALSE(view_.isHidden);
    };
    Search("XYZ");
    EXPECT_EQ(looks, 4);
    EXPECT_FALSE(view_.shown.isBusy);
    EXPECT_FALSE(view_.isEmptied);
    EXPECT_EQ(view_.shown.percentDone, "Found 0");
}

TEST_F(AnagramSessionTest, EndsWithTheProgram) {
    int pauses = 0;
    view_.onEvents = [&] {
        if (++pauses == 2) {
            session_.Abandon();
        }
    };
    Search("XYZ");
    EXPECT_EQ(pauses, 2);
    EXPECT_TRUE(Rows().empty());
    EXPECT_FALSE(view_.shown.isBusy);
    EXPECT_EQ(view_.focus, AnagramFocus::Letters);
}

TEST_F(AnagramSessionTest, AFailureNobodyExpectsLeavesItIdle) {
    view_.onEvents = [] { throw std::bad_alloc(); };
    EXPECT_THROW(Search("PUC"), std::bad_alloc);
    EXPECT_FALSE(view_.shown.isBusy);
    EXPECT_TRUE(view_.shown.canSearch);
    view_.onEvents = nullptr;
    Search("PUC");
    EXPECT_EQ(Rows(), kCpuHits);
}

TEST_F(AnagramSessionTest, DismissingEmptiesTheLettersAndHides) {
    session_.OnLettersChanged("PUC");
    session_.DismissAnagramWindow();
    EXPECT_TRUE(view_.isEmptied);
    EXPECT_TRUE(view_.isHidden);
}

TEST_F(AnagramSessionTest, AChosenHitGoesToItsRecordAndKeepsTheLetters) {
    Search("PUC");
    session_.ChooseRow(1);
    EXPECT_EQ(visited_, std::vector<std::int32_t>{3});
    EXPECT_TRUE(view_.isHidden);
    EXPECT_FALSE(view_.isEmptied);
    session_.Open();
    EXPECT_EQ(Rows(), kCpuHits);
    EXPECT_EQ(view_.shown.percentDone, "Found 3");
}

TEST_F(AnagramSessionTest, WithoutAChosenRowItStaysOpen) {
    Search("PUC");
    session_.ChooseRow(-1);
    EXPECT_TRUE(visited_.empty());
    EXPECT_FALSE(view_.isHidden);
}

TEST_F(AnagramSessionTest, NoneFoundGoesToRecord0) {
    Search("XYZ");
    session_.ChooseRow(0);
    EXPECT_EQ(visited_, std::vector<std::int32_t>{0});
    EXPECT_TRUE(view_.isHidden);
}

}  // namespace
}  // namespace brelex
