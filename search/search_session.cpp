// SPDX-License-Identifier: MIT
#include "search/search_session.h"

#include <algorithm>
#include <exception>
#include <variant>

#include "base/scope.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "search/database_search.h"
#include "search/search_list.h"

namespace brelex {

namespace {

constexpr const char* kSearchingText = "Searching through database. Please, wait...";
constexpr const char* kAbortedText = "Search was aborted by user";

}  // namespace

SearchSession::SearchSession(ProgramValues& values, SearchView& view, MessageSink& messages)
    : values_(values),
      view_(view),
      messages_(messages) {
    std::string& list = values.Header.SearchListText;
    list = std::string(TrimBlanks(list));
}

void SearchSession::Refresh() {
    display_.isBusy = state_ != WorkState::Idle;
    display_.canSearch = !display_.isBusy && !text_.empty();
    view_.ShowDisplay(display_);
}

void SearchSession::ResetStatus() {
    display_.status = SearchDisplay().status;
}

void SearchSession::Open() {
    display_.count.clear();  // it is about a search that ran when the window was closed
    Refresh();
    view_.MoveFocus(SearchFocus::SearchText);
}

void SearchSession::OnTextChanged(const std::string& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    display_.canGoOn = false;
    Refresh();
}

std::size_t SearchSession::TextLimit(SearchIn in) const {
    const std::int32_t length = in == SearchIn::Abbreviations ? values_.Header.MaxAbbrvLength
                                                              : values_.Header.MaxExpansionLength;
    return static_cast<std::size_t>(std::max(length, 0));
}

void SearchSession::ToggleResultArea() {
    display_.resultAreaShown = !display_.resultAreaShown;
    Refresh();
}

void SearchSession::PressCancel() {
    if (state_ == WorkState::Idle) {
        DismissSearchWindow();
    } else if (state_ == WorkState::Running) {
        state_ = WorkState::Stopping;
    }
}

void SearchSession::Abandon() {
    if (state_ != WorkState::Idle) {
        state_ = WorkState::Dismissed;
    }
}

void SearchSession::DismissSearchWindow() {
    Abandon();
    text_.clear();
    display_.canGoOn = false;
    ResetStatus();
    view_.ShowResult("", Tone::Plain);
    Refresh();
    view_.HideWindow();
    display_.resultAreaShown = false;  // the result area is out of sight
    Refresh();
}

void SearchSession::RunSearch(const SearchRequest& request, bool goOn) {
    const PreparedSearch prepared = PrepareSearch(request, *values_.AcronymList);
    if (const auto* const refusal = std::get_if<Message>(&prepared)) {
        messages_.Show(*refusal);
        view_.MoveFocus(SearchFocus::SearchText);
        return;
    }
    const OnLeaving idle([this] { ReturnToIdle(); });
    Begin(request.text, goOn);
    view_.LetEventsRun(0);
    Search(std::get<RecordFinder>(prepared));
    display_.isAnimated = false;
    Refresh();
    if (AbortRequested()) {
        TellOfAbort();
    }
}

void SearchSession::Begin(const std::string& text, bool goOn) {
    state_ = WorkState::Running;
    if (!goOn || !display_.canGoOn) {
        nextPosition_ = 0;
    }
    hits_ = 0;
    foundAnything_ = false;
    isEndTold_ = false;
    display_.canGoOn = false;
    display_.status = kSearchingText;
    display_.count = FoundText(0);
    display_.countTone = Tone::Plain;
    display_.resultAreaShown = true;
    display_.isAnimated = true;
    view_.ShowResult("", Tone::Plain);
    Refresh();
    view_.MoveFocus(SearchFocus::StopButton);
    view_.AddToHistory();
    text_ = text;
    lastSearchText_ = text;
}

bool SearchSession::OnHit(std::int32_t /*row*/) {
    display_.count = FoundText(++hits_);
    Refresh();
    view_.LetEventsRun(0);
    return state_ == WorkState::Running;
}

bool SearchSession::OnPause() {
    view_.LetEventsRun(kPauseMs);
    return state_ == WorkState::Running;
}

void SearchSession::Search(const RecordFinder& finder) {
    SearchOutcome outcome;
    if (state_ == WorkState::Running) {
        outcome = SearchDatabase(finder, *values_.AcronymList, nextPosition_, kMaxHits, this);
    }
    if (outcome.limitReached) {
        StopAtLimit(outcome.nextPosition);
    }
    if (state_ != WorkState::Dismissed) {  // a window that was dismissed stays empty
        Present(outcome);
    }
}

void SearchSession::StopAtLimit(std::int32_t nextPosition) {
    display_.isAnimated = false;
    Refresh();
    messages_.Show(HitLimitMessage());
    nextPosition_ = nextPosition;
    display_.canGoOn = true;
}

void SearchSession::Present(const SearchOutcome& outcome) {
    foundAnything_ = !outcome.hits.empty();
    if (foundAnything_) {
        try {
            view_.ShowResult(Utf8OfBytes(ResultText(*values_.AcronymList, outcome.hits)),
                             Tone::Plain);
        } catch (const std::exception& failure) {
            view_.ShowResult(std::string("Unable to display search result\n") + failure.what(),
                             Tone::Warning);
        }
    } else {
        view_.ShowResult(kNothingFoundText, Tone::Warning);
    }
    display_.count.clear();
    display_.status = NumberOfHitsText(static_cast<std::int32_t>(outcome.hits.size()));
    isEndTold_ = true;
}

void SearchSession::TellOfAbort() {
    if (state_ == WorkState::Stopping) {
        messages_.Show({kAbortedText, kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    }
    display_.count = kAbortedText;
    display_.countTone = Tone::Warning;
    isEndTold_ = true;
}

// Also runs when a search has failed. In that case no text about its end is shown.
void SearchSession::ReturnToIdle() {
    const bool wasDismissed = state_ == WorkState::Dismissed;
    state_ = WorkState::Idle;
    display_.isAnimated = false;
    if (!isEndTold_) {
        ResetStatus();
        display_.count.clear();
    }
    Refresh();
    if (!wasDismissed) {  // a hidden window must not take the keyboard
        view_.MoveFocus(foundAnything_ ? SearchFocus::Result : SearchFocus::SearchText);
    }
}

}  // namespace brelex
