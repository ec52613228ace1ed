#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""help_test.py PROGRAM VIEWER: there is one help viewer on a Wayland compositor, which comes forward,
turns its pages and closes with the program."""
import os
import shutil
import subprocess
import sys

from desktop import (HELP, ID, MAIN, PATIENCE_S, Program, await_active, await_gone, await_object,
                     expect, sway, titles, wait_for, windows)
from seat import Seat


def press_f1_in(seat, title):
    sway(f'[title="^{title[:12]}.*{title[-7:-1]}"] focus')
    await_active(title)
    seat.press('F1')
    await_active(HELP)
    expect(titles().count(HELP), 1, 'the viewers')


def main():
    program, viewer = sys.argv[1:]
    seat = Seat()
    dictionary = Program(program)
    await_active(MAIN)
    press_f1_in(seat, MAIN)
    expect([shown[1] for shown in windows() if shown[0] == HELP], [ID + '.Help'], 'its ID')
    press_f1_in(seat, MAIN)

    # A viewer that the desktop starts gives way to the one that is open.
    expect(subprocess.run([viewer], timeout=PATIENCE_S, check=False).returncode, 0,
           'the status of the second viewer')
    expect(titles().count(HELP), 1, 'the viewers')

    dictionary.process.terminate()
    await_gone(HELP)
    dictionary.process.wait()

    # Pages: the first viewer turns to the one that the second was started with.
    first = Program(viewer)
    application = first.application()
    await_object(application, 'document text', 'Welcome')
    book = viewer.rsplit('/', 1)[0] + '/Brelex.hlp'
    expect(subprocess.run([viewer, book, 'keys.html'], timeout=PATIENCE_S, check=False).returncode, 0,
           'the status of the second viewer')
    await_object(application, 'document text', 'Keys')
    await_active(HELP)

    # A viewer with another book is not the one that is asked for.
    copy = shutil.copy(book, os.path.join(os.environ['HOME'], 'Other.hlp'))
    with subprocess.Popen([viewer, copy]) as other:
        wait_for(lambda: titles().count(HELP) == 2, 'the second window')
        other.terminate()
    wait_for(lambda: titles().count(HELP) == 1, 'the second window to go')
    sway(f'[title="^{HELP}$"] focus')
    await_active(HELP)
    seat.press('Escape')
    expect(first.process.wait(PATIENCE_S), 0, 'the status of the viewer')

    # GTK complains about the tabs of any program if a reader asks for them before they are shown.
    quiet = Program(viewer, NO_AT_BRIDGE='1')
    await_active(HELP)
    seat.press('Escape')
    quiet.expect_end()
    wait_for(lambda: not titles(), 'no window')


main()
