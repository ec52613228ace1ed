# SPDX-License-Identifier: MIT
"""What tests over AT-SPI share: waiting for what other programs do, and finding the objects that
screen readers see. A test that imports this is skipped where the libraries are missing."""
import sys
import time

try:
    import gi
    gi.require_version('Atspi', '2.0')
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print('python3-gi or the typelib of AT-SPI is not installed')
    sys.exit(77)

PATIENCE_S = 30


def wait_for(found, what, surroundings=lambda: ''):
    """Runs events until found() returns something true, which it returns. If that does not happen,
    says so and what surroundings() tells, and ends the test."""
    end = time.monotonic() + PATIENCE_S
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            result = found()
        except GLib.Error:  # an object may vanish while it is looked at
            result = None
        if result:
            return result
        time.sleep(0.02)
    sys.exit(f'waited in vain for {what}{surroundings()}')


def application_of(process):
    """A process as screen readers see it; None if they do not see it yet."""
    desktop = Atspi.get_desktop(0)
    children = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    return next((child for child in children
                 if child is not None and child.get_process_id() == process.pid), None)


def objects_below(parent):
    for index in range(parent.get_child_count()):
        child = parent.get_child_at_index(index)
        if child is not None:
            yield child
            # The many cells of a table are not looked for.
            if not child.get_state_set().contains(Atspi.StateType.MANAGES_DESCENDANTS):
                yield from objects_below(child)


def find(parent, role, name=None):
    """The first object with a role and, unless it is None, a name; None if there is none."""
    return next((child for child in objects_below(parent)
                 if child.get_role_name() == role and name in (None, child.get_name())), None)
