# SPDX-License-Identifier: MIT
"""A keyboard and a mouse for a Wayland compositor that lets programs make them, such as sway.

They speak the protocols virtual-keyboard-unstable-v1 and wlr-virtual-pointer-unstable-v1. Each is
there as long as the Seat, so programs see both before the first event."""
import array
import os
import socket
import struct
import time

KEYMAP = b'''xkb_keymap {
  xkb_keycodes { include "evdev+aliases(qwerty)" };
  xkb_types { include "complete" };
  xkb_compat { include "complete" };
  xkb_symbols { include "pc+us+inet(evdev)" };
};\0'''

# The numbers that Linux gives keys and buttons.
KEYS = {'Escape': 1, 'Tab': 15, 'Return': 28, 'space': 57, 'F1': 59, 'F3': 61, 'F4': 62, 'F5': 63,
        'Up': 103, 'Down': 108, 'Right': 106}
for row, first in (('1234567890', 2), ('qwertyuiop', 16), ('asdfghjkl', 30), ('zxcvbnm', 44)):
    KEYS.update({key: first + i for i, key in enumerate(row)})
MODIFIERS = {'shift': (42, 1), 'ctrl': (29, 4), 'alt': (56, 8)}

LEFT, RIGHT = 0x110, 0x111

DISPLAY = 1  # the first object of each connection


def word(*values):
    return struct.pack(f'{len(values)}I', *values)


def text(value):
    data = value.encode() + b'\0'
    return word(len(data)) + data + bytes(-len(data) % 4)


class Seat:
    def __init__(self):
        path = os.path.join(os.environ['XDG_RUNTIME_DIR'], os.environ['WAYLAND_DISPLAY'])
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(path)
        self.received = b''
        self.last_object = DISPLAY
        self.registry = self.new_object()
        self.send(DISPLAY, 1, word(self.registry))
        self.globals = {}
        self.wait()
        seat = self.bind('wl_seat')
        keyboards = self.bind('zwp_virtual_keyboard_manager_v1')
        pointers = self.bind('zwlr_virtual_pointer_manager_v1')
        self.keyboard = self.new_object()
        self.send(keyboards, 0, word(seat, self.keyboard))
        keymap = os.memfd_create('keymap')
        os.write(keymap, KEYMAP)
        self.send(self.keyboard, 0, word(1, len(KEYMAP)), keymap)
        self.pointer = self.new_object()
        self.send(pointers, 0, word(seat, self.pointer))
        self.wait()

    def new_object(self):
        self.last_object += 1
        return self.last_object

    def send(self, target, request, arguments=b'', file=None):
        message = word(target, (8 + len(arguments)) << 16 | request) + arguments
        attached = [] if file is None else [
            (socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array('i', [file]))]
        self.socket.sendmsg([message], attached)

    def bind(self, interface):
        number = self.globals[interface]
        bound = self.new_object()
        self.send(self.registry, 0, word(number) + text(interface) + word(1, bound))
        return bound

    def wait(self):
        """Waits until the compositor has done everything asked for so far."""
        callback = self.new_object()
        self.send(DISPLAY, 0, word(callback))
        while True:
            while len(self.received) >= 8:
                source, header = struct.unpack('II', self.received[:8])
                size = header >> 16
                if len(self.received) < size:
                    break
                body, self.received = self.received[8:size], self.received[size:]
                if source == callback:
                    return
                self.note(source, header & 0xffff, body)
            data = self.socket.recv(65536)
            if not data:
                raise OSError('the compositor has gone')
            self.received += data

    def note(self, source, event, body):
        if source == DISPLAY and event == 0:
            raise OSError(f'the compositor complains: {body}')
        if source == self.registry and event == 0:
            number, length = struct.unpack('II', body[:8])
            self.globals[body[8:8 + length - 1].decode()] = number

    def press(self, combination):
        """Presses and releases a key, such as "F1" or "ctrl+c"."""
        *modifiers, key = combination.split('+')
        state = sum(MODIFIERS[modifier][1] for modifier in modifiers)
        for modifier in modifiers:
            self.key(MODIFIERS[modifier][0], True)
        self.send(self.keyboard, 2, word(state, 0, 0, 0))
        self.key(KEYS[key], True)
        self.key(KEYS[key], False)
        for modifier in modifiers:
            self.key(MODIFIERS[modifier][0], False)
        self.send(self.keyboard, 2, word(0, 0, 0, 0))
        self.wait()

    def key(self, number, is_down):
        self.send(self.keyboard, 1, word(now(), number, is_down))

    def type(self, letters):
        for letter in letters:
            self.press('space' if letter == ' ' else letter)

    def move(self, x, y):
        """Moves the mouse to a place, in thousandths of the screen."""
        self.send(self.pointer, 1, word(now(), x, y, 1000, 1000))
        self.send(self.pointer, 4)
        self.wait()

    def click(self, button):
        for is_down in (True, False):
            self.send(self.pointer, 2, word(now(), button, is_down))
            self.send(self.pointer, 4)
            self.wait()


def now():
    return int(time.monotonic() * 1000) & 0xffffffff
