// SPDX-License-Identifier: MIT
#include "tests/support/fakes.h"

#include <fstream>
#include <new>

#include "base/file_io.h"

namespace brelex {

MessageAnswer FakeMessageSink::Show(const Message& message) {
    shown.push_back(message);
    if (behind) {
        behind();
    }
    if (message.buttons == MessageButtons::Ok) {
        return MessageAnswer::Ok;
    }
    if (answers.empty()) {
        return MessageAnswer::No;
    }
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string FakeFolderPicker::BrowseForFolder(const std::string& title) {
    titles.push_back(title);
    if (folders.empty()) {
        return {};
    }
    std::string folder = folders.front();
    folders.pop_front();
    return folder;
}

void RecordingWatcher::SetProgress(int percent) {
    percents.push_back(percent);
    events.push_back(std::to_string(percent) + "%");
}

bool RecordingWatcher::OnHit(std::int32_t row) {
    events.push_back("hit " + std::to_string(row));
    return ++hits != endsAtHit;
}

bool RecordingWatcher::OnPause() {
    events.emplace_back("pause");
    return ++pauses != endsAtPause;
}

bool FakeTemporaryFiles::WriteNewFile(const std::string& path, std::string_view bytes) {
    if (memoryIsFull) {
        throw std::bad_alloc();
    }
    written.push_back(path);
    std::ofstream file(PathOfUtf8(path), std::ios::binary | std::ios::trunc);
    const std::string_view fitting = diskIsFull ? bytes.substr(0, bytes.size() / 2) : bytes;
    file.write(fitting.data(), static_cast<std::streamsize>(fitting.size()));
    file.close();
    return !file.fail() && !diskIsFull;
}

bool FakeDesktop::BringWindowForward(const std::string& title) {
    if (title != openWindow) {
        return false;
    }
    broughtForward.push_back(title);
    return true;
}

void FakeDesktop::TurnToPage(const std::string& title, const std::string& page) {
    turnedTo.push_back(title + " " + page);
}

bool FakeDesktop::StartHelpViewer(const std::string& folder, const std::string& book,
                                  const std::string& page) {
    if (hasViewer) {
        viewersStarted.push_back({folder, book, page});
    }
    return hasViewer;
}

void FakeDesktop::AskWindowToClose(const std::string& title) {
    askedToClose.push_back(title);
}

bool FakeDesktop::Open(const std::string& target) {
    opened.push_back(target);
    return hasPrograms;
}

void FakeDesktop::OpenToRead(const std::string& path) {
    openedToRead.push_back(path);
}

FakeRows::FakeRows(const std::vector<std::string>& rows) {
    for (const std::string& row : rows) {
        block_ += row;
        block_.push_back('\0');
        offsets_.push_back(static_cast<std::uint32_t>(block_.size()));
    }
    SetRows(block_.data(), offsets_.data(), static_cast<std::int32_t>(rows.size()), 0);
}

}  // namespace brelex
