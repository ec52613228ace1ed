// SPDX-License-Identifier: MIT
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "benchmarks/processes/window_watch.h"

// wake_timer key|click TITLE PROGRAM ARGS...: starts the program and, some times over, minimizes
// the window whose title begins with TITLE and brings it back, with Ctrl+Shift+G or with a click
// into the upper left corner of the screen, where the notification area is. Prints the milliseconds
// that it took each time until the program had painted all of the window. Then it ends the program.

namespace {

void PressHotKey(Display* display) {
    for (const bool isDown : {true, false}) {
        for (const auto key : {KeySym{XK_Control_L}, KeySym{XK_Shift_L}, KeySym{XK_G}}) {
            XTestFakeKeyEvent(display, XKeysymToKeycode(display, key), isDown ? True : False, 0);
        }
    }
    XFlush(display);
}

void ClickIcon(Display* display) {
    constexpr int kPlace = 12;
    XTestFakeMotionEvent(display, -1, kPlace, kPlace, 0);
    XTestFakeButtonEvent(display, Button1, True, 0);
    XTestFakeButtonEvent(display, Button1, False, 0);
    XFlush(display);
}

}  // namespace

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    if (argc < 4) {
        return 2;
    }
    constexpr int kRounds = 11;
    constexpr std::chrono::seconds kPatience(20);
    constexpr std::chrono::milliseconds kRest(400);
    const bool withKey = std::string_view(argv[1]) == "key";
    WindowWatch watch(argv[2]);
    const auto isPainted = [&] { return watch.IsPainted(); };
    const auto rest = [&] { watch.WaitFor([] { return false; }, kRest); };
    const pid_t program = StartProgram(argv + 3);
    bool isFine = watch.WaitFor(isPainted, kPatience);
    for (int round = 0; isFine && round < kRounds; ++round) {
        rest();
        XIconifyWindow(watch.XDisplay(), watch.Id(), DefaultScreen(watch.XDisplay()));
        isFine = watch.WaitFor([&] { return !watch.IsShown(); }, kPatience);
        rest();
        const auto start = Clock::now();
        withKey ? PressHotKey(watch.XDisplay()) : ClickIcon(watch.XDisplay());
        isFine = isFine && watch.WaitFor(isPainted, kPatience);
        std::printf("%.1f\n",
                    std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    EndProgram(program);
    return isFine ? 0 : 1;
}
