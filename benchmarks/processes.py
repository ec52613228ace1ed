#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times whole processes of a finished build against others, in turn, and prints medians and ratios.

  benchmarks/processes.py build/bench/bin        (Acronyms.dat must be beside the programs)

Run it under scripts/with_display to have the start of the windows timed, too.
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


def until_window(timer, title):
    def measure(program):
        out = subprocess.run([timer, title(program), program], capture_output=True, text=True,
                             check=True).stdout
        return float(out)
    return measure


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
        main_program = os.path.join(folder, "brevilexicon")
        empty = os.path.join(folder, "empty_frame")
        title = lambda program: "Empty" if program == empty else "Brevilexicon ("
        measure = until_window(os.path.join(folder, "window_timer"), title)
        pair("start to main window / empty frame", main_program, empty, measure, 15)


main()
