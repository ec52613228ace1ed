# SPDX-License-Identifier: MIT
"""What the tests on a Wayland compositor share: programs, the compositor's windows, and the objects
that screen readers see. Needs scripts/with_compositor."""
import json
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                'support'))
import at_spi  # noqa: E402
from at_spi import Atspi, PATIENCE_S, find  # noqa: E402, F401
from gi.repository import Gio, GLib  # noqa: E402

ID = 'example.brevilexicon.Brevilexicon'
MAIN = 'Brevilexicon (www.brevilexicon.example)'
HELP = 'Brevilexicon Help'


def wait_for(found, what):
    return at_spi.wait_for(found, what, lambda: f'; the windows are {windows()}')


def expect(actual, expected, what):
    if actual != expected:
        sys.exit(f'{what}: {actual!r} instead of {expected!r}')


def sway(*arguments):
    answer = subprocess.run(['swaymsg', '-r', *arguments], check=True, stdout=subprocess.PIPE)
    return json.loads(answer.stdout)


def windows():
    """The windows on the screen, from the bottom to the top: (title, ID, whether it is active)."""
    found = []

    def visit(node):
        if node.get('app_id') is not None and node['visible']:
            found.append((node['name'], node['app_id'], node['focused']))
        for child in node['nodes'] + node['floating_nodes']:
            visit(child)

    visit(sway('-t', 'get_tree'))
    return found


def titles():
    return [title for title, _, _ in windows()]


def await_active(title):
    """Waits until the window with a title is the active one. sway activates windows without moving
    them to the top."""
    wait_for(lambda: any(shown == title and is_active for shown, _, is_active in windows()),
             f'"{title}" to be active')


def await_gone(title):
    wait_for(lambda: title not in titles(), f'"{title}" to go')


class Program:
    """A running program whose standard error is kept."""

    def __init__(self, *command, **variables):
        self.errors = open(os.path.join(os.environ['HOME'], 'errors'), 'w+', encoding='utf-8')
        self.process = subprocess.Popen(command, stderr=self.errors,
                                        env={**os.environ, 'NO_AT_BRIDGE': '0', **variables})

    def application(self):
        """The program as screen readers see it."""
        return wait_for(lambda: at_spi.application_of(self.process),
                        'the program on the accessibility bus')

    def expect_end(self):
        """Expects that the program ends without trouble and has not complained."""
        expect(self.process.wait(PATIENCE_S), 0, 'the exit status')
        self.errors.seek(0)
        expect(self.errors.read(), '', 'standard error')


def await_object(parent, role, name):
    return wait_for(lambda: find(parent, role, name), f'{role} "{name}"')


WATCHER = 'org.kde.StatusNotifierWatcher'
WATCHER_INTERFACE = f'''<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
</interface></node>'''


class Tray:
    """Stands in for a panel that shows icons of programs and uses them."""

    def __init__(self):
        self.item = None
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER_INTERFACE).interfaces[0]
        self.bus.register_object('/StatusNotifierWatcher', interface, self.on_call,
                                 lambda *_: GLib.Variant('b', True), None)
        Gio.bus_own_name_on_connection(self.bus, WATCHER, Gio.BusNameOwnerFlags.NONE, None, None)

    def on_call(self, _bus, sender, _path, _interface, _method, _arguments, call):
        self.item = sender
        call.return_value(None)

    def call(self, path, interface, method, arguments):
        """Calls the icon's program and returns the answer. Raises GLib.Error."""
        results = []
        self.bus.call(self.item, path, interface, method, arguments, None, 0, -1, None,
                      lambda _bus, result: results.append(result))
        return self.bus.call_finish(
            wait_for(lambda: results, f'the answer to {method}')[0]).unpack()

    def use(self, method, signature, *arguments):
        self.call('/StatusNotifierItem', 'org.kde.StatusNotifierItem', method,
                  GLib.Variant(signature, arguments))

    def activate(self, token=''):
        if token:
            self.use('ProvideXdgActivationToken', '(s)', token)
        self.use('Activate', '(ii)', 0, 0)

    def menu(self):
        """The menu as it is now: {label: number}."""
        def call(method, signature, *arguments):
            return self.call('/MenuBar', 'com.canonical.dbusmenu', method,
                             GLib.Variant(signature, arguments))

        call('AboutToShow', '(i)', 0)
        _, (_, _, items) = call('GetLayout', '(iias)', 0, -1, [])
        return {properties['label']: number for number, properties, _ in items
                if 'label' in properties}

    def choose(self, label):
        arguments = (self.menu()[label], 'clicked', GLib.Variant('i', 0), 0)
        self.call('/MenuBar', 'com.canonical.dbusmenu', 'Event', GLib.Variant('(isvu)', arguments))
