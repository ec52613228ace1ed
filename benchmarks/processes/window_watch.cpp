// SPDX-License-Identifier: MIT
#include "benchmarks/processes/window_watch.h"

#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

int IgnoreError(Display* /*display*/, XErrorEvent* /*event*/) {
    return 0;  // windows may vanish while we look at them
}

}  // namespace

WindowWatch::WindowWatch(std::string title)
    : display_(XOpenDisplay(nullptr)),
      title_(std::move(title)) {
    int firstError = 0;
    if (display_ == nullptr ||
        XDamageQueryExtension(display_, &firstDamageEvent_, &firstError) == False) {
        std::fputs("There is no display that reports what is painted.\n", stderr);
        std::exit(2);
    }
    XSetErrorHandler(IgnoreError);
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    XSync(display_, False);
}

WindowWatch::~WindowWatch() {
    XCloseDisplay(display_);
}

bool WindowWatch::HasTitle(Window window) const {
    char* name = nullptr;
    const bool found = XFetchName(display_, window, &name) != 0 && name != nullptr &&
                       std::string_view(name).starts_with(title_);
    if (name != nullptr) {
        XFree(name);
    }
    return found;
}

void WindowWatch::TakeNextEvent() {
    if (XPending(display_) == 0) {
        usleep(200);  // without asking the server anything, because it is busy with the program
        return;
    }
    XEvent event;
    XNextEvent(display_, &event);
    if (event.type == CreateNotify && event.xcreatewindow.parent == DefaultRootWindow(display_)) {
        XSelectInput(display_, event.xcreatewindow.window, StructureNotifyMask);
        XDamageCreate(display_, event.xcreatewindow.window, XDamageReportRawRectangles);
    } else if (event.type == MapNotify) {
        TakeMapped(event.xmap.window);
    } else if (event.type == UnmapNotify && event.xunmap.window == window_) {
        isShown_ = false;
        isPainted_ = false;
        paintedTo_ = 0;
    } else if (event.type == firstDamageEvent_ + XDamageNotify) {
        TakeDamage(event);
    }
}

void WindowWatch::TakeMapped(Window window) {
    if (window_ == None && HasTitle(window)) {
        window_ = window;
    }
    isShown_ = isShown_ || window == window_;
}

// Toolkits paint the whole window at once or from top to bottom.
void WindowWatch::TakeDamage(const XEvent& event) {
    const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
    if (window_ == None) {
        TakeMapped(damage.drawable);  // under Wine, a title may come late
    }
    if (damage.drawable != window_ || !isShown_) {
        return;
    }
    constexpr double kAlmostAll = 0.9;
    paintedTo_ = std::max(paintedTo_, damage.area.y + damage.area.height);
    isPainted_ = isPainted_ || (damage.area.width >= kAlmostAll * damage.geometry.width &&
                                paintedTo_ >= kAlmostAll * damage.geometry.height);
}

pid_t StartProgram(char** arguments) {
    const pid_t program = fork();
    if (program == 0) {
        execv(arguments[0], arguments);
        _exit(127);
    }
    return program;
}

void EndProgram(pid_t program) {
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
}
