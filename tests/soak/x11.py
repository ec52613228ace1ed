# SPDX-License-Identifier: MIT
"""The display as a user has it: keys, mouse, windows and the clipboard. Only Xlib and its extensions
are used, so the same calls drive the Linux program and the Windows program under Wine."""

import collections
import ctypes
import os
import socket
import struct
import subprocess
import time

CLIENT_MESSAGE = 33
SUBSTRUCTURE_NOTIFY = 1 << 19
SUBSTRUCTURE_REDIRECT = 1 << 20
FROM_PAGER = 2  # the window manager obeys a pager without asking who has the focus
MODIFIERS = {"shift": "Shift_L", "ctrl": "Control_L", "alt": "Alt_L"}
KEYSYMS = {" ": "space", "*": "asterisk", "?": "question", "#": "numbersign", "[": "bracketleft",
           "]": "bracketright", "!": "exclam", "-": "minus", ".": "period", "/": "slash",
           "&": "ampersand", "+": "plus", ",": "comma", "'": "apostrophe"}
SHIFTED = set("*?#!&+")

Area = collections.namedtuple("Area", "x y width height")


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("client", ClientMessage), ("pad", ctypes.c_long * 24)]


class ClientMask(ctypes.Structure):
    _fields_ = [("client", ctypes.c_ulong), ("mask", ctypes.c_uint)]


class ClientId(ctypes.Structure):
    _fields_ = [("owner", ClientMask), ("length", ctypes.c_long), ("value", ctypes.c_void_p)]


class WindowAttributes(ctypes.Structure):
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int),
                ("height", ctypes.c_int), ("border_width", ctypes.c_int), ("depth", ctypes.c_int),
                ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong),
                ("appearance", ctypes.c_int * 4), ("backing", ctypes.c_ulong * 2),
                ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong),
                ("map_installed", ctypes.c_int), ("map_state", ctypes.c_int),
                ("event_masks", ctypes.c_long * 3), ("override_redirect", ctypes.c_int),
                ("screen", ctypes.c_void_p)]


class ResourceCount(ctypes.Structure):
    _fields_ = [("type", ctypes.c_ulong), ("count", ctypes.c_uint)]


def library(name, number, **results):
    loaded = ctypes.CDLL(f"lib{name}.so.{number}")
    for function, result in results.items():
        getattr(loaded, function).restype = result
    return loaded


XLIB = library("X11", 6, XOpenDisplay=ctypes.c_void_p, XDefaultRootWindow=ctypes.c_ulong,
               XInternAtom=ctypes.c_ulong, XStringToKeysym=ctypes.c_ulong,
               XGetAtomName=ctypes.c_char_p, XKeysymToKeycode=ctypes.c_ubyte)
XTEST = library("Xtst", 6)
XRES = library("XRes", 1)

# Windows vanish at any time, and asking about one that is gone is no error here.
IGNORE_ERROR = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)


class Screen:
    def __init__(self):
        XLIB.XSetErrorHandler(IGNORE_ERROR)
        pointer = XLIB.XOpenDisplay(None)
        if not pointer:
            raise SystemExit("no display")
        self.display = ctypes.c_void_p(pointer)
        self.root = ctypes.c_ulong(XLIB.XDefaultRootWindow(self.display))
        XLIB.XSelectInput(self.display, self.root, ctypes.c_long(SUBSTRUCTURE_NOTIFY))
        self.atoms = {}
        self.pings = 0
        _, _, self.width, self.height = self.area(self.root.value)

    def atom(self, name):
        if name not in self.atoms:
            self.atoms[name] = XLIB.XInternAtom(self.display, name.encode(), 0)
        return self.atoms[name]

    def sync(self):
        XLIB.XSync(self.display, 0)

    # Keys and mouse.

    def code(self, keysym):
        return XLIB.XKeysymToKeycode(self.display,
                                     ctypes.c_ulong(XLIB.XStringToKeysym(keysym.encode())))

    def key(self, name):
        """Presses and releases a key such as "a", "Return" or "ctrl+shift+g"."""
        *held, last = name.split("+")
        codes = [self.code(MODIFIERS[modifier]) for modifier in held] + [self.code(last)]
        for down, order in (1, codes), (0, codes[::-1]):
            for code in order:
                XTEST.XTestFakeKeyEvent(self.display, code, down, ctypes.c_ulong(0))
        self.sync()

    def hold(self, name, down):
        XTEST.XTestFakeKeyEvent(self.display, self.code(MODIFIERS[name]), int(down),
                                ctypes.c_ulong(0))
        self.sync()

    def type(self, text):
        for letter in text:
            shift = "shift+" if letter in SHIFTED or letter.isupper() else ""
            self.key(shift + KEYSYMS.get(letter, letter.lower()))

    def move(self, x, y):
        XTEST.XTestFakeMotionEvent(self.display, -1, int(x), int(y), ctypes.c_ulong(0))
        self.sync()

    def is_over_desktop(self):
        ids = [ctypes.c_ulong(), ctypes.c_ulong()]
        rest = [ctypes.c_int() for _ in range(5)]
        XLIB.XQueryPointer(self.display, self.root, *map(ctypes.byref, ids + rest))
        return ids[1].value == 0

    def button(self, number, down):
        # The desktop's own menu would start other programs.
        if down and self.is_over_desktop():
            return
        XTEST.XTestFakeButtonEvent(self.display, number, int(down), ctypes.c_ulong(0))
        self.sync()

    def click(self, number=1, times=1):
        for _ in range(times):
            self.button(number, True)
            self.button(number, False)

    # Windows.

    def property(self, window, name):
        """The bytes of a property, or its numbers if they have 32 bits; None if it is not there."""
        kind, bits = ctypes.c_ulong(), ctypes.c_int()
        count, rest = ctypes.c_ulong(), ctypes.c_ulong()
        data = ctypes.c_void_p()
        if XLIB.XGetWindowProperty(self.display, ctypes.c_ulong(window),
                                   ctypes.c_ulong(self.atom(name)), ctypes.c_long(0),
                                   ctypes.c_long(4096), 0, ctypes.c_ulong(0), ctypes.byref(kind),
                                   ctypes.byref(bits), ctypes.byref(count), ctypes.byref(rest),
                                   ctypes.byref(data)) != 0 or not data.value:
            return None
        if bits.value == 32:
            value = list(ctypes.cast(data, ctypes.POINTER(ctypes.c_ulong))[:count.value])
        else:
            value = ctypes.string_at(data, count.value)
        XLIB.XFree(data)
        return value

    def windows(self):
        """The windows that the window manager has, as numbers, in the order of their creation."""
        return self.property(self.root.value, "_NET_CLIENT_LIST") or []

    def menus(self):
        """The open menus and other windows that the window manager has nothing to do with."""
        ids = ctypes.POINTER(ctypes.c_ulong)()
        root, parent, count = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_uint()
        XLIB.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent),
                        ctypes.byref(ids), ctypes.byref(count))
        children = ids[:count.value]
        if count.value:
            XLIB.XFree(ids)
        return [child for child in children if self.is_menu(child)]

    def is_menu(self, window):
        viewable = 2
        attributes = WindowAttributes()
        return (XLIB.XGetWindowAttributes(self.display, ctypes.c_ulong(window),
                                          ctypes.byref(attributes)) != 0 and
                attributes.override_redirect != 0 and attributes.map_state == viewable)

    def active(self):
        return (self.property(self.root.value, "_NET_ACTIVE_WINDOW") or [0])[0]

    def title(self, window):
        return (self.property(window, "_NET_WM_NAME") or b"").decode("utf-8", "replace")

    def program(self, window):
        """The name of the window's program, in lower case."""
        names = (self.property(window, "WM_CLASS") or b"").split(b"\0")
        return names[0].decode("utf-8", "replace").lower()

    def process(self, window):
        return (self.property(window, "_NET_WM_PID") or [0])[0]

    def area(self, window):
        """Where the window is on the screen; None if it is gone."""
        root, child = ctypes.c_ulong(), ctypes.c_ulong()
        x, y = ctypes.c_int(), ctypes.c_int()
        sizes = [ctypes.c_uint() for _ in range(4)]
        if not XLIB.XGetGeometry(self.display, ctypes.c_ulong(window), ctypes.byref(root),
                                 ctypes.byref(x), ctypes.byref(y), *map(ctypes.byref, sizes)):
            return None
        XLIB.XTranslateCoordinates(self.display, ctypes.c_ulong(window), self.root, 0, 0,
                                   ctypes.byref(x), ctypes.byref(y), ctypes.byref(child))
        return Area(x.value, y.value, sizes[0].value, sizes[1].value)

    def exists(self, window):
        return self.area(window) is not None

    def send(self, window, message, data, to_root=True):
        event = Event()
        event.client.type = CLIENT_MESSAGE
        event.client.window = window
        event.client.message_type = self.atom(message)
        event.client.format = 32
        event.client.data[:len(data)] = data
        mask = SUBSTRUCTURE_NOTIFY | SUBSTRUCTURE_REDIRECT if to_root else 0
        XLIB.XSendEvent(self.display, self.root if to_root else ctypes.c_ulong(window), 0,
                        ctypes.c_long(mask), ctypes.byref(event))
        self.sync()

    def activate(self, window):
        self.send(window, "_NET_ACTIVE_WINDOW", [FROM_PAGER, 0])

    def use_one_desktop(self):
        """Otherwise the wheel beside all windows, among others, would lead to the next desktop."""
        self.send(self.root.value, "_NET_NUMBER_OF_DESKTOPS", [1])

    def close(self, window):
        self.send(window, "_NET_CLOSE_WINDOW", [0, FROM_PAGER])

    def minimize(self, window):
        XLIB.XIconifyWindow(self.display, ctypes.c_ulong(window), 0)
        self.sync()

    def change_state(self, window, state):
        toggle = 2
        self.send(window, "_NET_WM_STATE", [toggle, self.atom(state), 0, FROM_PAGER])

    def server_process(self):
        """The number of the display's own process; 0 if it is on another machine."""
        connection = os.dup(XLIB.XConnectionNumber(self.display))
        with socket.socket(fileno=connection) as peer:
            credentials = peer.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, 12)
        return struct.unpack("iii", credentials)[0]

    def answer_seconds(self, window, longest, is_over):
        """Sends what a window manager sends in order to see whether a program still handles its
        events, and returns how long the answer takes. The events before it are handled first.
        None if the window is gone or `is_over` says so; infinity if no answer comes."""
        self.pings += 1
        start = time.monotonic()
        self.send(window, "WM_PROTOCOLS", [self.atom("_NET_WM_PING"), self.pings, window],
                  to_root=False)
        while time.monotonic() - start < longest:
            if self.has_answer():
                return time.monotonic() - start
            if is_over() or not self.exists(window):
                return None
            time.sleep(0.002)
        return float("inf")

    def has_answer(self):
        event = Event()
        while XLIB.XPending(self.display):
            XLIB.XNextEvent(self.display, ctypes.byref(event))
            if (event.type == CLIENT_MESSAGE and
                    event.client.message_type == self.atom("WM_PROTOCOLS") and
                    event.client.data[1] == self.pings):
                return True
        return False

    # What the display holds for a program.

    def resources(self, process):
        """How many windows, pictures and so on the display keeps for a process."""
        counts = collections.Counter()
        asked = ClientMask(0, 1 << 1)  # all clients, by process
        number, ids = ctypes.c_long(), ctypes.POINTER(ClientId)()
        XRES.XResQueryClientIds(self.display, ctypes.c_long(1), ctypes.byref(asked),
                                ctypes.byref(number), ctypes.byref(ids))
        for i in range(number.value):
            if XRES.XResGetClientPid(ctypes.byref(ids[i])) == process:
                counts += self.resources_of_client(ids[i].owner.client)
        XRES.XResClientIdsDestroy(number, ids)
        return counts

    def resources_of_client(self, client):
        counts = collections.Counter()
        number, types = ctypes.c_int(), ctypes.POINTER(ResourceCount)()
        if XRES.XResQueryClientResources(self.display, ctypes.c_ulong(client),
                                         ctypes.byref(number), ctypes.byref(types)):
            for entry in types[:number.value]:
                name = XLIB.XGetAtomName(self.display, ctypes.c_ulong(entry.type))
                counts[name.decode()] += entry.count
            XLIB.XFree(types)
        return counts


def copy(text):
    """Puts a text on the clipboard. xclip stays in the background until another program copies."""
    subprocess.run(["xclip", "-selection", "clipboard", "-target", "UTF8_STRING"],
                   input=text.encode("utf-8", "surrogatepass"), check=False,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
