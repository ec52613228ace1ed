// SPDX-License-Identifier: MIT
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <poll.h>
#include <string_view>
#include <unistd.h>

#include "benchmarks/processes/window_watch.h"

// key_timer TITLE X Y WIDTH HEIGHT PROGRAM ARGS...: starts the program, types words into the window
// whose title begins with TITLE, and prints for each key the milliseconds until an area of the
// window has changed and then stays as it is. The area is in pixels from the upper left corner of
// the window's inside. Ends the program.

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// After this time without a change, the area is taken to be complete.
constexpr milliseconds kQuiet{120};
// After this time, the program is taken to be ready for the first key.
constexpr milliseconds kSettled{4000};
// A key that changes nothing is given up after this time.
constexpr milliseconds kNoChange{400};
constexpr std::array<std::string_view, 34> kWords = {
    "tcp", "ram", "usb", "sql", "htm", "iso", "gnu", "pdf", "cpu",  "lan", "wap", "dns",
    "xml", "bit", "fax", "jpg", "kde", "mac", "nfs", "odb", "raid", "svg", "url", "vga",
    "zip", "api", "eof", "hub", "ide", "lcd", "mpe", "oem", "ppp",  "ssh"};

double Milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

// Watches an area of the screen.
class AreaWatch {
  public:
    AreaWatch(Display* display, XRectangle area) : display_(display), area_(area) {
        int error = 0;
        if (XDamageQueryExtension(display, &firstEvent_, &error) == 0) {
            std::fputs("key_timer: the display has no damage extension\n", stderr);
            std::exit(2);
        }
        XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
    }

    // Waits for a change of the area until `end`.
    std::optional<Clock::time_point> NextChange(Clock::time_point end) {
        for (;;) {
            while (XPending(display_) > 0) {
                XEvent event;
                XNextEvent(display_, &event);
                if (event.type == firstEvent_ + XDamageNotify && IsInside(event)) {
                    return Clock::now();
                }
            }
            const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
            if (left.count() <= 0) {
                return std::nullopt;
            }
            pollfd waiting{ConnectionNumber(display_), POLLIN, 0};
            poll(&waiting, 1, static_cast<int>(left.count()));
        }
    }

    void WaitForQuiet(milliseconds quiet) {
        while (NextChange(Clock::now() + quiet)) {
        }
    }

  private:
    [[nodiscard]] bool IsInside(const XEvent& event) const {
        XDamageNotifyEvent damage;
        static_assert(sizeof damage <= sizeof event);
        std::copy_n(reinterpret_cast<const char*>(&event), sizeof damage,
                    reinterpret_cast<char*>(&damage));
        const XRectangle& other = damage.area;
        return damage.drawable == DefaultRootWindow(display_) && other.x < area_.x + area_.width &&
               area_.x < other.x + other.width && other.y < area_.y + area_.height &&
               area_.y < other.y + other.height;
    }

    Display* display_;
    int firstEvent_ = 0;
    XRectangle area_;
};

void PressKey(Display* display, KeySym key) {
    const KeyCode code = XKeysymToKeycode(display, key);
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XFlush(display);
}

std::optional<double> TimeKey(Display* display, AreaWatch& watch, KeySym key) {
    const auto start = Clock::now();
    PressKey(display, key);
    const auto first = watch.NextChange(start + kNoChange);
    if (!first) {
        return std::nullopt;
    }
    auto last = *first;
    while (const auto further = watch.NextChange(last + kQuiet)) {
        last = *further;
    }
    return Milliseconds(last - start);
}

void TimeKeys(Display* display, AreaWatch& watch) {
    for (const std::string_view word : kWords) {
        for (const char letter : word) {
            if (const auto time = TimeKey(display, watch, static_cast<KeySym>(letter))) {
                std::printf("%.2f\n", *time);
            }
        }
        for (std::size_t i = 0; i < word.size(); ++i) {
            PressKey(display, XK_BackSpace);
            watch.WaitForQuiet(kQuiet);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 7) {
        return 2;
    }
    WindowWatch window(argv[1]);
    const pid_t program = StartProgram(argv + 6);
    const bool isShown = window.WaitFor([&] { return window.IsShown(); }, std::chrono::seconds(60));
    if (isShown) {
        window.WaitFor([] { return false; }, kSettled);
        Display* const display = window.XDisplay();
        int x = 0;
        int y = 0;
        Window child = 0;
        XTranslateCoordinates(display, window.Id(), DefaultRootWindow(display), 0, 0, &x, &y,
                              &child);
        const auto number = [&](int i) { return std::atoi(argv[i]); };
        AreaWatch watch(
            display,
            {static_cast<short>(x + number(2)), static_cast<short>(y + number(3)),
             static_cast<unsigned short>(number(4)), static_cast<unsigned short>(number(5))});
        TimeKeys(display, watch);
    }
    EndProgram(program);
    return isShown ? 0 : 1;
}
