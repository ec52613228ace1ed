#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times whole processes of a finished build and others in turn, and prints medians and ratios.

  benchmarks/processes.py build/bench/bin [build/win32/bin]

Acronyms.dat must be beside the programs. Compares brelex with look and sdcv, if they are installed.
Under scripts/with_display it also times how long the windows take to appear, and with the second
folder it times the Windows program under Wine.
"""
import collections
import os
import shutil
import statistics
import struct
import subprocess
import sys
import tempfile
import time

NOWHERE = os.open(os.devnull, os.O_RDWR)


def milliseconds(command):
    # Not by the subprocess module, which takes as long as the programs that are timed here.
    start = time.perf_counter()
    process = os.posix_spawnp(command[0], command, os.environ, file_actions=[
        (os.POSIX_SPAWN_DUP2, NOWHERE, stream) for stream in range(3)])
    os.waitpid(process, 0)
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


def write_stardict(folder, entries):
    """Writes lines of abbreviation, TAB and expansion as a dictionary that sdcv can read."""
    expansions = collections.defaultdict(list)
    for line in entries.splitlines():
        abbreviation, expansion = line.split(b"\t", 1)
        expansions[abbreviation].append(expansion)
    articles, index = bytearray(), bytearray()
    # In the format's order: by bytes, ignoring the case of ASCII letters.
    for abbreviation in sorted(expansions, key=lambda word: (word.lower(), word)):
        article = b"\n".join(expansions[abbreviation])
        index += abbreviation + b"\0" + struct.pack(">II", len(articles), len(article))
        articles += article
    facts = {"version": "2.4.2", "bookname": "Entries", "wordcount": len(expansions),
             "idxfilesize": len(index), "sametypesequence": "m"}
    for extension, content in (
            ("dict", articles), ("idx", index),
            ("ifo", ("StarDict's dict ifo file\n" +
                     "".join(f"{key}={value}\n" for key, value in facts.items())).encode())):
        with open(os.path.join(folder, "entries." + extension), "wb") as out:
            out.write(content)


def time_brelex(brelex, scratch):
    commands = {"lookup TCP": ["lookup", "TCP"], "search network": ["search", "network"],
                "anagram MRA": ["anagram", "MRA"]}
    dump = subprocess.run([brelex, "dump"], capture_output=True, check=True).stdout
    tsv = os.path.join(scratch, "entries.tsv")
    with open(tsv, "wb") as out:
        subprocess.run(["sort", "-f"], input=dump, stdout=out, check=True, env={"LC_ALL": "C"})
    write_stardict(scratch, dump)
    peers = {"look -f tcp": ["look", "-f", "tcp", tsv],
             "sdcv TCP": ["sdcv", "-n", "--data-dir", scratch, "TCP"]}
    for peer, theirs in peers.items():
        if shutil.which(theirs[0]):
            for command, ours in commands.items():
                pair(f"brelex {command} / {peer}", [brelex, *ours], theirs, milliseconds, 200)
    for option in ("--version", "--help"):
        pair(f"brelex {option} / true", [brelex, option], ["/bin/true"], milliseconds, 200)


def main():
    folder = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as scratch:
        time_brelex(os.path.join(folder, "brelex"), scratch)
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
