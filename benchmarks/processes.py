#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times whole processes of a finished build and others in turn, and prints medians and ratios.

  benchmarks/processes.py build/bench/bin [build/win32/bin]

Acronyms.dat must be beside the programs. Under scripts/with_display it also times how long the
windows take to appear, and with the second folder it times the Windows program under Wine.
"""
import os
import statistics
import subprocess
import sys
import tempfile
import time


def milliseconds(command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return (time.perf_counter() - start) * 1000


def pair(name, ours, theirs, measure, runs):
    a, b = [], []
    measure(ours), measure(theirs)
    for _ in range(runs):
        a.append(measure(ours))
        b.append(measure(theirs))
    ratios = [x / y for x, y in zip(a, b)]
    print(f"{name}: {statistics.median(a):.2f} ms / {statistics.median(b):.2f} ms, "
          f"ratio {statistics.median(ratios):.2f}")


def start_of_window(timer, program, empty, runs):
    def measure(command):
        title = "Empty" if command is empty else "Brevilexicon ("
        # Wine's server keeps a pipe open after its programs have ended.
        with tempfile.TemporaryFile() as out:
            subprocess.run([timer, title, *command], stdout=out, check=True)
            out.seek(0)
            return float(out.read())
    pair(f"start to main window / empty frame ({program[-1].rpartition('/')[2]})", program, empty,
         measure, runs)


def main():
    folder = os.path.abspath(sys.argv[1])
    brelex = os.path.join(folder, "brelex")
    with tempfile.TemporaryDirectory() as scratch:
        tsv = os.path.join(scratch, "entries.tsv")
        dump = subprocess.run([brelex, "dump"], capture_output=True, check=True).stdout
        with open(tsv, "wb") as out:
            subprocess.run(["sort", "-f"], input=dump, stdout=out, check=True,
                           env={"LC_ALL": "C"})
        pair("brelex lookup TCP / look -f tcp", [brelex, "lookup", "TCP"],
             ["look", "-f", "tcp", tsv], milliseconds, 60)
    if os.environ.get("DISPLAY"):
        timer = os.path.join(folder, "window_timer")
        start_of_window(timer, [os.path.join(folder, "brevilexicon")],
                        [os.path.join(folder, "empty_frame")], 15)
        if len(sys.argv) > 2:
            wine = os.path.join(os.path.dirname(__file__), "../scripts/windows/wine32")
            folder = os.path.abspath(sys.argv[2])
            start_of_window(timer, [wine, os.path.join(folder, "brevilexicon.exe")],
                            [wine, os.path.join(folder, "empty_frame.exe")], 15)


main()
