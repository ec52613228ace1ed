// SPDX-License-Identifier: MIT
#include "base/file_io.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <string>
#include <system_error>

#include "base/text.h"

namespace brelex {

namespace fs = std::filesystem;

namespace {

bool SameIgnoringCase(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return AsciiCapital(a) == AsciiCapital(b); });
}

bool IsFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

}  // namespace

fs::path PathOfUtf8(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string Utf8OfPath(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string WithTrailingSeparator(std::string folder) {
    constexpr auto kSeparator = static_cast<char>(fs::path::preferred_separator);
    if (!folder.ends_with(kSeparator)) {
        folder.push_back(kSeparator);
    }
    return folder;
}

std::optional<std::string> FindFileIgnoringCase(const std::string& folder, std::string_view name) {
    assert(folder.ends_with(static_cast<char>(fs::path::preferred_separator)));
    std::string usual = folder;
    usual += name;
    if (IsFile(PathOfUtf8(usual))) {
        return usual;
    }
    std::optional<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(PathOfUtf8(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string spelling = Utf8OfPath(entry->path().filename());
        // The system lists them in any order.
        if (SameIgnoringCase(spelling, name) && IsFile(entry->path())) {
            found = std::min(found.value_or(folder + spelling), folder + spelling);
        }
    }
    return found;
}

FileReader::FileReader(const fs::path& path) {
    if (!IsFile(path)) {
        return;
    }
    file_.rdbuf()->pubsetbuf(nullptr, 0);  // reads straight to where the bytes are wanted
    file_.open(path, std::ios::binary | std::ios::ate);
    // From the open file: by now the path can name another one.
    const std::streamoff size = file_.tellg();
    file_.seekg(0);
    constexpr std::streamoff kMostBytes = std::streamoff{1} << 31U;
    isOpen_ = file_ && size >= 0 && size <= kMostBytes;
    size_ = isOpen_ ? static_cast<std::size_t>(size) : 0;
}

bool FileReader::Read(char* bytes, std::size_t count) {
    file_.read(bytes, static_cast<std::streamsize>(count));
    return file_.gcount() == static_cast<std::streamsize>(count);
}

bool FileReader::IsAtEnd() {
    return file_.peek() == std::ifstream::traits_type::eof() && !file_.bad();
}

std::optional<ByteBuffer> ReadWholeFile(const fs::path& path) {
    FileReader file(path);
    if (!file.IsOpen()) {
        return std::nullopt;
    }
    ByteBuffer bytes(file.Size());
    if (!file.Read(bytes.Data(), bytes.Size()) || !file.IsAtEnd()) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace brelex
