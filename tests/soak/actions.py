# SPDX-License-Identifier: MIT
"""What a user does. Each action gets its own source of random numbers, so that action number N of a
seed is the same whatever happened before it."""

import random
import time

from program import MAIN_TITLE, TRAY
from x11 import copy

LETTERS = "abcdefghijklmnopqrstuvwxyz0123456789-./&*?#[]! ABCXYZ"
KEYS = ["Up", "Down", "Left", "Right", "Page_Up", "Page_Down", "Home", "End", "Tab", "shift+Tab",
        "Return", "KP_Enter", "Escape", "BackSpace", "Delete", "Insert", "space", "ctrl+a", "ctrl+c",
        "ctrl+v", "ctrl+x", "ctrl+z", "ctrl+y", "ctrl+Home", "ctrl+End", "shift+Down", "shift+End",
        "ctrl+Left", "ctrl+shift+Right", "ctrl+Insert", "shift+Insert", "shift+Delete", "alt+Down",
        "ctrl+Tab", "ctrl+BackSpace", "ctrl+Page_Down", "Menu", "shift+F10"]
FUNCTION_KEYS = [f"F{number}" for number in range(1, 13)]
# Access keys in windows. The main window's menus are opened by the action "menu".
ACCESS_KEYS = "abcdegijklmnpqrtuvwyz"
# The menu bar's items: the menu's key and how often to press Down.
MENU_ITEMS = [("f", 0), ("f", 1), ("s", 0), ("s", 1), ("s", 2), ("o", 0), ("o", 1), ("h", 0),
              ("h", 1), ("h", 2), ("h", 3), ("h", 4)]
EXIT_ITEM = ("f", 2)
TRAY_ITEMS = 4  # the last one is Exit
STATES = ["_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ", "_NET_WM_STATE_FULLSCREEN",
          "_NET_WM_STATE_ABOVE"]
TEXTS = ["tcp", "TCP/IP", "a\tb", "two\nlines\r\nthree", "\u00e9\u00df\u0152\u20ac", "\u4e2d\u6587",
         "\U0001f600\U0001f468\u200d\U0001f469", "e\u0301\u0302\u0303\u0304" * 20, "\u202eabc\u202c",
         "".join(map(chr, range(1, 32))), "\x7f\x80\x9f\xad\ufeff\ufffd\uffff", "%s%n%d&&__&",
         "x" * 100_000, "\u20ac" * 100_000, "ab\n" * 30_000, "*" * 100_000, "[" * 1_000, ""]
PATTERNS = ["*", "?", "a", "e*", "[a-c]", "*x*", "##", "server", "[!a]", "[", "]", "q?", "[z-a]",
            "*" * 40, "memory", "the"]


class User:
    """Has a keyboard, a mouse, and a random way of using them."""

    def __init__(self, screen, program, seed):
        self.screen = screen
        self.program = program
        self.seed = seed
        self.may_exit = False
        self.random = random.Random(seed)
        self.actions = [getattr(self, name) for name in WEIGHTS]

    def act(self, number):
        """Does one action and returns what it was."""
        self.random = random.Random(f"{self.seed}/{number}")
        action, = self.random.choices(self.actions, WEIGHTS.values())
        return f"{action.__name__} {action() or ''}".rstrip()

    def tour(self):
        """Steps that open each window, and each message that a search or a wrong number brings."""
        return ([lambda item=item: self.choose(*item) for item in MENU_ITEMS] +
                [self.credits, self.view, self.search, self.anagrams, self.help_key, self.tray,
                 self.paste])

    def choose(self, menu, downs):
        self.screen.key("alt+" + menu)
        for _ in range(downs):
            self.screen.key("Down")
        self.screen.key("Return")

    # Choices.

    def chance(self, probability):
        return self.random.random() < probability

    def any_window(self):
        """Mostly the window with the keyboard, sometimes another one."""
        windows = self.program.windows()
        active = self.screen.active()
        choice = self.random.random()
        if active in windows and choice < 0.8:
            return active
        return windows[int(choice * 997) % len(windows)] if windows else None

    def is_main(self, window):
        return self.screen.title(window).startswith(MAIN_TITLE)

    def point_in(self, window):
        """A point on the screen in a window, as often in the whole as near the top. Keeps away from
        the icon that ends the program unless it may end."""
        area = self.screen.area(window)
        across, down = self.random.random(), self.random.random()
        if self.chance(0.3):
            down *= 0.2
        if area is None or area.width < 2 or area.height < 2:
            return None
        x, y = int(across * area.width), int(down * area.height)
        if not self.may_exit and self.is_main(window) and y < 100 and x > area.width * 0.4:
            y = 100
        x, y = area.x + x, area.y + y
        return min(max(x, 0), self.screen.width - 1), min(max(y, 0), self.screen.height - 1)

    def go_to_point(self):
        window = self.any_window()
        point = self.point_in(window) if window else None
        if point:
            self.screen.move(*point)
        return window, point

    # Actions.

    def typing(self):
        text = "".join(self.random.choices(LETTERS, k=self.random.randint(1, 12)))
        self.screen.type(text)
        return repr(text)

    def keys(self):
        names = self.random.choices(KEYS, k=self.random.randint(1, 6))
        for name in names:
            self.screen.key(name)
        return " ".join(names)

    def function_key(self):
        name = self.random.choice(FUNCTION_KEYS)
        self.screen.key(name)
        if name == "F10":
            self.screen.key("Escape")
        return name

    def help_key(self):
        self.screen.key("F1")

    def access_key(self):
        name = "alt+" + self.random.choice(ACCESS_KEYS)
        self.screen.key(name)
        return name

    def menu(self):
        menu, downs = self.random.choice(MENU_ITEMS)
        if self.may_exit and self.chance(0.1):
            menu, downs = EXIT_ITEM
        self.choose(menu, downs)
        return f"{menu} {downs}"

    def click(self):
        window, point = self.go_to_point()
        if point is None:
            return None
        button = self.random.choice((1, 1, 1, 1, 1, 3, 2))
        times = self.random.choice((1, 1, 1, 1, 2, 3))
        self.screen.click(button, times)
        return f"{button} {times} times at {point} in {self.screen.title(window)!r}"

    def drag(self):
        window, start = self.go_to_point()
        end = self.point_in(window) if window else None
        if start is None or end is None:
            return None
        button = self.random.choice((1, 1, 1, 3))
        self.screen.button(button, True)
        for step in range(1, 6):
            self.screen.move(start[0] + (end[0] - start[0]) * step / 5,
                             start[1] + (end[1] - start[1]) * step / 5)
        if self.chance(0.1):
            self.screen.key("Escape")
        self.screen.button(button, False)
        return f"{button} from {start} to {end} in {self.screen.title(window)!r}"

    def wheel(self):
        _, point = self.go_to_point()
        self.screen.click(self.random.choice((4, 5)), self.random.randint(1, 15))
        return str(point)

    def hover(self):
        _, point = self.go_to_point()
        time.sleep(self.random.choice((0, 0.1, 0.6)))
        return str(point)

    def paste(self):
        text = self.random.choice(TEXTS)
        copy(text)
        # The toolkit mistakes the news that another program has the clipboard for the text itself if
        # both arrive at once, and no hand is that quick.
        self.program.wait_for_answer()
        if self.chance(0.7):
            self.screen.key("ctrl+a")
        self.screen.key(self.random.choice(("ctrl+v", "ctrl+v", "shift+Insert")))
        return f"{len(text)} characters, {text[:8]!r}"

    def hot_key(self):
        self.screen.key("ctrl+shift+g")

    def tray(self):
        self.screen.move(*TRAY)
        if self.chance(0.4):
            self.screen.click()
            return None
        self.screen.click(3)
        time.sleep(0.1)
        item = self.random.randint(1, TRAY_ITEMS if self.may_exit else TRAY_ITEMS - 1)
        for _ in range(item):
            self.screen.key("Down")
        self.screen.key(self.random.choice(("Return", "Return", "Escape")))
        return f"item {item}"

    def search(self):
        self.screen.key("F3")
        time.sleep(self.random.choice((0, 0.1, 0.4)))
        pattern = self.random.choice(PATTERNS)
        self.screen.type(pattern)
        for _ in range(self.random.randint(0, 4)):
            self.screen.key(self.random.choice(("Tab", "space", "Up", "Down", "alt+w", "alt+b",
                                                "alt+d", "alt+a", "alt+e", "alt+m", "alt+n")))
        self.screen.key(self.random.choice(("Return", "alt+s")))
        time.sleep(self.random.choice((0, 0.02, 0.3)))
        return pattern

    def anagrams(self):
        self.screen.key("alt+s")
        self.screen.key("Down")
        self.screen.key("Return")
        time.sleep(self.random.choice((0, 0.3)))
        letters = "".join(self.random.choices("ascpudtmrl", k=self.random.randint(1, 6)))
        self.screen.type(letters)
        self.screen.key("Return")
        return letters

    def view(self):
        self.screen.type(self.random.choice("abcdefgh"))
        self.screen.key("Down")
        self.screen.key("Return")

    def credits(self):
        """About, and from there the window with the credits, by a click on the title with Ctrl."""
        for name in "alt+h", "Up", "Return":
            self.screen.key(name)
        # It opens slowly on a busy machine, and not at all over a modal window.
        for _ in range(30):
            time.sleep(0.1)
            window = self.screen.active()
            if self.screen.title(window).startswith("About"):
                break
        else:
            return None
        area = self.screen.area(window)
        if area is None:
            return None
        self.screen.move(area[0] + 40, area[1] + 30)
        self.screen.hold("ctrl", True)
        self.screen.click()
        self.screen.hold("ctrl", False)
        return None

    def escape(self):
        for _ in range(self.random.randint(1, 3)):
            self.screen.key("Escape")

    def close(self):
        window = self.any_window()
        if window and (self.may_exit and self.chance(0.2) or not self.is_main(window)):
            title = self.screen.title(window)
            if self.may_exit and self.chance(0.5):
                self.screen.key("alt+F4")
            else:
                self.screen.close(window)
            return repr(title)
        return None

    def close_others(self):
        """Windows of other programs, which the program opened to show something."""
        for window in self.program.other_windows():
            self.screen.close(window)

    def switch(self):
        window = self.any_window()
        if self.chance(0.5):
            self.screen.key("alt+Tab")
        elif window:
            self.screen.activate(window)

    def minimize(self):
        window = self.any_window()
        # Windows lets nobody minimize a window behind a modal one. Wine does, and may then lose both.
        if self.program.emulator and window != self.screen.active():
            return None
        if window:
            self.screen.minimize(window)
            if self.chance(0.5):
                self.screen.activate(window)
            return repr(self.screen.title(window))
        return None

    def resize(self):
        return self.drag_frame(3)

    def place(self):
        return self.drag_frame(1)

    def drag_frame(self, button):
        """Resizes or moves a window as the window manager lets a user do it, with Alt."""
        window, start = self.go_to_point()
        if start is None:
            return None
        end = self.random.randrange(self.screen.width), self.random.randrange(self.screen.height)
        self.screen.hold("alt", True)
        self.screen.button(button, True)
        self.screen.move(*[(here + there) / 2 for here, there in zip(start, end)])
        self.screen.move(*end)
        self.screen.button(button, False)
        self.screen.hold("alt", False)
        return f"to {end}: {self.screen.title(window)!r}"

    def state(self):
        window = self.any_window()
        name = self.random.choice(STATES)
        if window:
            self.screen.change_state(window, name)
        return name

    def wake(self):
        """Brings the main window back from the notification area."""
        if self.program.main not in self.screen.windows():
            self.screen.move(*TRAY)
            self.screen.click()


WEIGHTS = {"typing": 12, "keys": 16, "function_key": 3, "help_key": 0.5, "access_key": 4, "menu": 10,
           "click": 16, "drag": 5, "wheel": 4, "hover": 3, "paste": 4, "hot_key": 3, "tray": 3,
           "search": 5, "anagrams": 3, "view": 3, "credits": 1.5, "escape": 10, "close": 6,
           "close_others": 2, "switch": 3, "minimize": 3, "resize": 2, "place": 1.5, "state": 1.5,
           "wake": 4}
