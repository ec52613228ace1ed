// SPDX-License-Identifier: MIT
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

// window_timer TITLE PROGRAM ARGS...: starts the program, prints the milliseconds until a window
// whose title begins with TITLE appears on the screen, and ends the program.

namespace {

using Clock = std::chrono::steady_clock;

bool HasTitle(Display* display, Window window, std::string_view beginning) {
    char* name = nullptr;
    const bool found = XFetchName(display, window, &name) != 0 && name != nullptr &&
                       std::string_view(name).starts_with(beginning);
    if (name != nullptr) {
        XFree(name);
    }
    return found;
}

int IgnoreError(Display* /*display*/, XErrorEvent* /*event*/) {
    return 0;  // windows may vanish while we look at them
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        return 2;
    }
    XSetErrorHandler(IgnoreError);
    const Window root = DefaultRootWindow(display);
    XSelectInput(display, root, SubstructureNotifyMask);
    XSync(display, False);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execv(argv[2], argv + 2);
        _exit(127);
    }
    bool shown = false;
    while (!shown && Clock::now() - start < std::chrono::seconds(20)) {
        if (XPending(display) == 0) {
            usleep(200);  // without asking the server anything, because it is busy with the program
            continue;
        }
        XEvent event;
        XNextEvent(display, &event);
        if (event.type == CreateNotify && event.xcreatewindow.parent == root) {
            XSelectInput(display, event.xcreatewindow.window, StructureNotifyMask);
        } else if (event.type == MapNotify) {
            shown = HasTitle(display, event.xmap.window, argv[1]);
        }
    }
    const auto elapsed = Clock::now() - start;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    std::printf("%.1f\n", std::chrono::duration<double, std::milli>(elapsed).count());
    return shown ? 0 : 1;
}
