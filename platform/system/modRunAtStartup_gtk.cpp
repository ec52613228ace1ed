// SPDX-License-Identifier: MIT
#include "platform/system/modRunAtStartup.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "base/app_info.h"
#include "base/file_io.h"
#include "platform/system/exec_line_gtk.h"
#include "platform/system/replace_file.h"

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

// Whether desktops keep their own settings of an autostart entry in a line, such as "Hidden=true".
bool IsDesktopsOwn(std::string_view line) {
    const std::string_view key = line.substr(0, line.find_first_of(" \t="));
    return key == "Hidden" || key == "X-GNOME-Autostart-enabled" ||
           key == "X-GNOME-Autostart-Delay" || key == "X-MATE-Autostart-enabled" ||
           key == "X-MATE-Autostart-Delay" || key.starts_with("X-KDE-autostart-");
}

// The lines of an entry in which a desktop keeps its own settings.
std::string DesktopsLines(std::string_view entry) {
    std::string lines;
    bool isMainGroup = false;
    while (!entry.empty()) {
        const std::string_view line = entry.substr(0, entry.find('\n'));
        entry.remove_prefix(std::min(line.size() + 1, entry.size()));
        if (line.starts_with('[')) {
            isMainGroup = line.starts_with("[Desktop Entry]");
        } else if (isMainGroup && IsDesktopsOwn(line)) {
            lines.append(line).append("\n");
        }
    }
    return lines;
}

// TryExec keeps the desktop from complaining about an entry whose program was removed.
std::string Entry(const std::string& program) {
    return std::string("[Desktop Entry]\nType=Application\nName=") + kAppTitle +
           "\nComment=" BRELEX_DESCRIPTION "\nExec=\"" + EscapedForExecLine(program) +
           "\" /minimize\nTryExec=" + EscapedForDesktopEntry(program) + "\nIcon=" + kApplicationId +
           "\n";
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
    const std::optional<ByteBuffer> old = ReadWholeFile(*file);
    const std::string entry =
        Entry(appFolder + programName) + (old ? DesktopsLines(old->View()) : std::string());
    // Every start asks for the entry, and seldom is it not there yet.
    if (old && old->View() == entry) {
        return true;
    }
    fs::create_directories(file->parent_path(), error);
    return !error && ReplaceFile(*file, entry);
}

}  // namespace brelex
