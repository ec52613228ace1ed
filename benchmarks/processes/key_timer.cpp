// SPDX-License-Identifier: MIT
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <poll.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// key_timer TITLE X Y WIDTH HEIGHT PROGRAM ARGS...: starts the program, waits for the window whose
// title begins with TITLE, types words into it, and prints for each key the milliseconds until an
// area of the window has changed for the first time, and for the last time. The area is in pixels
// from the upper left corner of the window's inside. Ends the program.

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// After this time without a change, the area is taken to be complete.
constexpr milliseconds kQuiet{120};
// After this time without a change, the program is taken to be ready for the first key.
constexpr milliseconds kSettled{4000};
// A key that changes nothing is given up after this time.
constexpr milliseconds kNoChange{400};
constexpr std::array<std::string_view, 34> kWords = {
    "tcp", "ram", "usb", "sql", "htm", "iso", "gnu", "pdf", "cpu",  "lan", "wap", "dns",
    "xml", "bit", "fax", "jpg", "kde", "mac", "nfs", "odb", "raid", "svg", "url", "vga",
    "zip", "api", "eof", "hub", "ide", "lcd", "mpe", "oem", "ppp",  "ssh"};

int IgnoreError(Display* /*display*/, XErrorEvent* /*event*/) {
    return 0;  // windows may vanish while we look at them
}

double Milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

bool HasTitle(Display* display, Window window, std::string_view beginning) {
    char* name = nullptr;
    const bool found = XFetchName(display, window, &name) != 0 && name != nullptr &&
                       std::string_view(name).starts_with(beginning);
    if (name != nullptr) {
        XFree(name);
    }
    return found;
}

std::optional<Window> FindWindow(Display* display, Window top, std::string_view title) {
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, top, &attributes) != 0 &&
        attributes.map_state == IsViewable && HasTitle(display, top, title)) {
        return top;
    }
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    std::optional<Window> found;
    if (XQueryTree(display, top, &root, &parent, &children, &count) != 0 && children != nullptr) {
        for (unsigned i = 0; i < count && !found; ++i) {
            found = FindWindow(display, children[i], title);
        }
        XFree(children);
    }
    return found;
}

// The time of one key until the first and until the last change.
struct KeyTime {
    double first = 0;
    double last = 0;
};

// Watches an area of the screen.
class Watch {
  public:
    explicit Watch(Display* display) : display_(display) {
        int error = 0;
        if (XDamageQueryExtension(display, &firstEvent_, &error) == 0) {
            std::fputs("key_timer: the display has no damage extension\n", stderr);
            std::exit(2);
        }
        XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
    }

    void SetArea(XRectangle area) { area_ = area; }

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
        return other.x < area_.x + area_.width && area_.x < other.x + other.width &&
               other.y < area_.y + area_.height && area_.y < other.y + other.height;
    }

    Display* display_;
    int firstEvent_ = 0;
    XRectangle area_{0, 0, 32767, 32767};
};

void PressKey(Display* display, KeySym key) {
    const KeyCode code = XKeysymToKeycode(display, key);
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XFlush(display);
}

std::optional<KeyTime> TimeKey(Display* display, Watch& watch, KeySym key) {
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
    return KeyTime{Milliseconds(*first - start), Milliseconds(last - start)};
}

int TimeKeys(Display* display, std::string_view title, XRectangle area) {
    Watch watch(display);
    const Window root = DefaultRootWindow(display);
    std::optional<Window> window;
    const auto end = Clock::now() + std::chrono::seconds(60);
    while (!(window = FindWindow(display, root, title))) {
        if (Clock::now() > end) {
            return 1;
        }
        usleep(20000);
    }
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(display, *window, root, 0, 0, &x, &y, &child);
    area.x = static_cast<short>(area.x + x);
    area.y = static_cast<short>(area.y + y);
    watch.SetArea(area);
    watch.WaitForQuiet(kSettled);
    for (const std::string_view word : kWords) {
        for (const char letter : word) {
            if (const auto time = TimeKey(display, watch, static_cast<KeySym>(letter))) {
                std::printf("%.2f %.2f\n", time->first, time->last);
            }
        }
        for (std::size_t i = 0; i < word.size(); ++i) {
            PressKey(display, XK_BackSpace);
            watch.WaitForQuiet(kQuiet);
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 7) {
        return 2;
    }
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        return 2;
    }
    XSetErrorHandler(IgnoreError);
    const auto number = [&](int i) { return std::atoi(argv[i]); };
    const XRectangle area{static_cast<short>(number(2)), static_cast<short>(number(3)),
                          static_cast<unsigned short>(number(4)),
                          static_cast<unsigned short>(number(5))};
    const pid_t child = fork();
    if (child == 0) {
        execv(argv[6], argv + 6);
        _exit(127);
    }
    const int result = TimeKeys(display, argv[1], area);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    return result;
}
