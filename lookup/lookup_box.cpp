// SPDX-License-Identifier: MIT
#include "lookup/lookup_box.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/scope.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "lookup/desktop_answers.h"
#include "lookup/prefix_search.h"

namespace brelex {

namespace {

constexpr const char* kGoToRecord = "Go to Record";

// The number that the user sees: 1-based, or 0 without a row.
std::int32_t ShownNumberOf(std::int32_t row) {
    return row < 0 ? 0 : static_cast<std::int32_t>(RecordNumberOf(row));
}

}  // namespace

void LookupBox::OnBoxChanged(const std::string& text) {
    if (std::exchange(shownText_, text) == text || IsLookupBusy) {
        return;
    }
    if (IsNavigating) {
        LastText = text;
        return;
    }
    CurrentText = text;
    if (EqualIgnoringCaseUtf8(LastText, CurrentText)) {
        IsLookupBusy = true;  // for the rest of the run, see the class
        return;
    }
    const Busy busy(IsLookupBusy);
    SelectByPrefix(CurrentText);
    LastText = CurrentText;
    ShowRecordNumber();
}

void LookupBox::OnBoxKeyDown(NavigationKey key) {
    const Busy navigating(IsNavigating);
    view_.SendKeyToList(key);
    view_.MoveCaretToEnd();
}

void LookupBox::OnListClick(std::int32_t row) {
    if (IsNavigating) {
        ShowEntry(row);
    }
}

void LookupBox::OnListMenu(std::int32_t row) {
    ShowEntry(row);
}

void LookupBox::SelectByPrefix(const std::string& text) {
    FoundRow = FindFirstByPrefix(*values_.AcronymList, BytesOfUtf8(text).bytes);
    if (values_.AcronymList->RowCount() > 0 && FoundRow != view_.SelectedRow()) {
        view_.SelectRow(FoundRow, Scrolling::SecondFromTop);
    }
}

void LookupBox::ShowRecordNumber() {
    view_.SetRecordNumberText(
        FormatGrouped(ShownNumberOf(view_.SelectedRow()), values_.groupSeparator));
}

// The text comes from the list, so the box takes it over without a look-up.
void LookupBox::ShowEntry(std::int32_t row) {
    const bool wasNavigating = std::exchange(IsNavigating, true);
    const OnLeaving restore([this, wasNavigating] { IsNavigating = wasNavigating; });
    const std::string text = Utf8OfBytes(GetAbbreviation(values_.AcronymList->RowText(row)));
    view_.SetRecordNumberText(FormatGrouped(ShownNumberOf(row), values_.groupSeparator));
    view_.SetBoxText(text);
    OnBoxChanged(text);
}

std::optional<RecordNumber> LookupBox::AskRecordNumber() {
    const std::string answer = view_.AskText(
        kGoToRecord, "Go to record (1 - " + std::to_string(values_.RecordCount) + "):",
        std::to_string(ShownNumberOf(view_.SelectedRow())));
    if (answer.empty()) {
        return std::nullopt;
    }
    const auto number = ParseWholeNumber(answer, values_.groupSeparator);
    if (!number) {
        messages_.Show(
            {"Invalid record number", kGoToRecord, MessageIcon::Exclamation, MessageButtons::Ok});
        return std::nullopt;
    }
    return RecordNumber{*number};
}

void LookupBox::GoToRecordNumber(RecordNumber nRecordNumber) {
    const std::optional<RecordNumber> wanted =
        nRecordNumber == kAskForRecord ? AskRecordNumber() : nRecordNumber;
    if (!wanted || values_.RecordCount <= 0) {
        return;
    }
    const auto last = RecordNumberOf(values_.RecordCount - 1);
    GoToRow(RowOf(std::clamp(*wanted, RecordNumberOf(0), last)), Scrolling::IntoSight);
}

void LookupBox::ShowChosen(const std::string& id) {
    if (values_.AcronymList->RowCount() > 0) {
        GoToRow(RowToShow(*values_.AcronymList, id), Scrolling::SecondFromTop);
    }
}

void LookupBox::GoToRow(std::int32_t row, Scrolling scrolling) {
    view_.SelectRow(row, scrolling);
    ShowEntry(row);
    view_.MoveCaretToEnd();
}

}  // namespace brelex
