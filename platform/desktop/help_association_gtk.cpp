// SPDX-License-Identifier: MIT
// Registers a MIME type for the help book and a desktop entry for its program in the user's data
// folder. The names are those of the files in packaging/linux/.
#include "platform/desktop/help_association.h"

#include <filesystem>
#include <gio/gdesktopappinfo.h>
#include <memory>
#include <string_view>
#include <system_error>

#include "base/app_info.h"
#include "base/file_io.h"
#include "embedded/kHelpDesktopEntry.h"
#include "embedded/kHelpMimeType.h"
#include "platform/system/exec_line_gtk.h"
#include "platform/system/replace_file.h"

namespace brelex {

namespace {

const char* const kContentType = "application/x-brelex-help";
const char* const kPlaceForCommand = "@HELP_COMMAND@";

struct UnrefObject {
    void operator()(GDesktopAppInfo* object) const { g_object_unref(object); }
};

std::filesystem::path DesktopEntryPath(const std::filesystem::path& data) {
    return data / "applications" / (std::string(kHelpApplicationId) + ".desktop");
}

std::filesystem::path MimeTypePath(const std::filesystem::path& data) {
    return data / "mime" / "packages" / "brelex-help-type.xml";
}

bool Write(const std::filesystem::path& path, const std::string& text) {
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    return !error && ReplaceFile(path, text);
}

bool UpdateMimeDatabase(const std::filesystem::path& data) {
    std::string program = "update-mime-database";
    std::string folder = (data / "mime").string();
    char* const command[] = {program.data(), folder.data(), nullptr};
    int status = 0;
    return g_spawn_sync(nullptr, const_cast<char**>(command), nullptr,
                        static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                 G_SPAWN_STDERR_TO_DEV_NULL),
                        nullptr, nullptr, nullptr, nullptr, &status, nullptr) != FALSE &&
           status == 0;
}

bool MakeDefault(const std::filesystem::path& entry) {
    const std::unique_ptr<GDesktopAppInfo, UnrefObject> info(
        g_desktop_app_info_new_from_filename(entry.c_str()));
    return info != nullptr && g_app_info_set_as_default_for_type(G_APP_INFO(info.get()),
                                                                 kContentType, nullptr) != FALSE;
}

bool Register(const std::filesystem::path& data, const std::string& program) {
    std::string entry = kHelpDesktopEntry;
    entry.replace(entry.find(kPlaceForCommand), std::string_view(kPlaceForCommand).size(),
                  '"' + EscapedForExecLine(program) + '"');
    return Write(MimeTypePath(data), kHelpMimeType) && UpdateMimeDatabase(data) &&
           Write(DesktopEntryPath(data), entry) && MakeDefault(DesktopEntryPath(data));
}

bool Unregister(const std::filesystem::path& data) {
    g_app_info_reset_type_associations(kContentType);
    std::error_code error;
    std::filesystem::remove(DesktopEntryPath(data), error);
    const bool hadType = std::filesystem::remove(MimeTypePath(data), error);
    return !error && (!hadType || UpdateMimeDatabase(data));
}

}  // namespace

bool OpenHelpFilesWith(const std::string& program) {
    const std::filesystem::path data = g_get_user_data_dir();
    return program.empty() ? Unregister(data) : Register(data, program);
}

}  // namespace brelex
