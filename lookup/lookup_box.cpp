// SPDX-License-Identifier: MIT
#include "lookup/lookup_box.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/windows1252.h"
#include "database/record_text.h"
#include "database/string_order.h"
#include "lookup/prefix_search.h"

namespace brelex {

namespace {

constexpr const char* kGoToRecord = "Go to Record";

}  // namespace

void LookupBox::OnBoxChanged() {
    const std::string text = view_.BoxText();
    if (std::exchange(shownText_, text) == text || IsLookupBusy) {
        return;
    }
    IsLookupBusy = true;
    if (IsNavigating) {
        LastText = text;
        IsLookupBusy = false;
        return;
    }
    CurrentText = text;
    if (EqualIgnoringCaseUtf8(LastText, CurrentText)) {
        return;  // IsLookupBusy stays set, see the class
    }
    SelectByPrefix(CurrentText);
    LastText = CurrentText;
    ShowRecordNumber();
    IsLookupBusy = false;
}

void LookupBox::OnBoxKeyDown(NavigationKey key) {
    IsNavigating = true;
    view_.SendKeyToList(key);
    view_.MoveCaretToEnd();
    IsNavigating = false;
}

void LookupBox::OnListClick() {
    if (IsNavigating) {
        ShowRecordNumber();
        WriteSelectedAbbreviation();
    }
}

void LookupBox::OnListMenu() {
    const bool wasNavigating = std::exchange(IsNavigating, true);
    ShowRecordNumber();
    WriteSelectedAbbreviation();
    IsNavigating = wasNavigating;
}

void LookupBox::SelectByPrefix(const std::string& text) {
    FoundRow = FindFirstByPrefix(*values_.AcronymList, BytesOfUtf8(text).bytes);
    if (values_.AcronymList->RowCount() == 0 || FoundRow == view_.SelectedRow()) {
        return;
    }
    view_.SetTopRow(std::max(FoundRow - 1, 0));
    view_.SelectRow(FoundRow);
}

void LookupBox::ShowRecordNumber() {
    view_.SetRecordNumberText(FormatGrouped(view_.SelectedRow() + 1, values_.groupSeparator));
}

void LookupBox::WriteSelectedAbbreviation() {
    const std::int32_t row = view_.SelectedRow();
    if (row >= 0) {
        view_.SetBoxText(Utf8OfBytes(GetAbbreviation(values_.AcronymList->RowText(row))));
        OnBoxChanged();
    }
}

bool LookupBox::AskRecordNumber(std::int32_t& number) {
    const std::string answer = view_.AskText(
        kGoToRecord, "Go to record (1 - " + std::to_string(values_.RecordCount) + "):",
        std::to_string(view_.SelectedRow() + 1));
    if (answer.empty()) {
        return false;
    }
    const auto parsed = ParseWholeNumber(answer, values_.groupSeparator);
    if (!parsed) {
        messages_.Show(
            {"Invalid record number", kGoToRecord, MessageIcon::Exclamation, MessageButtons::Ok});
        return false;
    }
    number = *parsed;
    return true;
}

void LookupBox::GoToRecordNumber(std::int32_t nRecordNumber) {
    if (nRecordNumber == -1 && !AskRecordNumber(nRecordNumber)) {
        return;
    }
    if (values_.RecordCount <= 0) {
        return;
    }
    nRecordNumber = std::clamp(nRecordNumber, 1, values_.RecordCount);
    const bool wasNavigating = std::exchange(IsNavigating, true);
    view_.SelectRow(nRecordNumber - 1);
    WriteSelectedAbbreviation();
    view_.MoveCaretToEnd();
    ShowRecordNumber();
    IsNavigating = wasNavigating;
}

}  // namespace brelex
