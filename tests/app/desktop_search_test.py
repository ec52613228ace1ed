#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""desktop_search_test.py PROGRAMS SHARE: searches as GNOME Shell and KRunner do, on a session bus of its
own, which starts the programs of the folder PROGRAMS by the files in SHARE. Chooses results, and asks
the screen what the window shows of them. Needs a display."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                'support'))
from at_spi import Atspi, PATIENCE_S, objects_below, wait_for  # noqa: E402
from gi.repository import Gio, GLib  # noqa: E402

IDLE_S = 3
ID = 'example.brevilexicon.Brevilexicon'
SERVICE = ID + '.Search'
SERVICE_PATH = '/example/brevilexicon/Brevilexicon/Search'
SHELL = 'org.gnome.Shell.SearchProvider2'
RUNNER = 'org.kde.krunner1'
# Hyphen and blank come before the end of an abbreviation in the order of a database.
ENTRIES = ['DNS-SD\tDNS-Based Service Discovery', 'DNS 2\tOf two words', 'DNS\tDomain Name System',
           'DNS\tDirect Numbering Scheme', 'DNSSEC\tDNS Security Extensions', 'DNSX\tOne too many',
           '\u00c5S\tWith a ring', 'XML\tExtensible Markup Language', 'XSS\tCross-Site Scripting']
DNS = ['DNS\tDirect Numbering Scheme', 'DNS\tDomain Name System',
       'DNS-SD\tDNS-Based Service Discovery', 'DNS 2\tOf two words',
       'DNSSEC\tDNS Security Extensions']
HOSTILE = ['', ' ', 'X' * 10000, '\u4e2d' * 10000, 'X\x01', '\x1b[2J', '\t', 'XML\t', '\n', '*', 'X*',
           '?', '[A-Z]', '..', '/', '%s%n', '-1', '\uffff', '\U0001f600', 'cross-site scripting']
failures = 0


def expect(actual, expected, what):
    global failures
    if actual != expected:
        failures += 1
        print(f'FAILED: {what}: {actual!r} instead of {expected!r}')


class Desktop:
    """A session bus that can start the programs, and what a desktop calls on it."""

    def __init__(self, programs, share, folder):
        self.programs = folder + '/programs'
        self.errors = folder + '/errors'
        os.mkdir(self.programs)
        for name in ('brevilexicon', 'brevilexicon-search'):
            shutil.copy(f'{programs}/{name}', self.programs)
        services = folder + '/share/dbus-1/services'
        os.makedirs(services)
        for name in (ID, SERVICE):
            with open(f'{share}/dbus-1/services/{name}.service', encoding='utf-8') as file:
                text = file.read()
            expect(f'"{programs}/' in text, True, f'the program in the build tree\'s {name}.service')
            text = text.replace(programs, self.programs)
            text = text.replace('-search"', f'-search" --idle-seconds {IDLE_S}')
            with open(f'{services}/{name}.service', 'w', encoding='utf-8') as file:
                file.write(text)
        environment = {**os.environ, 'XDG_DATA_DIRS': f'{folder}/share:/usr/share',
                       'NO_AT_BRIDGE': '0'}
        with open(self.errors, 'w', encoding='utf-8') as errors:
            self.daemon = subprocess.Popen(
                ['dbus-daemon', '--session', '--nofork', '--print-address'], env=environment,
                stdout=subprocess.PIPE, stderr=errors, text=True)
        address = self.daemon.stdout.readline().strip()
        os.environ['DBUS_SESSION_BUS_ADDRESS'] = address  # for AT-SPI as well
        self.bus = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
            Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)

    def call(self, name, path, interface, method, parameters):
        answer = self.bus.call_sync(name, path, interface, method, parameters, None,
                                    Gio.DBusCallFlags.NONE, PATIENCE_S * 1000, None)
        answer = answer.unpack()
        return answer[0] if answer else None

    def search(self, interface, method, signature, *parameters):
        return self.call(SERVICE, SERVICE_PATH, interface, method,
                         GLib.Variant(signature, parameters))

    def find(self, *terms):
        return self.search(SHELL, 'GetInitialResultSet', '(as)', terms)

    def match(self, query):
        return self.search(RUNNER, 'Match', '(s)', query)

    def ask_bus(self, method, name):
        return self.call('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus',
                         method, GLib.Variant('(s)', (name,)))

    def runs(self, name=SERVICE):
        return self.ask_bus('NameHasOwner', name)

    def process_of(self, name):
        return self.ask_bus('GetConnectionUnixProcessID', name)

    def write_database(self, entries):
        source = self.programs + '/entries.tsv'
        with open(source, 'w', encoding='utf-8') as file:
            file.write('\n'.join(entries) + '\n')
        subprocess.run([sys.argv[1] + '/brelex', 'build', '-o', self.programs + '/new', source],
                       check=True, stdout=subprocess.DEVNULL)
        os.rename(self.programs + '/new', self.programs + '/Acronyms.dat')

    def said(self, text):
        with open(self.errors, encoding='utf-8', errors='replace') as file:
            return file.read().count(text)


def check_shell_search(desktop):
    expect(desktop.runs(), False, 'whether the service runs before anybody searches')
    expect(desktop.find('dns'), DNS, 'what is found')
    expect(desktop.runs(), True, 'whether the search has started the service')
    expect(desktop.find('DNS', '2'), ['DNS 2\tOf two words'], 'an abbreviation of two words')
    expect(desktop.find('domain', 'name'), [], 'what two words find')
    expect(desktop.find('\u00e5'), ['\u00c5S\tWith a ring'], 'what a letter with a ring finds')
    expect(desktop.find(), [], 'what no text finds')
    for text in HOSTILE:
        expect(desktop.find(text), [], f'what {text[:20]!r} finds')
        expect(desktop.match(text), [], f'what KRunner gets for {text[:20]!r}')
    expect(desktop.find(*['x'] * 10000), [], 'what ten thousand words find')
    found = desktop.search(SHELL, 'GetSubsearchResultSet', '(asas)', ['DNS\tGone', '7'], ['dnss'])
    expect(found, ['DNSSEC\tDNS Security Extensions'], 'what a longer text finds')
    metas = desktop.search(SHELL, 'GetResultMetas', '(as)',
                           ['-1', '0', '99999999999999999999', 'DNS', 'DNS\tGone', '', 'X' * 100000,
                            DNS[1], '\u4e2d'])
    expect(metas, [{'id': DNS[1], 'name': 'DNS', 'description': 'Domain Name System'}],
           'what is shown of a result')
    expect(desktop.search(SHELL, 'GetResultMetas', '(as)', []), [], 'what is shown of no result')
    try:
        desktop.search(SHELL, 'GetInitialResultSet', '(s)', 'dns')
        expect('an answer', 'an error', 'a call with wrong parameters')
    except GLib.Error:
        pass
    expect(desktop.find('xs'), ['XSS\tCross-Site Scripting'], 'what is found after all that')


def check_krunner(desktop):
    expect(desktop.search(RUNNER, 'Actions', '()'), [('copy', 'Copy', 'edit-copy')], 'the actions')
    matches = desktop.match(' dns ')
    expect([match[0] for match in matches], DNS, 'what KRunner gets')
    expect([match[1] for match in matches], ['DNS', 'DNS', 'DNS-SD', 'DNS 2', 'DNSSEC'], 'its texts')
    expect([match[5] for match in matches],
           [{'subtext': entry.split('\t')[1]} for entry in DNS], 'the texts below')
    expect({match[2] for match in matches}, {ID}, 'the icon')
    expect([match[3] for match in matches], [100, 100, 10, 10, 10], 'how well they match')
    relevances = [match[4] for match in matches]
    expect(relevances, sorted(relevances, reverse=True), 'the relevance of matches')
    expect(len(set(relevances)), len(relevances), 'how many different relevances there are')
    expect(desktop.search(RUNNER, 'Config', '()'), {}, 'the configuration')
    expect(desktop.search(RUNNER, 'Teardown', '()'), None, 'the end of a search')


def check_changed_data(desktop):
    desktop.write_database(['DNS\tDomain Name System', 'DNSY\tNew'])
    expect(desktop.find('dns'), ['DNS\tDomain Name System', 'DNSY\tNew'], 'what is found in new data')
    metas = desktop.search(SHELL, 'GetResultMetas', '(as)', DNS)
    expect([meta['id'] for meta in metas], ['DNS\tDomain Name System'], 'the results that are left')
    database = desktop.programs + '/Acronyms.dat'
    with open(database, 'r+b') as file:
        file.truncate(30)
    expect(desktop.find('dns'), [], 'what is found in damaged data')
    expect(desktop.match('dns'), [], 'what KRunner gets of damaged data')
    expect(desktop.said('Loading was aborted.'), 1, 'how often it says that the data are damaged')
    os.remove(database)
    for _ in range(3):
        expect(desktop.find('dns'), [], 'what is found without data')
    expect(desktop.said('cannot read ' + database), 1, 'how often it says that there are no data')
    desktop.write_database(ENTRIES)
    expect(desktop.find('dns'), DNS, 'what is found when the data are back')


def check_idle_end(desktop):
    process = desktop.process_of(SERVICE)
    wait_for(lambda: not desktop.runs(), 'the service to end')
    wait_for(lambda: not os.path.exists(f'/proc/{process}'), 'its process to end')
    expect(desktop.find('dns'), DNS, 'what is found after its end')


def check_call_at_the_end(desktop):
    """A search that arrives at the moment when the service ends is answered."""
    process = desktop.process_of(SERVICE)
    answers = []

    def on_answer(bus, result):
        try:
            answers.append(bus.call_finish(result).unpack()[0])
        except GLib.Error as error:
            answers.append(error.message)

    os.kill(process, signal.SIGSTOP)
    desktop.bus.call(SERVICE, SERVICE_PATH, SHELL, 'GetInitialResultSet',
                     GLib.Variant('(as)', (['dns'],)), None, Gio.DBusCallFlags.NONE,
                     PATIENCE_S * 1000, None, on_answer)
    time.sleep(IDLE_S + 1.5)  # its time is over before it can look at the call
    os.kill(process, signal.SIGCONT)
    wait_for(lambda: answers, 'an answer')
    expect(answers, [DNS], 'the answer at the end')


def shown_entry():
    """What a screen reader says of the look-up box: its text, and the selected entry."""
    root = Atspi.get_desktop(0)
    for index in range(root.get_child_count()):
        for child in objects_below(root.get_child_at_index(index)):
            if child.get_name() == 'First letters of the abbreviation':
                child.clear_cache()
                return Atspi.Text.get_text(child, 0, -1), child.get_description()
    return None


def title_in_front():
    shown = subprocess.run(['xprop', '-root', '_NET_ACTIVE_WINDOW'], capture_output=True, text=True,
                           check=False).stdout.split()[-1]
    title = subprocess.run(['xprop', '-id', shown, 'WM_NAME'], capture_output=True, text=True,
                           check=False).stdout
    return title.partition('"')[2].rstrip('"\n')


def await_shown(text, entry):
    wait_for(lambda: shown_entry() is not None and shown_entry()[0] == text and
             shown_entry()[1].startswith(entry), f'the window to show {text}: {entry}')
    wait_for(lambda: title_in_front().startswith('Brevilexicon ('), 'the window to be in front')


def check_copying_in_kde(desktop):
    """KDE has a clipboard on the bus, so that no window is needed."""
    copied = []

    def on_call(_bus, _sender, _path, _interface, _method, parameters, invocation):
        copied.append(parameters.unpack()[0])
        invocation.return_value(None)

    node = Gio.DBusNodeInfo.new_for_xml(
        '<node><interface name="org.kde.klipper.klipper"><method name="setClipboardContents">'
        '<arg type="s" direction="in"/></method></interface></node>')
    clipboard = desktop.bus.register_object('/klipper', node.interfaces[0], on_call, None, None)
    name = Gio.bus_own_name_on_connection(desktop.bus, 'org.kde.klipper',
                                          Gio.BusNameOwnerFlags.NONE, None, None)
    wait_for(lambda: desktop.runs('org.kde.klipper'), 'the clipboard of KDE')
    for entry in ('XML\tGone', '\u00c5S\tWith a ring'):
        desktop.search(RUNNER, 'Run', '(ss)', entry, 'copy')
    wait_for(lambda: copied, 'the copied entry')
    expect(copied, ['\u00c5S = With a ring'], 'what is copied')
    expect(desktop.runs(ID), False, 'whether copying starts the window')
    Gio.bus_unown_name(name)
    desktop.bus.unregister_object(clipboard)
    wait_for(lambda: not desktop.runs('org.kde.klipper'), 'the clipboard of KDE to go')


def check_choosing(desktop):
    expect(desktop.runs(ID), False, 'whether the window is there before')
    desktop.search(SHELL, 'ActivateResult', '(sasu)', DNS[1], ['dns'], 0)
    await_shown('DNS', 'DNS: Domain Name System')
    process = desktop.process_of(ID)
    expect(os.readlink(f'/proc/{process}/exe'), desktop.programs + '/brevilexicon', 'the program')

    # A window of another program takes the front.
    cover = subprocess.Popen(['xmessage', '-geometry', '400x300+0+0', 'Another window'])
    wait_for(lambda: title_in_front() == 'xmessage', 'another window')
    desktop.search(SHELL, 'ActivateResult', '(sasu)', 'XSS\tCross-Site Scripting', ['xs'], 0)
    await_shown('XSS', 'XSS: Cross-Site Scripting')
    cover.kill()
    cover.wait()

    desktop.search(SHELL, 'LaunchSearch', '(asu)', ['xm'], 0)
    await_shown('XML', 'XML: Extensible')
    desktop.search(RUNNER, 'SetActivationToken', '(s)', 'a token')
    desktop.search(RUNNER, 'Run', '(ss)', DNS[0], '')
    await_shown('DNS', 'DNS: Direct Numbering Scheme')
    desktop.search(RUNNER, 'Run', '(ss)', DNS[4], 'copy')
    copied = 'DNSSEC = DNS Security Extensions'
    wait_for(lambda: subprocess.run(['timeout', '2', 'xclip', '-selection', 'clipboard', '-o'],
                                    capture_output=True, text=True, check=False).stdout == copied,
             'the copied entry')
    for wrong in ('-1', '99999999999999999999', 'X' * 100000):
        desktop.search(RUNNER, 'Run', '(ss)', wrong, 'copy')
        desktop.search(RUNNER, 'Run', '(ss)', wrong, 'no such action')
    desktop.search(SHELL, 'ActivateResult', '(sasu)', 'XML\tGone', [], 1)
    await_shown('XML', 'XML: Extensible')
    expect(desktop.process_of(ID), process, 'the process of the window')
    os.kill(process, signal.SIGTERM)
    wait_for(lambda: not desktop.runs(ID), 'the window to end')


def main():
    programs, share = (os.path.realpath(folder) for folder in sys.argv[1:])
    with tempfile.TemporaryDirectory() as folder:
        desktop = Desktop(programs, share, folder)
        try:
            desktop.write_database(ENTRIES)
            for check in (check_shell_search, check_krunner, check_changed_data, check_idle_end,
                          check_call_at_the_end, check_copying_in_kde, check_choosing):
                check(desktop)
        finally:
            desktop.daemon.terminate()
            desktop.daemon.wait()
            if failures or sys.exc_info()[0]:
                with open(desktop.errors, encoding='utf-8', errors='replace') as file:
                    print(file.read())
    print(f'{failures} failures')
    sys.exit(1 if failures else 0)


main()
