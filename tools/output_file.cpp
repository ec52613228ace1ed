// SPDX-License-Identifier: MIT
#include "tools/output_file.h"

#include <iterator>
#include <system_error>

#include "base/file_io.h"
#include "platform/system/replace_file.h"
#include "tools/input_file.h"

namespace brelex {

namespace fs = std::filesystem;

namespace {

// The reason not to write to `path` if it is one of the inputs.
std::string ReasonFromInputs(const OutputRequest& output, const fs::path& path,
                             const std::vector<fs::path>& inputs) {
    for (const fs::path& input : inputs) {
        std::error_code error;
        if (fs::equivalent(path, input, error)) {
            return output.name + " is an input; it would be lost";
        }
        // An input that is missing is no reason. It will be reported when it is read.
        if (error && error != std::errc::no_such_file_or_directory &&
            error != std::errc::not_a_directory) {
            return "cannot compare " + output.name + " with the input " + Utf8OfPath(input) + ": " +
                   error.message();
        }
    }
    return {};
}

// Where the bytes go: what a link leads to and not the link.
fs::path DestinationOf(const std::string& name, std::error_code& error) {
    fs::path path = PathOfUtf8(name);
    std::error_code missing;
    return fs::exists(path, missing) ? fs::canonical(path, error) : path;
}

}  // namespace

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
    if (!fs::status_known(status)) {
        return "cannot examine " + output.name + ": " + error.message();
    }
    if (!fs::exists(status)) {
        return fs::is_symlink(path, error) ? output.name + " is a link that leads nowhere" : "";
    }
    if (fs::is_directory(status)) {
        return output.name + " is a folder";
    }
    if (!fs::is_regular_file(status)) {
        return output.name + " is not a regular file; - writes to standard output";
    }
    if (std::string reason = ReasonFromInputs(output, path, inputs); !reason.empty()) {
        return reason;
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

std::string WriteOutputs(const std::vector<OutputFile>& outputs, std::ostream& standardOutput) {
    std::vector<FileToWrite> files;
    for (const OutputFile& output : outputs) {
        if (output.name == kStandardStream) {
            standardOutput.write(output.bytes.data(), std::ssize(output.bytes));
            continue;  // the program checks the stream at its end
        }
        std::error_code error;
        files.push_back({DestinationOf(output.name, error), output.bytes});
        if (error) {
            return "cannot find what " + output.name + " leads to: " + error.message();
        }
    }
    std::string why;
    (void)ReplaceFiles(files, &why);
    return why;
}

}  // namespace brelex
