#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""hot_key_test.py BREVILEXICON: the hot key on Wayland, by way of the real desktop portal.

The test is the desktop behind the portal and the panel that shows the program's icon. The bus starts
the portal when the program asks for it. Needs a compositor of its own (scripts/with_compositor)."""
import json
import os
import subprocess
import sys
import tempfile
import time

try:
    from gi.repository import Gio, GLib
except ImportError:
    print('python3-gi is not installed')
    sys.exit(77)

PATIENCE_S = 30
PORTAL = '/usr/libexec/xdg-desktop-portal'
BACKEND = 'org.freedesktop.impl.portal.desktop.test'
SHORTCUTS = 'org.freedesktop.impl.portal.GlobalShortcuts'
SESSION = 'org.freedesktop.impl.portal.Session'
WATCHER = 'org.kde.StatusNotifierWatcher'
TITLE = 'Brevilexicon ('
TOKEN = 'token-of-the-desktop'

INTERFACES = f'''<node>
  <interface name="{SHORTCUTS}">
    <method name="CreateSession">
      <arg type="o" direction="in"/><arg type="o" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="u" direction="out"/><arg type="a{{sv}}" direction="out"/>
    </method>
    <method name="BindShortcuts">
      <arg type="o" direction="in"/><arg type="o" direction="in"/>
      <arg type="a(sa{{sv}})" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/>
      <arg type="u" direction="out"/><arg type="a{{sv}}" direction="out"/>
    </method>
    <property name="version" type="u" access="read"/>
  </interface>
  <interface name="{SESSION}">
    <method name="Close"/>
    <property name="version" type="u" access="read"/>
  </interface>
  <interface name="{WATCHER}">
    <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  </interface>
</node>'''


class Desktop:
    """What the desktop has been asked for."""

    def __init__(self):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.interfaces = {i.name: i for i in Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces}
        self.calls = []
        self.session = None
        self.shortcuts = None
        self.export('/org/freedesktop/portal/desktop', SHORTCUTS)
        self.export('/StatusNotifierWatcher', WATCHER)
        for name in (BACKEND, WATCHER):
            Gio.bus_own_name_on_connection(self.bus, name, Gio.BusNameOwnerFlags.NONE, None, None)

    def export(self, path, interface):
        def answer_property(*arguments):
            return GLib.Variant('u', 1) if arguments[4] == 'version' else GLib.Variant('b', True)
        self.bus.register_object(path, self.interfaces[interface], self.on_call, answer_property, None)

    def on_call(self, _bus, _sender, _path, _interface, method, arguments, call):
        self.calls.append(method)
        results = {}
        if method == 'CreateSession':
            self.session = arguments.unpack()[1]
            self.export(self.session, SESSION)
        if method == 'BindShortcuts':
            self.shortcuts = arguments.unpack()[2]
            results = {'shortcuts': arguments.get_child_value(2)}
        is_request = method in ('CreateSession', 'BindShortcuts')
        call.return_value(GLib.Variant('(ua{sv})', (0, results)) if is_request else None)

    def press(self):
        options = {'activation_token': GLib.Variant('s', TOKEN)}
        self.bus.emit_signal(None, '/org/freedesktop/portal/desktop', SHORTCUTS, 'Activated',
                             GLib.Variant('(osta{sv})',
                                          (self.session, self.shortcuts[0][0], 12345, options)))

    def let_bus_start_portal(self, folder):
        """The portal finds the backend by a file."""
        with open(os.path.join(folder, 'test.portal'), 'w', encoding='utf-8') as file:
            file.write(f'[portal]\nDBusName={BACKEND}\nInterfaces={SHORTCUTS}\nUseIn=test\n')
        environment = {'XDG_DESKTOP_PORTAL_DIR': folder, 'XDG_CURRENT_DESKTOP': 'test'}
        self.bus.call_sync('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                           'UpdateActivationEnvironment', GLib.Variant('(a{ss})', (environment,)),
                           None, Gio.DBusCallFlags.NONE, -1, None)


def wait_for(found, what):
    """Runs events until found() returns something true, which it returns."""
    end = time.monotonic() + PATIENCE_S
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        result = found()
        if result:
            return result
        time.sleep(0.02)
    sys.exit(f'waited in vain for {what}')


def windows(node=None):
    """The titles of the windows on the screen."""
    if node is None:
        node = json.loads(subprocess.check_output(['swaymsg', '-r', '-t', 'get_tree']))
    titles = [node['name']] if node.get('pid') else []
    for child in node.get('nodes', []) + node.get('floating_nodes', []):
        titles += windows(child)
    return titles


def is_main_window_up():
    return any(title and title.startswith(TITLE) for title in windows())


def main():
    if not os.path.exists(PORTAL):
        print('xdg-desktop-portal is not installed')
        sys.exit(77)
    program = sys.argv[1]
    desktop = Desktop()
    with tempfile.TemporaryDirectory() as folder:
        desktop.let_bus_start_portal(folder)
        protocol = open(os.path.join(folder, 'protocol'), 'w+', encoding='utf-8', errors='replace')
        process = subprocess.Popen([program, '/minimize'], stderr=protocol,
                                   env={**os.environ, 'WAYLAND_DEBUG': 'client'})
        wait_for(lambda: desktop.shortcuts, 'the program to ask for a key')
        name, options = desktop.shortcuts[0]
        print(f'asked for {name}: {options}')
        if len(desktop.shortcuts) != 1 or options['preferred_trigger'] != 'CTRL+SHIFT+g':
            sys.exit(f'these are the wrong keys: {desktop.shortcuts}')
        wait_for(lambda: 'RegisterStatusNotifierItem' in desktop.calls, 'the icon')
        wait_for(lambda: not is_main_window_up(), 'the main window to go into its icon')

        desktop.press()
        wait_for(is_main_window_up, 'the main window to come back')
        wait_for(lambda: f'activate("{TOKEN}"' in open(protocol.name, encoding='utf-8',
                                                       errors='replace').read(),
                 'the token of the desktop to reach the compositor')

        # Another start only shows its message.
        second = subprocess.Popen([program], stderr=subprocess.PIPE)
        wait_for(lambda: len(windows()) == 2, 'the message of the second start')
        second.terminate()
        messages = second.communicate()[1]
        if messages or desktop.calls.count('CreateSession') != 1:
            sys.exit(f'the second start asks for a key, too: {desktop.calls}, {messages}')

        process.terminate()
        wait_for(lambda: process.poll() is not None, 'the end of the program')
        wait_for(lambda: 'Close' in desktop.calls, 'the key to be given back')
    print('the key was asked for, used, and given back')


main()
