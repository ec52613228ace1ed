// SPDX-License-Identifier: MIT
#include "platform/system/replace_file.h"

#include <cstddef>
#include <deque>
#include <new>
#include <system_error>
#include <utility>

#include "base/file_io.h"
#include "platform/system/held_signals.h"
#include "platform/system/unfinished_file.h"

namespace brelex {

namespace fs = std::filesystem;

namespace {

// The path with ".old" behind it, or ".old2" and so on if somebody has a file of that name.
fs::path FreeNameBeside(const fs::path& path) {
    fs::path name;
    std::error_code error;
    int number = 0;
    do {
        name = NumberedName(path, ".old", ++number);
    } while (fs::exists(fs::symlink_status(name, error)));
    return name;
}

// Keeps what is at a path under another name. Puts it back at the end, unless it is given up.
class OldFile {
  public:
    explicit OldFile(fs::path path) : path_(std::move(path)) {}

    OldFile(const OldFile&) = delete;
    OldFile& operator=(const OldFile&) = delete;

    ~OldFile() {
        std::error_code error;
        if (isReplaced_ && !isThere_) {
            fs::remove(path_, error);
        } else if (isReplaced_) {
            // If that fails, the old content is better under that name than lost.
            fs::rename(kept_, path_, error);
        } else if (isThere_) {
            fs::remove(kept_, error);
        }
    }

    [[nodiscard]] std::error_code Keep() {
        std::error_code error;
        if (fs::symlink_status(path_, error).type() == fs::file_type::not_found) {
            return {};
        }
        kept_ = FreeNameBeside(path_);
        fs::create_hard_link(path_, kept_, error);
        if (error) {  // not every file system has links
            fs::copy_file(path_, kept_, error);
        }
        isThere_ = !error;
        return error;
    }

    void SetReplaced() { isReplaced_ = true; }

    [[nodiscard]] std::error_code GiveUp() {
        std::error_code error;
        isReplaced_ = false;
        if (std::exchange(isThere_, false)) {
            fs::remove(kept_, error);
        }
        return error;
    }

    [[nodiscard]] const fs::path& Name() const { return kept_; }

  private:
    fs::path path_;
    fs::path kept_;  // the other name
    bool isThere_ = false;
    bool isReplaced_ = false;
};

// What a lack of memory leaves half done has to be undone. So for a while it throws an exception,
// even in a program that otherwise ends at once.
class MemoryExceptions {
  public:
    MemoryExceptions() : before_(std::set_new_handler(nullptr)) {}

    MemoryExceptions(const MemoryExceptions&) = delete;
    MemoryExceptions& operator=(const MemoryExceptions&) = delete;

    ~MemoryExceptions() { std::set_new_handler(before_); }

  private:
    std::new_handler before_;
};

std::string Failure(const char* what, const fs::path& path, const std::string& reason) {
    return what + Utf8OfPath(path) + ": " + reason;
}

// Returns what failed, or an empty text.
std::string Replace(const std::vector<FileToWrite>& files) {
    const MemoryExceptions exceptions;
    std::deque<UnfinishedFile> unfinished;
    for (const FileToWrite& file : files) {
        const std::string reason = unfinished.emplace_back(file.path).Write(file.bytes);
        if (!reason.empty()) {
            return Failure("cannot write ", file.path, reason);
        }
    }
    const HeldSignals signals;
    std::deque<OldFile> old;
    for (std::size_t i = 0; i + 1 < files.size(); ++i) {  // nothing can fail after the last one
        if (const std::error_code error = old.emplace_back(files[i].path).Keep()) {
            return Failure("cannot replace ", files[i].path, error.message());
        }
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string reason = unfinished[i].TakePlace();
        if (!reason.empty()) {
            return Failure("cannot replace ", files[i].path, reason);
        }
        if (i < old.size()) {
            old[i].SetReplaced();
        }
    }
    std::string remains;
    for (OldFile& file : old) {
        if (const std::error_code error = file.GiveUp()) {
            remains = Failure("cannot remove the old ", file.Name(), error.message());
        }
    }
    return remains;
}

}  // namespace

bool ReplaceFiles(const std::vector<FileToWrite>& files, std::string* why) {
    std::string reason = Replace(files);
    const bool replaced = reason.empty();
    if (why != nullptr) {
        *why = std::move(reason);
    }
    return replaced;
}

bool ReplaceFile(const fs::path& path, std::string_view bytes, std::string* why) {
    return ReplaceFiles({{path, bytes}}, why);
}

}  // namespace brelex
