// SPDX-License-Identifier: MIT
#include "search/anagram_session.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/scope.h"
#include "base/windows1252.h"
#include "search/database_search.h"

namespace brelex {

namespace {

constexpr std::size_t kFewestLetters = 2;

std::string DoneText(int percent) {
    return "Done " + std::to_string(percent) + "%";
}

}  // namespace

AnagramSession::AnagramSession(const ProgramValues& values, AnagramView& view,
                               MessageSink& messages, std::function<void(std::int32_t)> goToRecord)
    : values_(values),
      view_(view),
      messages_(messages),
      goToRecord_(std::move(goToRecord)) {
    DescribeLetters();
}

std::string AnagramSession::Prompt() const {
    return "&Type the letters (minimum " + std::to_string(kFewestLetters) + " - maximum " +
           std::to_string(values_.Header.MaxAbbrvLength) + "):";
}

std::size_t AnagramSession::LetterLimit() const {
    return static_cast<std::size_t>(std::max(values_.Header.MaxAbbrvLength, 0));
}

void AnagramSession::Refresh() {
    display_.isBusy = state_ != WorkState::Idle;
    display_.canSearch = !display_.isBusy && letters_.size() >= kFewestLetters;
    view_.ShowDisplay(display_);
}

void AnagramSession::Open() {
    Refresh();
    view_.MoveFocus(AnagramFocus::Letters);
}

void AnagramSession::DismissAnagramWindow() {
    if (state_ == WorkState::Idle) {
        view_.EmptyLetters();
        view_.HideWindow();
    }
}

void AnagramSession::Abandon() {
    if (state_ != WorkState::Idle) {
        state_ = WorkState::Dismissed;
    }
}

void AnagramSession::DescribeLetters() {
    display_.letterCount = std::to_string(letters_.size());
    display_.rearrangements = RearrangementsText(letters_, values_.groupSeparator);
}

void AnagramSession::OnLettersChanged(const std::string& letters) {
    std::u32string characters = DecodeUtf8(letters);
    if (characters == letters_) {
        return;
    }
    letters_ = std::move(characters);
    DescribeLetters();
    display_.percentDone.clear();
    ClearRows();
    Refresh();
}

void AnagramSession::RunSearch(const std::string& letters) {
    const std::u32string characters = DecodeUtf8(letters);
    if (const auto refusal = AnagramRefusalOf(characters)) {
        messages_.Show(*refusal);
        view_.MoveFocus(AnagramFocus::Letters);
        return;
    }
    if (Scan(characters)) {
        PresentHits();
    }
}

// Returns false if the program ends in the meantime.
bool AnagramSession::Scan(const std::u32string& letters) {
    const OnLeaving idle([this] { ReturnToIdle(); });
    Begin(letters);
    view_.LetEventsRun();
    if (state_ == WorkState::Running) {
        if (!finder_) {
            finder_.emplace(*values_.AcronymList);
        }
        (void)finder_->Find(AnagramLetters(letters), this);
    }
    return state_ == WorkState::Running;
}

void AnagramSession::Begin(const std::u32string& letters) {
    state_ = WorkState::Running;
    ClearRows();
    display_.listIsWarning = false;
    display_.percentDone = DoneText(0);
    Refresh();
    view_.AddToHistory();
    letters_ = letters;
    lastSearchedLetters_ = letters;
}

bool AnagramSession::OnHit(std::int32_t row) {
    AddRow(values_.AcronymList->RowText(row), row + 1);
    return true;
}

void AnagramSession::SetProgress(int percent) {
    ShowNewRows();
    display_.percentDone = DoneText(percent);
    Refresh();
}

bool AnagramSession::OnPause() {
    view_.LetEventsRun();
    return state_ == WorkState::Running;
}

void AnagramSession::ReturnToIdle() {
    state_ = WorkState::Idle;
    Refresh();
}

void AnagramSession::PresentHits() {
    const bool found = !recordNumbers_.empty();
    display_.percentDone = FoundText(static_cast<std::int32_t>(recordNumbers_.size()));
    display_.listTip = found ? "Double-click an entry to go to the record" : "";
    display_.listIsWarning = !found;
    if (!found) {
        AddRow(" None Found!", 0);
    }
    ShowNewRows();
    Refresh();
    view_.MoveFocus(found ? AnagramFocus::FirstHit : AnagramFocus::AllLetters);
}

void AnagramSession::ChooseRow(std::int32_t row) {
    if (row >= 0) {
        goToRecord_(recordNumbers_.at(static_cast<std::size_t>(row)));
        view_.HideWindow();
    }
}

void AnagramSession::ClearRows() {
    rows_.Clear();
    recordNumbers_.clear();
    ShowNewRows();
}

void AnagramSession::AddRow(std::string_view text, std::int32_t recordNumber) {
    rows_.Add(text);
    recordNumbers_.push_back(recordNumber);
}

// Refreshing the list takes a while, and usually there are no new rows.
void AnagramSession::ShowNewRows() {
    if (recordNumbers_.size() != shownRows_) {
        shownRows_ = recordNumbers_.size();
        view_.ShowRows();
    }
}

}  // namespace brelex
