"""A desktop of its own for a test, a measurement or a picture: an X server without a screen, a window
manager, and a player's hands on it.

Everything that is read comes from the X server, everything that is done goes through it as key and
mouse events; nothing looks into the program.
"""

import ctypes
import os
import select
import shutil
import struct
import subprocess
import tempfile
import time
import zlib
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p
from dataclasses import dataclass
from pathlib import Path

PATIENCE = 60  # seconds for anything that is sure to come, also on a busy machine
GLANCE = 0.01  # seconds between two looks

_READY = "ZARVO_DESKTOP_READY"
_VIEWABLE = 2
_ALL_PLANES = c_ulong(-1).value
_Z_PIXMAP = 2


class Overdue(AssertionError):
    """Something that had to come didn't."""


def wait_until(condition, what, patience=PATIENCE):
    """What `condition` gives as soon as it isn't empty. `what` may be a function that tells it."""
    deadline = time.monotonic() + patience
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > deadline:
            raise Overdue(f"waited {patience} s for {what() if callable(what) else what}")
        time.sleep(GLANCE)


@dataclass(frozen=True)
class Place:
    """Pixels of the screen; for a window, of its inside."""
    x: int
    y: int
    width: int
    height: int


@dataclass(frozen=True)
class Window:
    id: int
    title: str
    kind: str  # "normal", "dialog", or for what no manager touches "tip" and "popup"
    place: Place


class _Attributes(ctypes.Structure):
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int),
                ("border_width", c_int), ("depth", c_int), ("visual", c_void_p), ("root", c_ulong),
                ("class_", c_int), ("bit_gravity", c_int), ("win_gravity", c_int),
                ("backing_store", c_int), ("backing_planes", c_ulong), ("backing_pixel", c_ulong),
                ("save_under", c_int), ("colormap", c_ulong), ("map_installed", c_int),
                ("map_state", c_int), ("all_event_masks", c_long), ("your_event_mask", c_long),
                ("do_not_propagate_mask", c_long), ("override_redirect", c_int),
                ("screen", c_void_p)]


class _Image(ctypes.Structure):
    _fields_ = [("width", c_int), ("height", c_int), ("xoffset", c_int), ("format", c_int),
                ("data", c_void_p), ("byte_order", c_int), ("bitmap_unit", c_int),
                ("bitmap_bit_order", c_int), ("bitmap_pad", c_int), ("depth", c_int),
                ("bytes_per_line", c_int), ("bits_per_pixel", c_int)]


_Handler = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)
# A window may go while it is looked at; that is no reason to end.
_unmoved = _Handler(lambda display, error: 0)


def _load_x():
    x = ctypes.CDLL("libX11.so.6")
    for name, result, arguments in (
            ("XOpenDisplay", c_void_p, [c_char_p]),
            ("XCloseDisplay", c_int, [c_void_p]),
            ("XDefaultRootWindow", c_ulong, [c_void_p]),
            ("XInternAtom", c_ulong, [c_void_p, c_char_p, c_int]),
            ("XGetWindowProperty", c_int,
             [c_void_p, c_ulong, c_ulong, c_long, c_long, c_int, c_ulong, POINTER(c_ulong),
              POINTER(c_int), POINTER(c_ulong), POINTER(c_ulong), POINTER(c_void_p)]),
            ("XGetWindowAttributes", c_int, [c_void_p, c_ulong, POINTER(_Attributes)]),
            ("XTranslateCoordinates", c_int,
             [c_void_p, c_ulong, c_ulong, c_int, c_int, POINTER(c_int), POINTER(c_int),
              POINTER(c_ulong)]),
            ("XQueryTree", c_int,
             [c_void_p, c_ulong, POINTER(c_ulong), POINTER(c_ulong), POINTER(c_void_p),
              POINTER(c_uint)]),
            ("XGetInputFocus", c_int, [c_void_p, POINTER(c_ulong), POINTER(c_int)]),
            ("XGetImage", POINTER(_Image),
             [c_void_p, c_ulong, c_int, c_int, c_uint, c_uint, c_ulong, c_int]),
            ("XDestroyImage", c_int, [POINTER(_Image)]),
            ("XFree", c_int, [c_void_p]),
            ("XSetErrorHandler", c_void_p, [_Handler])):
        function = getattr(x, name)
        function.restype, function.argtypes = result, arguments
    x.XSetErrorHandler(_unmoved)
    return x


class Screen:
    """Reads what stands on the screen of an X server."""

    def __init__(self, display):
        self._x = _load_x()
        self._display = self._x.XOpenDisplay(display.encode())
        if not self._display:
            raise OSError(f"the X server {display} can't be reached")
        self.root = self._x.XDefaultRootWindow(self._display)

    def close(self):
        self._x.XCloseDisplay(self._display)

    def windows(self):
        """What the window manager looks after, and the popups."""
        managed = (self._window(window) for window in self.longs(self.root, "_NET_CLIENT_LIST"))
        popups = (self._window(window, popup=True) for window in self._children(self.root))
        return [window for window in (*managed, *popups) if window is not None]

    def place(self, window):
        """Where the window of this number is, or None if it isn't on the screen."""
        attributes = self._attributes(window)
        return self._place(window, attributes) if attributes else None

    def focus(self):
        """The number of the window that gets the keys."""
        window, revert = c_ulong(), c_int()
        self._x.XGetInputFocus(self._display, byref(window), byref(revert))
        return window.value

    def longs(self, window, name):
        """The numbers of a property; none if it isn't there."""
        data, count, size = self._property(window, name)
        return list(struct.unpack(f"{count}L", data)) if size == 32 else []

    def text(self, window, name):
        data, _, size = self._property(window, name)
        return data.decode(errors="replace") if size == 8 else ""

    def pixels(self, place=None, window=None):
        """The pixels as rows of blue, green, red and a byte more; of the whole screen unless told.
        None if the place isn't on the screen."""
        target = self.root if window is None else window
        if place is None and (whole := self.place(target)):
            place = Place(0, 0, whole.width, whole.height)
        image = place and self._x.XGetImage(self._display, target, place.x, place.y, place.width,
                                            place.height, _ALL_PLANES, _Z_PIXMAP)
        if not image:
            return None
        size = image.contents.bytes_per_line * image.contents.height
        pixels = ctypes.string_at(image.contents.data, size)
        self._x.XDestroyImage(image)
        return pixels

    def _property(self, window, name):
        atom = self._x.XInternAtom(self._display, name.encode(), False)
        kind, size, count, left, data = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        failed = self._x.XGetWindowProperty(
            self._display, window, atom, 0, 4096, False, 0, byref(kind), byref(size), byref(count),
            byref(left), byref(data))
        if failed or not data.value:
            return b"", 0, 0
        width = {8: 1, 16: 2, 32: ctypes.sizeof(c_ulong)}.get(size.value, 0)
        found = ctypes.string_at(data.value, count.value * width)
        self._x.XFree(data)
        return found, count.value, size.value

    def _attributes(self, window):
        attributes = _Attributes()
        found = self._x.XGetWindowAttributes(self._display, window, byref(attributes))
        return attributes if found and attributes.map_state == _VIEWABLE else None

    def _place(self, window, attributes):
        x, y, child = c_int(), c_int(), c_ulong()
        self._x.XTranslateCoordinates(self._display, window, self.root, 0, 0, byref(x), byref(y),
                                      byref(child))
        return Place(x.value, y.value, attributes.width, attributes.height)

    def _children(self, window):
        root, parent, children, count = c_ulong(), c_ulong(), c_void_p(), c_uint()
        if not self._x.XQueryTree(self._display, window, byref(root), byref(parent),
                                  byref(children), byref(count)) or not children.value:
            return []
        found = struct.unpack(f"{count.value}L",
                              ctypes.string_at(children.value, count.value * 8))
        self._x.XFree(children)
        return list(found)

    def _window(self, window, popup=False):
        attributes = self._attributes(window)
        if attributes is None or popup and not attributes.override_redirect:
            return None
        kinds = self.longs(window, "_NET_WM_WINDOW_TYPE")
        if popup and not kinds:
            return None  # the window manager's own
        dialog, tip = (self._x.XInternAtom(self._display, b"_NET_WM_WINDOW_TYPE_" + name, False)
                       for name in (b"DIALOG", b"TOOLTIP"))
        kind = ("tip" if tip in kinds else "popup" if popup else "dialog" if dialog in kinds
                else "normal")
        return Window(window, self.text(window, "_NET_WM_NAME"), kind,
                      self._place(window, attributes))


def png(pixels, width, height):
    """A PNG file of what Screen.pixels gives."""
    def chunk(kind, data):
        checksum = zlib.crc32(kind + data)
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)

    rgb = bytearray(width * height * 3)
    rgb[0::3], rgb[1::3], rgb[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
    stride = width * 3
    rows = b"".join(b"\0" + rgb[row * stride:(row + 1) * stride] for row in range(height))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows, 6)) + chunk(b"IEND", b""))


class Desktop:
    """An X server with a window manager, in a folder of its own; to be used in a `with`."""

    def __init__(self, size="2560x1600"):
        self.size = size
        self._programs = []

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zarvo-desktop-"))
        try:
            self._start()
        except BaseException:
            self._end()
            raise
        return self

    def __exit__(self, *failure):
        self._end()

    def _start(self):
        self.display = self._start_server()
        self.environment = {
            name: value for name, value in os.environ.items()
            if name not in ("WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_SCALE_FACTOR")}
        self.environment |= {"DISPLAY": self.display, "HOME": str(self.folder),
                             "XDG_RUNTIME_DIR": str(self.folder), "LC_ALL": "C.UTF-8"}
        self.screen = Screen(self.display)
        # It announces itself before it listens, and a window that comes in between is lost.
        self._run(["openbox", "--sm-disable", "--startup", f"xprop -root -f {_READY} 32c -set {_READY} 1"])
        wait_until(lambda: self.screen.longs(self.screen.root, _READY), "the window manager")

    def _start_server(self):
        here, there = os.pipe()
        self._programs.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(there), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp"],
            pass_fds=[there], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(there)
        number = b""
        with open(here, "rb", buffering=0) as told:
            while not number.endswith(b"\n"):
                ready, _, _ = select.select([told], [], [], PATIENCE)
                more = told.read(16) if ready else b""
                if not more:
                    raise Overdue("the X server didn't come up")
                number += more
        return ":" + number.decode().strip()

    def _run(self, command):
        self._programs.append(subprocess.Popen(command, env=self.environment,
                                               stdout=subprocess.DEVNULL,
                                               stderr=subprocess.DEVNULL))

    def _end(self):
        if hasattr(self, "screen"):
            self.screen.close()
        for program in reversed(self._programs):
            program.terminate()
            program.wait(PATIENCE)
        shutil.rmtree(self.folder, ignore_errors=True)

    def window(self, title, kind="normal"):
        """The window of that title and kind, now; None if there is none."""
        found = [window for window in self.screen.windows()
                 if window.title == title and window.kind == kind]
        return found[0] if found else None

    def wait_for(self, title, kind="normal"):
        return wait_until(lambda: self.window(title, kind), lambda: (
            f"the {kind} window {title!r}; there are {self.screen.windows()}"))

    def wait_for_end(self, window):
        wait_until(lambda: self.screen.place(window.id) is None, f"the end of {window.title!r}")

    def wait_for_focus(self, window):
        wait_until(lambda: self.screen.focus() == window.id, f"{window.title!r} to get the keys")

    def hands(self, *words):
        """Moves the hands of the player, in the words of xdotool."""
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True,
                       timeout=PATIENCE, stdout=subprocess.DEVNULL)

    def keys(self, *keys):
        self.hands("key", *keys)

    def write(self, text):
        self.hands("type", "--delay", 0, text)

    def picture(self, file, place=None):
        place = place or self.screen.place(self.screen.root)
        pixels = self.screen.pixels(place)
        Path(file).write_bytes(png(pixels, place.width, place.height))
