// SPDX-License-Identifier: MIT
#include "platform/desktop/system_desktop.h"

#include <X11/Xatom.h>
#include <cstring>
#include <gio/gio.h>
#include <memory>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/desktop/help_page.h"

namespace brelex {

namespace {

struct XFreeBytes {
    void operator()(unsigned char* bytes) const { XFree(bytes); }
};

// A property of a window. Each of its items has 32 or 8 bits.
struct Property {
    std::unique_ptr<unsigned char, XFreeBytes> bytes;
    unsigned long items = 0;
};

Property PropertyOf(Display* display, Window window, const char* name, Atom type, int itemBits) {
    constexpr long kMostWords = 65536;
    Property property;
    Atom actualType = None;
    int bits = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    if (XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, kMostWords, False,
                           type, &actualType, &bits, &property.items, &rest, &bytes) != Success ||
        actualType != type || bits != itemBits) {
        property.items = 0;
    }
    property.bytes.reset(bytes);
    return property;
}

// The X11 display and its window with this title, if there is one.
struct FoundWindow {
    GdkDisplay* gdk = nullptr;
    Display* display = nullptr;
    Window window = None;
};

FoundWindow WindowTitled(const std::string& title) {
    GdkDisplay* const gdk = gdk_display_get_default();
    if (gdk == nullptr || !GDK_IS_X11_DISPLAY(gdk)) {
        return {};
    }
    Display* const display = gdk_x11_display_get_xdisplay(gdk);
    Window found = None;
    // A window may be destroyed while we ask about it.
    gdk_x11_display_error_trap_push(gdk);
    const Property list =
        PropertyOf(display, DefaultRootWindow(display), "_NET_CLIENT_LIST", XA_WINDOW, 32);
    for (unsigned long i = 0; i < list.items && found == None; ++i) {
        // Items of 32 bits arrive as long, whatever the size of that type.
        unsigned long window = None;
        std::memcpy(&window, list.bytes.get() + i * sizeof window, sizeof window);
        const Property name = PropertyOf(display, window, "_NET_WM_NAME",
                                         XInternAtom(display, "UTF8_STRING", False), 8);
        if (name.items == title.size() &&
            std::memcmp(name.bytes.get(), title.data(), title.size()) == 0) {
            found = window;
        }
    }
    gdk_x11_display_error_trap_pop_ignored(gdk);
    return {gdk, display, found};
}

// Asks the window manager to do something with a window, as a pager would.
void Ask(const FoundWindow& found, const char* message, long first, long second) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = found.window;
    event.xclient.message_type = XInternAtom(found.display, message, False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = second;
    gdk_x11_display_error_trap_push(found.gdk);
    XSendEvent(found.display, DefaultRootWindow(found.display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XFlush(found.display);
    gdk_x11_display_error_trap_pop_ignored(found.gdk);
}

constexpr long kFromPager = 2;

struct UnrefObject {
    void operator()(gpointer object) const { g_object_unref(object); }
};

// Allows the new window to come to the front.
std::unique_ptr<GdkAppLaunchContext, UnrefObject> LaunchContext() {
    return std::unique_ptr<GdkAppLaunchContext, UnrefObject>(
        gdk_display_get_app_launch_context(gdk_display_get_default()));
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

bool SystemDesktop::BringWindowForward(const std::string& title) {
    const FoundWindow found = WindowTitled(title);
    if (found.window != None) {
        Ask(found, "_NET_ACTIVE_WINDOW", kFromPager, CurrentTime);
        return true;
    }
    return false;
}

void SystemDesktop::TurnToPage(const std::string& title, const std::string& page) {
    const FoundWindow found = WindowTitled(title);
    if (found.window != None) {
        TellHelpPage(found.window, page);
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
    const std::unique_ptr<GAppInfo, UnrefObject> info(g_app_info_create_from_commandline(
        command.c_str(), kHelpTitle, G_APP_INFO_CREATE_SUPPORTS_STARTUP_NOTIFICATION, nullptr));
    return info != nullptr &&
           g_app_info_launch(info.get(), nullptr, G_APP_LAUNCH_CONTEXT(LaunchContext().get()),
                             nullptr) != FALSE;
}

void SystemDesktop::AskWindowToClose(const std::string& title) {
    const FoundWindow found = WindowTitled(title);
    if (found.window != None) {
        Ask(found, "_NET_CLOSE_WINDOW", CurrentTime, kFromPager);
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
