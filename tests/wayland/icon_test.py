#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""icon_test.py PROGRAM: brings the window back by its icon on a Wayland compositor, however it was
put away."""
import sys

from desktop import MAIN, Program, Tray, await_active, await_gone, expect, sway, titles, wait_for
from panel import Panel
from seat import Seat


def main():
    seat = Seat()
    tray = Tray()
    panel = Panel(seat)
    program = Program(sys.argv[1])
    await_active(MAIN)
    wait_for(lambda: tray.item, 'the icon')
    wait_for(lambda: '_Minimize Window' in tray.menu(), 'the menu')

    def cover():
        panel.come_forward()

    def minimize():  # the nearest that sway has; it does not accept a token for such windows
        sway(f'[title="^{MAIN[:12]}"] move scratchpad')
        await_gone(MAIN)

    # The program hears of neither.
    for put_away, has_token in ((minimize, False), (cover, True), (cover, False)):
        put_away()
        wait_for(lambda: '_Restore Window' in tray.menu(), 'the menu of a window put away')
        tray.activate(panel.token() if has_token else '')
        await_active(MAIN)
        wait_for(lambda: '_Minimize Window' in tray.menu(), 'the menu of the active window')

    tray.choose('_Minimize Window')
    await_gone(MAIN)
    tray.activate()
    await_active(MAIN)
    tray.choose('_Minimize Window')
    await_gone(MAIN)
    tray.choose('_Restore Window')
    await_active(MAIN)

    # With a dialog over it, both come back, and the dialog has the keyboard.
    seat.press('F3')
    await_active('Search Database')
    for token in (True, False):
        panel.come_forward()
        tray.activate(panel.token() if token else '')
        await_active('Search Database')
        expect(MAIN in titles(), True, 'the window under the dialog is shown')
    seat.press('Escape')
    await_gone('Search Database')

    tray.choose('Exit')
    program.expect_end()


main()
