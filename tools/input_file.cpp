// SPDX-License-Identifier: MIT
#include "tools/input_file.h"

#include <cstdint>
#include <string>
#include <system_error>

#include "base/file_io.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

// What changes when a program writes to a file or puts another in its place.
struct FileState {
    std::uintmax_t size = 0;
    fs::file_time_type time;

    bool operator==(const FileState&) const = default;
};

FileState StateOf(const fs::path& path) {
    std::error_code ignored;
    return {fs::file_size(path, ignored), fs::last_write_time(path, ignored)};
}

}  // namespace

bool StaysTheSame(const fs::path& path, const std::function<void()>& read) {
    const FileState before = StateOf(path);
    read();
    return StateOf(path) == before;
}

std::optional<ByteBuffer> ReadInputFile(const fs::path& path, InputReport& report) {
    std::optional<ByteBuffer> bytes;
    if (!StaysTheSame(path, [&] { bytes = ReadWholeFile(path); })) {
        report.errors.push_back(Utf8OfPath(path) + ": was changed while it was read; try again");
        return std::nullopt;
    }
    if (!bytes) {
        report.errors.push_back(Utf8OfPath(path) + ": cannot be read");
    }
    return bytes;
}

fs::path FileBeside(const fs::path& sibling, const fs::path& name) {
    fs::path exact = fs::path(sibling).replace_filename(name);
    std::error_code error;
    if (fs::exists(exact, error)) {
        return exact;
    }
    const fs::path folder = sibling.has_parent_path() ? sibling.parent_path() : fs::path(".");
    const auto found =
        FindFileIgnoringCase(WithTrailingSeparator(Utf8OfPath(folder)), Utf8OfPath(name));
    return found ? PathOfUtf8(*found) : exact;
}

}  // namespace brelex
