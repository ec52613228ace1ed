#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""hear.py FOLDER STEPS [LOG]: uses the program in FOLDER by keyboard and hears what Orca says. LOG
gets everything that Orca writes about that.

STEPS is a file of actions, each followed by what must be heard (tests/speech/steps.txt). Prints
everything that is said. Needs a display and a session bus of its own, with NO_AT_BRIDGE=0."""
import os
import pty
import re
import subprocess
import sys
import time
import tty

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'soak'))
from x11 import Screen  # noqa: E402 (the path comes first)

PATIENCE_S = 20    # for a window, or for Orca to begin
SPEECH_S = 6       # for what must be heard
SILENCE_S = 0.8    # after which Orca has said everything
# A text may have lines; all but the first are indented. Settings of the voice may follow it.
SAID = re.compile(rb"SPEECH OUTPUT: '(.*?) ?' ?(?:\{[^\n]*)?\n(?! {18})", re.DOTALL)
ORCA = '/usr/bin/orca'


class Orca:
    """Orca without sound. What it says is in its log, which is a terminal here: Orca keeps lines back
    that go into a file."""

    def __init__(self, home, copy):
        self.copy = open(copy, 'wb')
        settings = os.path.join(home, '.config', 'speech-dispatcher')
        os.makedirs(settings, exist_ok=True)
        with open(os.path.join(settings, 'speechd.conf'), 'w', encoding='utf-8') as file:
            file.write('AddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\n')
        self.log, log_of_orca = pty.openpty()
        tty.setraw(log_of_orca)
        os.set_blocking(self.log, False)
        self.rest = b''
        self.last_said = time.monotonic()
        # Python's own programs find Debian's modules only with Debian's Python.
        environment = {**os.environ, 'PATH': '/usr/bin:/bin'}
        with open(os.path.join(home, 'orca.messages'), 'w', encoding='utf-8') as messages:
            self.process = subprocess.Popen([ORCA, '--debug-file', os.ttyname(log_of_orca), '--replace',
                                             '--disable', 'braille'],
                                            env=environment, stdout=messages, stderr=messages)

    def news(self):
        """What has been said since the last call."""
        try:
            while part := os.read(self.log, 1 << 16):
                self.rest += part
                self.copy.write(part)
        except BlockingIOError:
            pass
        said = []
        end = 0
        for match in SAID.finditer(self.rest):
            said.append(' '.join(match.group(1).decode(errors='replace').split()))
            end = match.end()
        # A text may have lines, so the last one may not be whole yet.
        unfinished = self.rest.find(b'SPEECH OUTPUT', end)
        self.rest = self.rest[unfinished if unfinished >= 0 else max(end, self.rest.rfind(b'\n')):]
        if said:
            self.last_said = time.monotonic()
        return said

    def listen(self, wanted):
        """What is said until all of `wanted` is heard and Orca falls silent."""
        said = []
        end = time.monotonic() + SPEECH_S
        self.last_said = time.monotonic()
        while True:
            said += self.news()
            now = time.monotonic()
            missing = [text for text in wanted if not is_heard(text, said)]
            if now - self.last_said > SILENCE_S and (not missing or now > end):
                return said, missing
            time.sleep(0.05)


def is_heard(text, said):
    return text in ' / '.join(said)


def wait_for(found, what):
    end = time.monotonic() + PATIENCE_S
    while time.monotonic() < end:
        result = found()
        if result:
            return result
        time.sleep(0.05)
    sys.exit(f'waited in vain for {what}')


class Step:
    def __init__(self, action):
        self.action = action
        self.wanted = []
        self.unwanted = []


def read_steps(name):
    """A line such as "key Tab" is an action. "+ text" must be heard after it, "- text" must not."""
    steps = []
    with open(name, encoding='utf-8') as file:
        for line in map(str.rstrip, file):
            if line.startswith('+ '):
                steps[-1].wanted.append(line[2:])
            elif line.startswith('- '):
                steps[-1].unwanted.append(line[2:])
            elif line and not line.startswith('#'):
                steps.append(Step(line))
    return steps


class Session:
    def __init__(self, folder, orca):
        self.folder = folder
        self.orca = orca
        self.screen = Screen()
        self.programs = []

    def in_front(self, title):
        return self.screen.title(self.screen.active()).startswith(title)

    def act(self, action):
        kind, _, value = action.partition(' ')
        if kind == 'start':
            self.programs.append(subprocess.Popen([os.path.join(self.folder, value)]))
        elif kind == 'key':
            for key in value.split():
                self.screen.key(key)
                time.sleep(0.05)  # as fast as somebody types
        elif kind == 'type':
            for letter in value:
                self.screen.type(letter)
                time.sleep(0.05)
        elif kind == 'ctrl-click':  # in the window in front
            area = self.screen.area(self.screen.active())
            x, y = map(int, value.split())
            self.screen.hold('ctrl', True)
            self.screen.move(area.x + x, area.y + y)
            self.screen.click()
            self.screen.hold('ctrl', False)
        elif kind == 'window':
            wait_for(lambda: self.in_front(value), f'the window "{value}"')
        else:
            sys.exit(f'nobody knows how to do "{action}"')

    def end(self):
        for program in self.programs:
            program.terminate()
            program.wait(PATIENCE_S)


def main():
    folder, steps_name, *log = sys.argv[1:]
    steps = read_steps(steps_name)
    orca = Orca(os.environ['HOME'], *log or [os.devnull])
    wait_for(orca.news, 'Orca to say anything')
    session = Session(folder, orca)
    failures = 0
    for step in steps:
        print(f'> {step.action}', flush=True)
        session.act(step.action)
        said, missing = orca.listen(step.wanted)
        for text in said:
            print(f'    {text}')
        for text in missing:
            print(f'  FAILED: nobody heard "{text}"')
        heard = [text for text in step.unwanted if is_heard(text, said)]
        for text in heard:
            print(f'  FAILED: said "{text}"')
        failures += len(missing) + len(heard)
    session.end()
    orca.process.terminate()
    expectations = sum(len(step.wanted) + len(step.unwanted) for step in steps)
    print(f'{len(steps)} steps, {expectations} expectations, {failures} failures')
    sys.exit(failures > 0)


main()
