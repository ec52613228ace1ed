# SPDX-License-Identifier: MIT
"""The program under test: its start, its windows, what it says, and what it takes from the system."""

import collections
import itertools
import os
import pathlib
import re
import shutil
import subprocess
import time

START_SECONDS = 60
END_SECONDS = 30
BACK_SECONDS = 20
MAIN_TITLE = "Brevilexicon ("
PANEL = "panel"  # shows the icon in the notification area
# Windows that say that something went wrong in the program.
ALARMING_TITLES = ("Debug Alert", "Program Error", "Fatal Error", "Assertion")
# What the program may write to its standard error, with the reason.
ALLOWED_LINES = [
    # The help's print dialog asks for printers.
    r"Couldn't connect to D-Bus system bus",
    # A list that is laid out while its window is still coming up.
    r"gtk_box_gadget_distribute: assertion 'size >= 0' failed in Gtk(Scrollbar|Notebook)",
    # A window that closes while a list in it still glides to where it was scrolled. GTK ends that twice.
    r"gdk_frame_clock_idle_end_updating: assertion 'priv->updating_count > 0' failed",
    r"g_signal_handler_disconnect: assertion 'handler_id > 0' failed",
    # Controls in a help window that a user has made smaller than they are.
    r"Gtk-WARNING \*\*: (\S+ )?(Negative content|for_size smaller than min-size)",
    # The toolkit also moves those controls in a scrolled window that are hidden.
    r"gtk_widget_set_allocation: assertion '_gtk_widget_get_visible",
    # A menu that cannot open because another program, such as the window manager, has the mouse.
    r"gdk_window_get_window_type: assertion 'GDK_IS_WINDOW \(window\)' failed",
]

Usage = collections.namedtuple("Usage", "action memory handles windows resources")


class Program:
    """Starts a copy of the built program in a folder of its own, so that it finds nothing there but
    what users get."""

    def __init__(self, screen, folder, built, emulator):
        self.screen = screen
        self.folder = pathlib.Path(folder)
        self.emulator = emulator
        self.suffix = ".exe" if emulator else ""
        self.errors = self.folder / "errors"
        self.errors.touch()
        self.seen_errors = 0
        self.starts = 0
        self.codes = []
        self.last_stack = ""
        self.process = None
        self.main = 0
        self.id = 0
        self.copy_files(pathlib.Path(built))
        self.make_browser()

    def copy_files(self, built):
        place = self.folder / "program"
        place.mkdir()
        for name in "Acronyms.dat", "Brelex.hlp", "ReadMe.txt", f"brevilexicon{self.suffix}":
            shutil.copy(built / name, place)
        viewer = built / f"brelex-help{self.suffix}"
        if self.emulator:
            shutil.copy(viewer, place)
        else:
            # Records how the viewer ends, which nobody else would see.
            self.script(place / "brelex-help",
                        f'"{viewer.resolve()}" "$@"\n'
                        f'code=$?; [ $code = 0 ] || echo "brelex-help ended with $code" >&2\n')

    def make_browser(self):
        """What the program opens in a browser goes into a file."""
        browser = self.folder / "browser"
        self.script(browser, f'echo "$@" >>"{self.folder}/opened"\n')
        data = pathlib.Path(os.environ["HOME"]) / ".local/share/applications"
        data.mkdir(parents=True, exist_ok=True)
        (data / "browser.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Browser\nExec={browser} %u\n")
        types = "x-scheme-handler/http", "x-scheme-handler/https", "x-scheme-handler/mailto", \
            "text/plain", "text/html"
        (data / "mimeapps.list").write_text(
            "[Default Applications]\n" + "".join(f"{name}=browser.desktop\n" for name in types))

    @staticmethod
    def script(path, text):
        path.write_text("#!/bin/sh\n" + text)
        path.chmod(0o755)

    def start(self):
        """Starts the program and waits for its main window. Returns what went wrong."""
        self.starts += 1
        self.main = 0
        with open(self.errors, "ab") as errors:
            self.process = subprocess.Popen(
                [*self.emulator, self.folder / "program" / f"brevilexicon{self.suffix}"],
                stdin=subprocess.DEVNULL, stdout=errors, stderr=errors, cwd=self.folder)
        end = time.monotonic() + START_SECONDS
        while time.monotonic() < end and self.process.poll() is None:
            for window in self.windows():
                if self.screen.title(window).startswith(MAIN_TITLE):
                    self.main = window
                    self.id = self.screen.process(window)
                    return None
            time.sleep(0.02)
        return f"shows no main window, exit code {self.process.poll()}"

    def is_over(self):
        return self.process.poll() is not None

    def wait_for_answer(self):
        """Waits until the program has handled what is on its way to it."""
        self.screen.answer_seconds(self.main, START_SECONDS, self.is_over)

    def end_code(self):
        """The exit code once the main window is gone; None if the process does not end."""
        try:
            self.codes.append(self.process.wait(END_SECONDS))
        except subprocess.TimeoutExpired:
            self.last_stack = self.stack()
            self.process.kill()
            return None
        return self.codes[-1]

    def windows(self):
        """The windows of the program and of its help that the window manager has."""
        return [window for window in self.screen.windows() if self.is_ours(window)]

    def is_ours(self, window):
        return re.search("brevilexicon|brelex", self.screen.program(window)) is not None

    def other_windows(self):
        """The windows of what the program opened, such as an editor for the ReadMe."""
        ours = self.windows()
        return [window for window in self.screen.windows()
                if window not in ours and self.screen.program(window) != PANEL]

    def alarming_titles(self):
        titles = [self.screen.title(window) for window in self.screen.windows()]
        return [title for title in titles if any(part in title for part in ALARMING_TITLES)]

    def new_errors(self):
        """What the program wrote since the last call and is not allowed to."""
        with open(self.errors, "rb") as errors:
            errors.seek(self.seen_errors)
            text = errors.read()
        self.seen_errors += len(text)
        lines = [re.sub(r"\d\d:\d\d:\d\d\.\d+: ", "", line)
                 for line in text.decode("utf-8", "replace").splitlines()
                 if line.strip() and not any(re.search(part, line) for part in ALLOWED_LINES)]
        return [f"{line} ({len(list(same))} times)" for line, same in itertools.groupby(lines)]

    def reports(self):
        """The sanitizers' reports, which they write into files."""
        return sorted(self.folder.glob("report.*"))

    def keep_window_manager(self):
        """Starts the window manager again if it has ended, which openbox sometimes does."""
        check = self.screen.property(self.screen.root.value, "_NET_SUPPORTING_WM_CHECK")
        if not check or not self.screen.exists(check[0]):
            print("the window manager has ended and is started again", flush=True)
            subprocess.Popen(["openbox"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
            time.sleep(1)
            self.screen.use_one_desktop()

    def opened(self):
        path = self.folder / "opened"
        return path.read_text().splitlines() if path.exists() else []

    def bring_back(self):
        """Brings the program back to its main window alone. Returns what went wrong."""
        end = time.monotonic() + BACK_SECONDS
        rounds = 0
        while time.monotonic() < end:
            rounds += 1
            if self.is_over() or not self.screen.exists(self.main):
                return None
            shown = self.windows()
            if shown == [self.main] and self.screen.active() == self.main:
                return None
            for window in shown + self.other_windows():
                if window != self.main:
                    self.screen.close(window)
            self.close_menus()
            if self.main not in shown or rounds % 4 == 0:
                self.screen.move(*TRAY)
                self.screen.click()
            elif rounds % 4 == 2:
                self.click_title()
            else:
                self.screen.activate(self.main)
            # Asked too often, the window manager and the program would not agree.
            time.sleep(min(0.1 * rounds, 1))
        return (f"does not come back to its main window: {[self.screen.title(w) for w in shown]}, "
                f"active {self.screen.title(self.screen.active())!r}, "
                f"main window {self.screen.property(self.main, 'WM_STATE')} "
                f"at {self.screen.area(self.main)}")

    def click_title(self):
        """Clicks the main window where that does nothing but give it the keyboard."""
        area = self.screen.area(self.main)
        if area:
            self.screen.move(max(area.x + 100, 0), max(area.y + 80, 0))
            self.screen.click()

    def close_menus(self):
        self.screen.key("Escape")
        if self.emulator:
            # The menu of the notification area gets no keys under Wine unless a window has them.
            for menu in self.screen.menus():
                if self.is_ours(menu):
                    x, y, _, _ = self.screen.area(menu)
                    self.screen.move(x + 20, y + 10)
                    self.screen.click()

    def usage(self, action):
        """What the program has of the system. Its memory, in KiB, is what no other program has: pages
        of libraries and fonts come and go with what the system keeps. None if it is just ending."""
        resources = self.screen.resources(self.id)
        try:
            status = pathlib.Path(f"/proc/{self.id}/status").read_text()
            memory = re.search(r"RssAnon:\s*(\d+)", status)
            handles = len(os.listdir(f"/proc/{self.id}/fd"))
        except OSError:
            return None
        return memory and Usage(action, int(memory[1]), handles, resources["WINDOW"],
                                sum(resources.values()))

    def stack(self):
        """Where the program is, if a debugger is installed."""
        if self.emulator or not shutil.which("gdb"):
            return ""
        return subprocess.run(["gdb", "-batch", "-p", str(self.id), "-ex", "bt 60"],
                              capture_output=True, text=True, check=False).stdout


# The icon in the notification area, which with_display puts into the upper left corner.
TRAY = (12, 12)
