// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/folder_picker.h"
#include "base/long_work.h"
#include "base/message_sink.h"
#include "base/temporary_files.h"
#include "database/row_list.h"
#include "platform/system/modShowHelp.h"

namespace brelex {

/// Keeps the messages it receives. Answers questions from a list, and with No once the list is used
/// up.
class FakeMessageSink final : public MessageSink {
  public:
    MessageAnswer Show(const Message& message) override;

    std::function<void()> behind;  ///< called while a message is shown, unless empty
    std::vector<Message> shown;
    std::deque<MessageAnswer> answers;
};

/// Returns folders from a list, and cancels once the list is used up.
class FakeFolderPicker final : public FolderPicker {
  public:
    std::string BrowseForFolder(const std::string& title) override;

    std::vector<std::string> titles;
    std::deque<std::string> folders;
};

/// Records the reports of long work, and may end it.
class RecordingWatcher final : public WorkWatcher {
  public:
    void SetStatusText(std::string_view text) override { texts.emplace_back(text); }

    void SetProgress(int percent) override;
    bool OnHit(std::int32_t row) override;
    bool OnPause() override;

    std::vector<std::string> texts;
    std::vector<int> percents;
    std::vector<std::string> events;  ///< "hit 3" (a row), "40%", "pause"
    int hits = 0;
    int pauses = 0;
    int endsAtHit = 0;    ///< 1-based; 0 for at none
    int endsAtPause = 0;  ///< 1-based; 0 for at none
};

/// A temporary folder that the test chooses. Writing can be made to fail.
class FakeTemporaryFiles final : public TemporaryFiles {
  public:
    explicit FakeTemporaryFiles(std::string folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::string GetTempFolder() const override { return folder_; }

    [[nodiscard]] std::vector<std::string> OtherFolders() const override { return otherFolders; }

    [[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes) override;

    std::vector<std::string> otherFolders;
    std::vector<std::string> written;
    bool diskIsFull = false;
    bool memoryIsFull = false;  ///< writing throws an exception

  private:
    std::string folder_;
};

/// A desktop with or without an open window, a help viewer beside the program, and programs for
/// files.
class FakeDesktop final : public Desktop {
  public:
    [[nodiscard]] bool BringWindowForward(const std::string& title) override;
    void TurnToPage(const std::string& title, const std::string& page) override;
    [[nodiscard]] bool StartHelpViewer(const std::string& folder, const std::string& book,
                                       const std::string& page) override;
    void AskWindowToClose(const std::string& title) override;
    bool Open(const std::string& target) override;
    void OpenToRead(const std::string& path) override;

    std::string openWindow;  ///< its title
    bool hasPrograms = true;
    bool hasViewer = false;
    std::vector<std::string> broughtForward;
    std::vector<std::string> turnedTo;                     ///< title and page, separated by a blank
    std::vector<std::vector<std::string>> viewersStarted;  ///< folder, book and page
    std::vector<std::string> askedToClose;
    std::vector<std::string> opened;
    std::vector<std::string> openedToRead;
};

/// Rows from a list of texts. Their order is not guaranteed.
class FakeRows final : public RowList {
  public:
    explicit FakeRows(const std::vector<std::string>& rows);

  private:
    std::string block_;
    std::vector<std::uint32_t> offsets_ = {0};
};

}  // namespace brelex
