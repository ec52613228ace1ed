#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Usage: soak.py [OPTION...] FOLDER [EMULATOR...]

Uses all windows of the program in FOLDER at random, with real keys and mouse. Fails if the program
ends by itself, reports anything on its standard error, answers later than a second, or takes ever
more memory, open files or windows from the system. Requires a display of its own with a
notification area; scripts/soak provides that. Exits with 77 if a tool is missing.

  --seconds N  how long; the default is 60
  --seed N     repeats the actions of the run that printed this seed; the default is a new one
  --first N    begins with action number N of the seed
  --answer-seconds N
               how long an answer may take; the default is 1. Time that the program spends waiting
               for a processor does not count
  --exits      lets the user end the program from the beginning on, not only in the last third
  --pictures F saves a picture of the screen in the folder F for each failure"""

import argparse
import collections
import contextlib
import math
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

from actions import User
from program import Program
from x11 import Screen

WAIT_SECONDS = 30  # for an answer that is late already
LAST_ACTIONS = 25
MOST_FAILURES = 50
ALL_WINDOWS = ["Brevilexicon (", "About Brevilexicon", "Anagrammatic Search", "Check Data Integrity",
               "Credits", "Database Info", "Donate via PayPal", "Search Database",
               "The Smiley Dictionary", "Current Selection (Read Only)", "Brevilexicon Help",
               "Go to Record"]
# A run that is shorter need not come through all windows, and says little about memory.
LONG_SECONDS = 600
MEMORY_GROWTH = 1.10  # from the end of the warm-up on
# Menus, hints and lists that drop down are made when they are first used, and kept.
MORE_HANDLES = 6
MORE_WINDOWS = 16


class Soak:
    def __init__(self, options, folder):
        self.options = options
        self.folder = folder
        self.screen = Screen()
        self.program = Program(self.screen, folder, options.folder, options.emulator)
        self.user = User(self.screen, self.program, options.seed)
        self.number = options.first - 1
        self.last = collections.deque(maxlen=LAST_ACTIONS)
        self.failures = 0
        self.longest = (0.0, 0, "")
        self.titles = collections.Counter()
        self.lives = []  # for each start, what the program took each time it was back
        self.began = time.monotonic()

    def seconds(self):
        return time.monotonic() - self.began

    def fail(self, what):
        self.failures += 1
        print(f"FAILED: seed {self.options.seed}, action {self.number}: {what}")
        for action in self.last:
            print(f"    {action}")
        sys.stdout.flush()
        if self.options.pictures:
            picture = f"{self.options.pictures}/{self.options.seed}-{self.number}.png"
            subprocess.run(["import", "-window", "root", picture], check=False)

    def start(self):
        self.lives.append([])
        problem = self.program.start()
        if problem:
            self.fail(problem)
        return problem is None

    def run(self):
        running = self.start()
        self.screen.use_one_desktop()
        self.tour()
        settle_every = min(60, max(10, self.options.seconds / 6))
        next_settling = settle_every
        while running and self.seconds() < self.options.seconds and self.failures < MOST_FAILURES:
            self.user.may_exit = self.options.exits or self.seconds() > self.options.seconds * 2 / 3
            self.act()
            if self.seconds() > next_settling:
                self.settle()
                next_settling = self.seconds() + settle_every
            running = self.check()
        if running:
            self.settle()
            self.program.close_menus()  # GTK takes no request to close a window while a menu is open
            time.sleep(0.2)
            self.screen.close(self.program.main)
            self.check_end()
        self.check_flat()
        self.check_windows()
        self.report()
        return self.failures == 0

    def tour(self):
        """Opens every window once, so that what they keep does not count as growth later."""
        for step in self.user.tour():
            self.last.append("tour")
            step()
            time.sleep(0.3)
            self.note_windows()
            self.check_answers()
            self.bring_back()

    def note_windows(self):
        for window in self.program.windows():
            self.titles[self.screen.title(window)] += 1

    def act(self):
        self.number += 1
        self.last.append(f"{self.number} started")
        self.last[-1] = f"{self.number} {self.user.act(self.number)}"
        self.note_windows()
        # Sometimes the next action comes before the program is done with this one.
        if self.user.chance(0.7):
            self.check_answers()

    def check_answers(self):
        for window in {self.program.main, *self.program.windows()}:
            processes = (self.screen.process(window), self.screen.server_process())
            waited = self.waited_for_processor(processes)
            seconds = self.screen.answer_seconds(window, WAIT_SECONDS, self.program.is_over)
            if seconds is None:
                continue
            if seconds == math.inf:
                self.fail(f"no answer after {WAIT_SECONDS} s\n{self.program.stack()}")
            seconds -= max(0, self.waited_for_processor(processes) - waited)
            if seconds > self.longest[0]:
                self.longest = (seconds, self.number, self.last[-1])
            if seconds > self.options.answer_seconds:
                self.fail(f"answers only after {seconds:.2f} s: {self.screen.title(window)}")

    @staticmethod
    def waited_for_processor(processes):
        """The seconds that processes, of which one waits for the other, have been ready to run while
        other programs ran."""
        seconds = 0.0
        for process in processes:
            with contextlib.suppress(OSError):
                delay = pathlib.Path(f"/proc/{process}/schedstat").read_text().split()[1]
                seconds += int(delay) / 1e9
        return seconds

    def check(self):
        """Looks for anything that went wrong, and starts the program again if it ended."""
        self.check_messages()
        self.program.keep_window_manager()
        if self.program.is_over() or not self.screen.exists(self.program.main):
            self.check_end()
            return self.start()
        return True

    def check_messages(self):
        errors = self.program.new_errors()
        for report in self.program.reports():
            errors.append(report.read_text(errors="replace"))
            report.rename(report.with_name(f"seen-{report.name}"))
        if errors:
            self.fail("the program reports\n" + "\n".join(errors))
        titles = self.program.alarming_titles()
        if titles:
            self.fail(f"shows {titles}")
            self.screen.key("Return")

    def check_end(self):
        code = self.program.end_code()
        print(f"{self.seconds():6.0f} s: ended with {code} after "
              f"{'; '.join(list(self.last)[-8:])}", flush=True)
        if code != 0:
            self.fail(f"does not end\n{self.program.last_stack}" if code is None
                      else f"ends with code {code}")
        self.check_messages()

    def bring_back(self):
        """Brings the program back to its main window. False if that cannot be measured."""
        problem = self.program.bring_back()
        if problem:
            self.fail(problem)
        self.check_messages()
        return not problem and not self.program.is_over()

    def settle(self):
        if self.bring_back():
            self.check_answers()
            time.sleep(0.5)
        usage = self.program.usage(self.number)
        if usage:
            self.lives[-1].append(usage)
            print(f"{self.seconds():6.0f} s: {usage}", flush=True)

    def measured(self):
        """The longest life of the program after its first third, when all windows were there once."""
        life = max(self.lives, key=len)
        return life[len(life) // 3:]

    def check_flat(self):
        life = self.measured()
        if len(life) < 2:
            return
        before, after = life[0], life[-1]
        if after.handles > before.handles + MORE_HANDLES:
            self.fail(f"open files grow: {before} to {after}")
        if after.windows > before.windows + MORE_WINDOWS:
            self.fail(f"windows of the display grow: {before} to {after}")
        if self.options.seconds >= LONG_SECONDS and after.memory > before.memory * MEMORY_GROWTH:
            self.fail(f"memory grows: {before} to {after}")

    def check_windows(self):
        missing = [title for title in ALL_WINDOWS
                   if not any(seen.startswith(title) for seen in self.titles)]
        if missing and self.options.seconds >= LONG_SECONDS:
            self.fail(f"these windows never opened: {missing}")

    def report(self):
        life = self.measured()
        seconds, number, action = self.longest
        print(f"seed {self.options.seed}: {self.number - self.options.first + 1} actions in "
              f"{self.seconds():.0f} s, {self.program.starts} starts, exit codes "
              f"{dict(collections.Counter(self.program.codes))}, "
              f"{len(self.program.opened())} pages opened")
        print(f"longest answer {seconds * 1000:.0f} ms, after action {action}")
        if life:
            print(f"after warming up {life[0]}\nat the end       {life[-1]}")
        print("windows:", ", ".join(f"{title} ({count})" for title, count in
                                    self.titles.most_common()))
        print(f"{self.failures} failures", flush=True)


def main():
    parser = argparse.ArgumentParser(usage=__doc__.partition(": ")[2])
    parser.add_argument("--seconds", type=int, default=60)
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(10 ** 9))
    parser.add_argument("--first", type=int, default=1)
    parser.add_argument("--answer-seconds", type=float, default=1)
    parser.add_argument("--exits", action="store_true")
    parser.add_argument("--pictures")
    parser.add_argument("folder")
    parser.add_argument("emulator", nargs="*")
    options = parser.parse_args()
    if not shutil.which("xclip"):
        print("needs xclip")
        sys.exit(77)
    print(f"seed {options.seed}", flush=True)
    with tempfile.TemporaryDirectory(prefix="soak.") as folder:
        sys.exit(0 if Soak(options, folder).run() else 1)


if __name__ == "__main__":
    main()
