// SPDX-License-Identifier: MIT
#include "platform/system/replace_file.h"

#include <cstddef>
#include <deque>
#include <system_error>
#include <utility>

#include "base/file_io.h"
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

// Keeps what is at a path under another name until the path's new file is there to stay.
class OldFile {
  public:
    explicit OldFile(const fs::path& path) : path_(path) {}

    OldFile(const OldFile&) = delete;
    OldFile& operator=(const OldFile&) = delete;

    ~OldFile() {
        std::error_code ignored;
        if (!kept_.empty()) {
            fs::remove(kept_, ignored);
        }
    }

    [[nodiscard]] std::string Keep() {
        std::error_code error;
        if (fs::symlink_status(path_, error).type() == fs::file_type::not_found) {
            return {};
        }
        const fs::path name = FreeNameBeside(path_);
        fs::create_hard_link(path_, name, error);
        if (error) {  // not every file system has links
            fs::copy_file(path_, name, error);
        }
        if (!error) {
            kept_ = name;
        }
        return error ? error.message() : std::string();
    }

    void Restore() {
        std::error_code error;
        if (kept_.empty()) {
            fs::remove(path_, error);
            return;
        }
        fs::rename(kept_, path_, error);
        kept_.clear();  // if that has failed, the old file is better under that name than lost
    }

  private:
    fs::path path_;
    fs::path kept_;  // the other name; empty if there is none
};

// Returns what failed, or an empty text.
std::string Replace(const std::vector<FileToWrite>& files) {
    const auto failure = [](const char* what, const FileToWrite& file, const std::string& reason) {
        return what + Utf8OfPath(file.path) + ": " + reason;
    };
    std::deque<UnfinishedFile> unfinished;
    for (const FileToWrite& file : files) {
        const std::string reason = unfinished.emplace_back(file.path).Write(file.bytes);
        if (!reason.empty()) {
            return failure("cannot write ", file, reason);
        }
    }
    std::deque<OldFile> old;
    for (std::size_t i = 0; i + 1 < files.size(); ++i) {  // nothing can fail after the last one
        const std::string reason = old.emplace_back(files[i].path).Keep();
        if (!reason.empty()) {
            return failure("cannot replace ", files[i], reason);
        }
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string reason = unfinished[i].TakePlace();
        if (!reason.empty()) {
            for (std::size_t before = 0; before < i; ++before) {
                old[before].Restore();
            }
            return failure("cannot replace ", files[i], reason);
        }
    }
    return {};
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
