// SPDX-License-Identifier: MIT
// Input: the four bytes of the declared length, then the compressed data. The lowest two bytes of
// the length are also a limit that the expanded file must not exceed.
#include <optional>

#include "database/szdd.h"
#include "fuzz/fuzz_support.h"

namespace brelex {

namespace {

// Whether the file expands to this, and to nothing if it exceeds the limit.
bool ExpandsTo(std::string_view file, std::string_view wanted, std::size_t limit) {
    const std::optional<ExpandedFile> expanded = ExpandSzdd(file, limit);
    return wanted.size() > limit ? !expanded : expanded && expanded->View() == wanted;
}

// Whether a file on the disk can be read and expands to this.
bool FileExpandsTo(const std::string& path, std::string_view wanted) {
    auto file = CompressedFile::Read(PathOfUtf8(path));
    if (!file) {
        return false;
    }
    const std::optional<ExpandedFile> expanded = std::move(*file).Expand();
    return expanded && expanded->View() == wanted;
}

}  // namespace

}  // namespace brelex

// Expands from memory and from the disk, and compares with what a ring gives. Without its
// signature, the same file stays as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const brelex::FuzzFolder folder;
    constexpr std::size_t kLengthBytes = 4;
    if (size < kLengthBytes) {
        return 0;
    }
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t limit = brelex::FuzzInput(data, size).TwoBytes();
    std::string file(brelex::kSzddSignature);
    file.push_back('\0');
    file += input;
    const std::string wanted = brelex::ExpandedWithARing(input.substr(kLengthBytes));
    for (const std::size_t most :
         {brelex::kMaxExpandedBytes, limit, wanted.size(), wanted.size() + 1,
          wanted.empty() ? wanted.size() : wanted.size() - 1}) {
        brelex::Require(brelex::ExpandsTo(file, wanted, most), "a file expands as the format says");
    }
    brelex::Require(brelex::FileExpandsTo(folder.Write("file", file), wanted),
                    "a file on the disk expands in the same way");
    brelex::Require(!brelex::CompressedFile::Read(folder.Path()), "a folder is no file");
    brelex::Require(
        brelex::ExpandsTo(input, input, limit) || input.starts_with(brelex::kSzddSignature),
        "a file without the signature stays as it is");
    return 0;
}
