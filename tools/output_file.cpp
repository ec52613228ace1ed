// SPDX-License-Identifier: MIT
#include "tools/output_file.h"

#include <algorithm>
#include <system_error>

#include "base/file_io.h"
#include "tools/input_file.h"

namespace brelex {

namespace fs = std::filesystem;

std::string ReasonNotToWrite(const OutputRequest& output, const std::vector<fs::path>& inputs,
                             const ReplaceableFile* replaceable) {
    if (output.name == kStandardStream) {
        return {};
    }
    if (output.name.empty()) {
        return "the name of the file to write is empty";
    }
    const fs::path path = PathOfUtf8(output.name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        return {};
    }
    if (fs::is_directory(status)) {
        return output.name + " is a folder";
    }
    if (!fs::is_regular_file(status)) {
        return output.name + " is not a regular file; - writes to standard output";
    }
    if (std::ranges::any_of(inputs, [&](const fs::path& input) {
            std::error_code ignored;
            return fs::equivalent(path, input, ignored);
        })) {
        return output.name + " is an input; it would be lost";
    }
    if (output.force || fs::file_size(path, error) == 0) {
        return {};
    }
    if (replaceable == nullptr) {
        return output.name + " is there already; --force replaces it";
    }
    if (!replaceable->accepts(path)) {
        return output.name + " is there and is not " + replaceable->kind + "; --force replaces it";
    }
    return {};
}

std::string WriteOutput(const std::string& name, std::string_view bytes,
                        std::ostream& standardOutput) {
    if (name == kStandardStream) {
        standardOutput.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return {};  // the program checks the stream at its end
    }
    fs::path path = PathOfUtf8(name);
    std::error_code error;
    if (fs::is_symlink(path, error) && fs::exists(path, error)) {
        path = fs::canonical(path, error);
    }
    std::string why;
    return ReplaceFile(path, bytes, &why) ? std::string() : why;
}

}  // namespace brelex
