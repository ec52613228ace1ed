#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures whole processes of a finished build and others in turn; prints medians and ratios.

  benchmarks/processes.py build/bench/bin [build/win32/bin]

Acronyms.dat must be beside the programs. Compares brelex with look and sdcv, if they are installed.
Under scripts/with_display it also measures how long the windows take to appear and to be painted,
how long the hidden window takes to come back, how long the list takes to follow a key, and how much
memory the programs use. It compares the keys with GoldenDict if that is installed. With the second
folder it times the Windows program under Wine.
"""
import collections
import os
import re
import shutil
import statistics
import struct
import subprocess
import sys
import tempfile
import time

NOWHERE = os.open(os.devnull, os.O_RDWR)
TITLE = "Brevilexicon ("
WINE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../scripts/windows/wine32")


def report(name, ours, theirs, unit):
    ratio = statistics.median(x / y for x, y in zip(ours, theirs))
    print(f"{name}: {statistics.median(ours):.2f} {unit} / {statistics.median(theirs):.2f} {unit}, "
          f"ratio {ratio:.2f}")


def in_turn(measure, ours, theirs, runs):
    measure(ours), measure(theirs)
    pairs = [(measure(ours), measure(theirs)) for _ in range(runs)]
    return zip(*pairs)


def milliseconds(command):
    # Not by the subprocess module, which takes as long as the programs that are timed here.
    start = time.perf_counter()
    process = os.posix_spawnp(command[0], command, os.environ, file_actions=[
        (os.POSIX_SPAWN_DUP2, NOWHERE, stream) for stream in range(3)])
    os.waitpid(process, 0)
    return (time.perf_counter() - start) * 1000


def output_of(command):
    # Wine's server keeps a pipe open after its programs have ended.
    with tempfile.TemporaryFile("w+") as out:
        subprocess.run(command, stdout=out, check=True)
        out.seek(0)
        return [float(number) for number in out.read().split()]


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


def compare(name, ours, theirs):
    report(name, *in_turn(milliseconds, ours, theirs, 200), "ms")


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
                compare(f"brelex {command} / {peer}", [brelex, *ours], theirs)
    for option in ("--version", "--help"):
        compare(f"brelex {option} / true", [brelex, option], ["/bin/true"])


def start_of_window(tools, program, empty):
    def measure(command):
        title = "Empty" if command is empty else TITLE
        return output_of([os.path.join(tools, "window_timer"), title, *command])
    ours, theirs = in_turn(measure, program, empty, 15)
    for i, what in enumerate(["shown", "painted"]):
        report(f"start until the window is {what} / empty frame ({os.path.basename(program[-1])})",
               [run[i] for run in ours], [run[i] for run in theirs], "ms")


# The inside of the lists of both programs, and the settings that make them start in a known state.
OUR_LIST = ["20", "200", "300", "200"]
THEIR_LIST = ["85", "60", "170", "60"]
THEIR_SETTINGS = """<config><paths><path recursive="0">{}</path></paths><preferences>
<enableTrayIcon>0</enableTrayIcon><checkForNewReleases>0</checkForNewReleases>
<enableMainWindowHotkey>0</enableMainWindowHotkey><enableClipboardHotkey>0</enableClipboardHotkey>
<enableScanPopup>0</enableScanPopup></preferences></config>
"""


def write_file(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w") as out:
        out.write(text)


def keys(tools, program, scratch):
    """Uses the home of scripts/with_display, which is empty and goes with the display."""
    home = os.environ["HOME"]
    write_file(home + "/.config/gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n")
    runs = {"key to list": [TITLE, *OUR_LIST, *program]}
    if shutil.which("goldendict"):
        write_file(home + "/.goldendict/config", THEIR_SETTINGS.format(scratch))
        runs["key to list of GoldenDict"] = ["GoldenDict", *THEIR_LIST, shutil.which("goldendict")]
        # The first time, it is busy with its indexes.
        output_of([os.path.join(tools, "key_timer"), *runs["key to list of GoldenDict"]])
    for _ in range(2):
        for name, command in runs.items():
            times = output_of([os.path.join(tools, "key_timer"), *command])
            print(f"{name}: median {statistics.median(times):.1f} ms, longest {max(times):.1f} ms")
    os.remove(home + "/.config/gtk-3.0/settings.ini")


def coming_back(tools, program):
    for how, name in [("key", "hot key"), ("click", "click on the icon")]:
        times = output_of([os.path.join(tools, "wake_timer"), how, TITLE, *program])
        print(f"{name} until the hidden window is painted: median {statistics.median(times):.1f} ms, "
              f"longest {max(times):.1f} ms")


def memory(program, empty):
    def measure(command):
        process = subprocess.Popen(command)
        time.sleep(2)  # by then everything that a start sets off has come to rest
        with open(f"/proc/{process.pid}/smaps_rollup") as file:
            sizes = dict(re.findall(r"^(\w+): +(\d+) kB", file.read(), re.M))
        process.terminate()
        process.wait()
        return [int(sizes[name]) / 1024 for name in ("Rss", "Private_Dirty")]
    ours, theirs = in_turn(measure, program, empty, 3)
    for i, what in enumerate(["resident memory", "private memory"]):
        report(f"{what} / empty frame", [run[i] for run in ours], [run[i] for run in theirs], "MiB")


def time_windows(folder, windows, scratch):
    program, empty = [os.path.join(folder, "brevilexicon")], [os.path.join(folder, "empty_frame")]
    start_of_window(folder, program, empty)
    coming_back(folder, program)
    memory(program, empty)
    keys(folder, program, scratch)
    if windows:
        start_of_window(folder, [WINE, os.path.join(windows, "brevilexicon.exe")],
                        [WINE, os.path.join(windows, "empty_frame.exe")])


def main():
    folders = [os.path.abspath(folder) for folder in sys.argv[1:]]
    with tempfile.TemporaryDirectory() as scratch:
        time_brelex(os.path.join(folders[0], "brelex"), scratch)
        if os.environ.get("DISPLAY"):
            time_windows(folders[0], folders[1] if len(folders) > 1 else None, scratch)


main()
