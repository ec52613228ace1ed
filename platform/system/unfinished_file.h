// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace brelex {

/// A new file that is written beside the one whose place it is going to take. It never writes
/// through a link or into a file that somebody else has there.
///
/// It vanishes if the object is destroyed before it has taken its place. It also vanishes if the
/// program is killed, unless the file system knows neither files without a name nor files that
/// are deleted when they are closed. What a killed program left behind vanishes when the same file
/// is written the next time (Linux).
class UnfinishedFile {
  public:
    explicit UnfinishedFile(std::filesystem::path place);
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    /// Creates the file with these bytes and waits until the disk has them. The file gets the mode
    /// of the one whose place it takes and, if the user may give files away, its owner. Returns why
    /// that failed, or an empty text.
    [[nodiscard]] std::string Write(std::string_view bytes);

    /// Moves the file to its place, in one step. Requires that it was written. Returns why that
    /// failed, or an empty text. In that case, the old file stays as it was.
    [[nodiscard]] std::string TakePlace();

  private:
    std::filesystem::path place_;
    std::filesystem::path name_;  // empty as long as the file has none
    std::intptr_t file_ = -1;     // the system's number for it, or -1 if it is not open
};

/// What the names of unfinished files end with. No other program uses it.
inline constexpr const char* kUnfinishedEnding = ".brelex-part";

/// `path` with `ending` behind it, and a number behind that unless `number` is 1.
[[nodiscard]] std::filesystem::path NumberedName(const std::filesystem::path& path,
                                                 const char* ending, int number);

}  // namespace brelex
