// SPDX-License-Identifier: MIT
#include "platform/desktop/system_desktop.h"

#include <gio/gio.h>
#include <memory>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/desktop/help_viewer_bus_gtk.h"

namespace brelex {

namespace {

struct UnrefObject {
    void operator()(gpointer object) const { g_object_unref(object); }
};

using Bus = std::unique_ptr<GDBusConnection, UnrefObject>;
using AppInfo = std::unique_ptr<GAppInfo, UnrefObject>;

// Allows the new window to come to the front.
std::unique_ptr<GdkAppLaunchContext, UnrefObject> LaunchContext() {
    return std::unique_ptr<GdkAppLaunchContext, UnrefObject>(
        gdk_display_get_app_launch_context(gdk_display_get_default()));
}

// A token with which another program can bring its window to the front now.
std::string TokenForOther() {
    GdkDisplay* const display = gdk_display_get_default();
    if (GDK_IS_X11_DISPLAY(display)) {  // the time of the user's last action is enough
        return "_TIME" + std::to_string(gdk_x11_display_get_user_time(display));
    }
    const AppInfo other(g_app_info_create_from_commandline("brelex-help", kHelpTitle,
                                                           G_APP_INFO_CREATE_NONE, nullptr));
    char* const made = g_app_launch_context_get_startup_notify_id(
        G_APP_LAUNCH_CONTEXT(LaunchContext().get()), other.get(), nullptr);
    std::string token = made == nullptr ? "" : made;
    g_free(made);
    return token;
}

// Formats an argument for a command line that GLib splits: quoted as for a shell, although no shell
// runs, and with percent signs doubled.
std::string Quoted(const std::string& argument) {
    char* const quoted = g_shell_quote(argument.c_str());
    std::string text;
    for (const char* c = quoted; *c != '\0'; ++c) {
        text += *c == '%' ? "%%" : std::string(1, *c);
    }
    g_free(quoted);
    return text;
}

}  // namespace

// The only window of another program that we use is the help viewer's.
bool SystemDesktop::BringWindowForward(const std::string& title) {
    const Bus bus(title == kHelpTitle ? SessionBus() : nullptr);
    if (bus == nullptr || !HasHelpViewer(bus.get())) {
        return false;
    }
    TellHelpViewer(bus.get(), "Activate", g_variant_new("(@a{sv})", PlatformData(TokenForOther())));
    return true;
}

void SystemDesktop::TurnToPage(const std::string& title, const std::string& page) {
    const Bus bus(title == kHelpTitle ? SessionBus() : nullptr);
    if (bus != nullptr) {
        TellHelpViewer(bus.get(), "ActivateAction", ActionCall(kShowPage, page.c_str()));
    }
}

bool SystemDesktop::StartHelpViewer(const std::string& folder, const std::string& book,
                                    const std::string& page) {
    const std::string viewer = folder + "brelex-help";
    if (g_file_test(viewer.c_str(), G_FILE_TEST_IS_REGULAR) == FALSE ||
        g_file_test(viewer.c_str(), G_FILE_TEST_IS_EXECUTABLE) == FALSE) {
        return false;
    }
    std::string command = Quoted(viewer) + " " + Quoted(book);
    if (!page.empty()) {
        command += " " + Quoted(page);
    }
    const AppInfo info(g_app_info_create_from_commandline(
        command.c_str(), kHelpTitle, G_APP_INFO_CREATE_SUPPORTS_STARTUP_NOTIFICATION, nullptr));
    return info != nullptr &&
           g_app_info_launch(info.get(), nullptr, G_APP_LAUNCH_CONTEXT(LaunchContext().get()),
                             nullptr) != FALSE;
}

void SystemDesktop::AskWindowToClose(const std::string& title) {
    const Bus bus(title == kHelpTitle ? SessionBus() : nullptr);
    if (bus != nullptr) {
        TellHelpViewer(bus.get(), "ActivateAction", ActionCall(kQuit, nullptr));
    }
}

bool SystemDesktop::Open(const std::string& target) {
    char* const uri = g_path_is_absolute(target.c_str())
                          ? g_filename_to_uri(target.c_str(), nullptr, nullptr)
                          : g_strdup(target.c_str());
    const bool opened =
        uri != nullptr && g_app_info_launch_default_for_uri(
                              uri, G_APP_LAUNCH_CONTEXT(LaunchContext().get()), nullptr) != FALSE;
    g_free(uri);
    return opened;
}

void SystemDesktop::OpenToRead(const std::string& path) {
    Open(path);
}

}  // namespace brelex
