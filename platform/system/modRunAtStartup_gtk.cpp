// SPDX-License-Identifier: MIT
#include "platform/system/modRunAtStartup.h"

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "base/app_info.h"
#include "base/file_io.h"
#include "platform/system/exec_line_gtk.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

// The autostart entry in the folder that XDG defines. XDG ignores a relative path.
std::optional<fs::path> AutostartFile() {
    constexpr const char* kName = "autostart/brevilexicon.desktop";
    const char* const configuration = std::getenv("XDG_CONFIG_HOME");
    if (configuration != nullptr && fs::path(configuration).is_absolute()) {
        return fs::path(configuration) / kName;
    }
    const char* const home = std::getenv("HOME");
    if (home == nullptr || !fs::path(home).is_absolute()) {
        return std::nullopt;
    }
    return fs::path(home) / ".config" / kName;
}

bool Contains(const fs::path& file, std::string_view text) {
    const std::optional<ByteBuffer> content = ReadWholeFile(file);
    return content && content->View() == text;
}

}  // namespace

bool SetRunAtStartup(const std::string& appFolder, const std::string& programName, bool enable) {
    const std::optional<fs::path> file = AutostartFile();
    if (!file) {
        return false;
    }
    std::error_code error;
    if (!enable) {
        return fs::remove(*file, error);
    }
    const std::string entry = std::string("[Desktop Entry]\nType=Application\nName=") + kAppTitle +
                              "\nExec=\"" + EscapedForExecLine(appFolder + programName) +
                              "\" /minimize\n";
    // Every start asks for the entry, and seldom is it not there yet.
    if (Contains(*file, entry)) {
        return true;
    }
    fs::create_directories(file->parent_path(), error);
    return !error && ReplaceFile(*file, entry);
}

}  // namespace brelex
