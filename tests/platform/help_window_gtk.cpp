// SPDX-License-Identifier: MIT
// X11's view of other programs' windows.
#include "tests/platform/help_window.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <csignal>
#include <cstring>
#include <fstream>
#include <vector>

#include <wx/notebook.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace brelex {

namespace {

Display* OwnDisplay() {
    return gdk_x11_display_get_xdisplay(gdk_display_get_default());
}

std::string PropertyText(Window window, const char* name, Atom type) {
    constexpr long kMostWords = 4096;
    Atom actualType = None;
    int bits = 0;
    unsigned long items = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    std::string text;
    if (XGetWindowProperty(OwnDisplay(), window, XInternAtom(OwnDisplay(), name, False), 0,
                           kMostWords, False, type, &actualType, &bits, &items, &rest,
                           &bytes) == Success &&
        bytes != nullptr) {
        // Items of 32 bits come as long, whatever its size.
        constexpr int kWindowBits = 32;
        text.assign(reinterpret_cast<char*>(bytes),
                    bits == kWindowBits ? items * sizeof(Window) : items);
        XFree(bytes);
    }
    return text;
}

std::vector<Window> WindowsIn(const char* property) {
    const std::string bytes = PropertyText(DefaultRootWindow(OwnDisplay()), property, XA_WINDOW);
    std::vector<Window> windows(bytes.size() / sizeof(Window));
    if (!windows.empty()) {
        std::memcpy(windows.data(), bytes.data(), windows.size() * sizeof(Window));
    }
    return windows;
}

// The one of the windows that has the title; None if none has.
Window Titled(const std::vector<Window>& windows, const std::string& title) {
    for (const Window window : windows) {
        if (PropertyText(window, "_NET_WM_NAME", XInternAtom(OwnDisplay(), "UTF8_STRING", False)) ==
            title) {
            return window;
        }
    }
    return None;
}

}  // namespace

wxRect PlaceOfWindow(const std::string& title) {
    gdk_x11_display_error_trap_push(gdk_display_get_default());  // windows may go while asked
    const Window window = Titled(WindowsIn("_NET_CLIENT_LIST"), title);
    wxRect place;
    XWindowAttributes attributes{};
    Window child = None;
    if (window != None && XGetWindowAttributes(OwnDisplay(), window, &attributes) != 0 &&
        XTranslateCoordinates(OwnDisplay(), window, DefaultRootWindow(OwnDisplay()), 0, 0, &place.x,
                              &place.y, &child) != 0) {
        place.SetSize({attributes.width, attributes.height});
    }
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return place;
}

bool WindowHasKeyboard(const std::string& title) {
    gdk_x11_display_error_trap_push(gdk_display_get_default());
    const bool has = Titled(WindowsIn("_NET_ACTIVE_WINDOW"), title) != None;
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return has;
}

std::string CopiedText() {
    char* const copied = gtk_clipboard_wait_for_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD));
    std::string text = copied == nullptr ? "" : copied;
    g_free(copied);
    return text;
}

// Only what a program itself has put there can be taken off.
void EmptyClipboard() {
    GtkClipboard* const clipboard = gtk_clipboard_get(GDK_SELECTION_CLIPBOARD);
    gtk_clipboard_set_text(clipboard, "", 0);
    gtk_clipboard_clear(clipboard);
}

bool IsAsleep(long process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text);
    return text.find(") S ") != std::string::npos;
}

Standstill::Standstill(long process) : process_(process) {
    kill(static_cast<pid_t>(process_), SIGSTOP);
}

Standstill::~Standstill() {
    kill(static_cast<pid_t>(process_), SIGCONT);
}

// A tab behind the arrows is not mapped.
bool ShowsAllTabs(const wxNotebook& notebook) {
    auto* const tabs = GTK_NOTEBOOK(notebook.GetHandle());
    bool all = true;
    for (int i = 0; i < gtk_notebook_get_n_pages(tabs); ++i) {
        GtkWidget* const tab = gtk_notebook_get_tab_label(tabs, gtk_notebook_get_nth_page(tabs, i));
        all = all && gtk_widget_get_mapped(tab) != FALSE;
    }
    return all;
}

LargeFont::LargeFont() {
    char* before = nullptr;
    g_object_get(gtk_settings_get_default(), "gtk-font-name", &before, nullptr);
    before_ = before;
    g_free(before);
    g_object_set(gtk_settings_get_default(), "gtk-font-name", "Sans 18", nullptr);
}

LargeFont::~LargeFont() {
    g_object_set(gtk_settings_get_default(), "gtk-font-name", before_.c_str(), nullptr);
}

}  // namespace brelex
