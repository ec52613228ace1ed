#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""windows_test.py PROGRAM: uses the windows of the dictionary on a Wayland compositor, with keys."""
import os
import re
import sys

from desktop import (Atspi, ID, MAIN, Program, await_active, await_gone, await_object, expect,
                     titles, wait_for, windows)
from seat import Seat

# The keys that open each window from the main window, and its title.
SIDE_WINDOWS = [
    (['F3'], 'Search Database'),
    (['F5'], 'Go to Record'),
    (['Return'], 'Current Selection (Read Only)'),
    (['alt+f', 'Return'], 'Database Info'),
    (['alt+f', 'Down', 'Return'], 'Check Data Integrity'),
    (['alt+s', 'Down', 'Return'], 'Anagrammatic Search'),
    (['alt+h', 'Down', 'Down', 'Return'], 'The Smiley Dictionary'),
    (['alt+h', 'Down', 'Down', 'Down', 'Return'], 'Donate via PayPal'),
    (['alt+h', 'Up', 'Return'], 'About Brevilexicon'),
]


def check_typing(seat, application):
    box = await_object(application, 'text', 'First letters of the abbreviation')
    seat.type('cpu')
    wait_for(lambda: (box.get_description() or '').startswith('CPU: Central Processing Unit'),
             'the entry that was typed')


def check_side_windows(seat):
    for keys, title in SIDE_WINDOWS:
        for key in keys:
            seat.press(key)
        await_active(title)
        expect({shown[1] for shown in windows()}, {ID}, 'the ID of the windows')
        seat.press('Escape')
        await_gone(title)
        await_active(MAIN)


def check_stay_on_top(seat, application):
    """No compositor keeps a window on top for its program, so nothing may say that one does."""
    item = await_object(application, 'check menu item', 'Stay on Top')
    states = item.get_state_set()
    expect(states.contains(Atspi.StateType.SENSITIVE), False, 'Stay on Top can be chosen')
    expect(states.contains(Atspi.StateType.CHECKED), False, 'Stay on Top is checked')
    seat.press('alt+o')
    await_object(application, 'label', 'On Wayland, windows cannot stay on top')
    seat.press('Escape')
    seat.press('Escape')


def check_progress(program):
    """What the splash paints while the program is busy reaches the compositor."""
    with open(program.errors.name, encoding='utf-8') as log:
        calls = re.findall(r'-> (wl_surface@\d+)\.(attach|commit|destroy)\(', log.read())
    splash = calls[0][0]
    painted = []
    for surface, call in calls:
        if surface == splash:
            painted.append(call)
            if call == 'destroy':
                break
    expect(painted.count('attach') > 1, True, 'the splash has shown progress')
    for call, following in zip(painted, painted[1:]):
        if call == 'attach':
            expect(following, 'commit', 'what follows a picture of the splash')


def main():
    seat = Seat()
    program = Program(sys.argv[1])
    await_active(MAIN)
    expect(windows(), [(MAIN, ID, True)], 'the windows')
    application = program.application()
    # As long as the mouse has never been in the window, GTK believes that it is on its first menu.
    seat.move(500, 700)
    check_typing(seat, application)
    check_side_windows(seat)
    check_stay_on_top(seat, application)
    seat.press('alt+f')
    seat.press('Up')
    seat.press('Return')
    program.expect_end()
    expect(titles(), [], 'the windows')

    program = Program(sys.argv[1], WAYLAND_DEBUG='client')
    await_active(MAIN)
    program.process.terminate()
    program.process.wait()
    check_progress(program)


os.environ['NO_AT_BRIDGE'] = '1'  # for the test itself
main()
