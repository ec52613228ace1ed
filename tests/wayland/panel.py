#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A window of another program, which covers the others and hands out activation tokens as a panel
does. Run as a program, it prints a token for each key that it gets."""
import subprocess
import sys

TITLE = 'Panel'


class Panel:
    """Used by tests, with a Seat."""

    def __init__(self, seat):
        self.seat = seat
        self.process = subprocess.Popen([sys.executable, __file__], stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        desktop.await_active(TITLE)

    def come_forward(self):
        desktop.sway(f'[title="^{TITLE}$"] focus')
        desktop.await_active(TITLE)

    def token(self):
        """A token for an action of the user in this window, which comes forward for it."""
        self.come_forward()
        self.seat.press('space')
        return desktop.wait_for(self.process.stdout.readline, 'a token').strip()


def run():
    import gi
    gi.require_version('Gdk', '3.0')
    gi.require_version('Gtk', '3.0')
    from gi.repository import Gdk, Gio, Gtk

    def on_key(*_):
        context = Gdk.Display.get_default().get_app_launch_context()
        other = Gio.AppInfo.create_from_commandline('brevilexicon', None, 0)
        print(context.get_startup_notify_id(other, []), flush=True)

    window = Gtk.Window(title=TITLE)
    window.set_default_size(1200, 900)
    window.connect('key-press-event', on_key)
    window.show_all()
    Gtk.main()


if __name__ == '__main__':
    run()
else:
    import desktop
