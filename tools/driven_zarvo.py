"""Zarvo on a private desktop, driven by key and mouse as a player drives it."""

import itertools
import os
import signal
import subprocess
import time
from pathlib import Path

from private_desktop import PATIENCE, Overdue, Place, wait_until

TITLE = "Zarvo v0.1"
TWIPS_PER_PIXEL = 15
ROW = 225  # twips of an entry in a list
DOUBLE_CLICK = 0.5  # seconds; two clicks at one place are two clicks if they are further apart

PANEL_TITLES = {"Mame": "M.A.M.E.", "Callus": "CALLUS", "Raine": "R.A.I.N.E.",
                "System16": "SYSTEM16", "M72": "M-72"}

# Where the hand goes, in twips from the top left corner of a window's inside.
SELECTOR = {"Mame": (600, 1520), "Callus": (600, 1700), "Raine": (600, 1880),
            "System16": (600, 2060), "M72": (600, 2240)}
MAIN = {"Exit": (450, 455), "Lays": (3150, 455), "About": (3130, 695)}
PANEL = {"logo": (600, 300), "L": (1545, 235), "M": (1770, 235), "S": (1995, 235),
         "X": (2220, 235), "Clear": (1695, 615), "arrow": (2175, 615),
         "snapshot": (2780, 280), "settings": (3560, 280), "details": (4340, 280),
         "help": (5120, 280), "configuration": (5900, 280),
         "favourites": (1200, 3900), "games": (1500, 6800)}
FAVOURITES = (300, 860)  # the first entry
GAMES = {"Mame": (300, 5120), "Callus": (300, 5120), "Raine": (300, 5120), "System16": (300, 4880),
         "M72": FAVOURITES}
CONFIGURATION = {"executable": (5780, 1440), "roms": (5780, 2040), "snapshots": (5780, 2640),
                 "GIF": (2800, 3330), "JPG": (2800, 3630), "BMP": (2800, 3930),
                 "Scan now!": (5270, 3945)}
FILTERS = {"state": (800, 4790), "genre": (2300, 4790), "manufacturer": (3800, 4790),
           "year": (5100, 4790)}
SETTINGS = {"folder": (4970, 875), "default folder": (5450, 875), "all": (5955, 875)}
MAME_OPTIONS = {"screen": (5400, 1185), "frames": (3400, 1185), "sound": (5400, 1950),
                "rate": (5400, 2205), "triple buffer": (2550, 4015), "flip vertical": (3960, 4435),
                "no stereo": (5160, 2965), "record": (5160, 4225), "playback": (5160, 4435)}
LAYOUTS = {"Add": (480, 2030), "Remove": (1520, 2030), "Rename": (2500, 2030),
           "Load": (830, 2440), "Save": (2250, 2440), "autoload": (300, 3135),
           "to load": (1800, 3490), "on top": (300, 4050), "Close": (2450, 4040)}


_FOCUS = bytes((0x5A, 0xC8, 0xFF))  # blue, green and red of the frame round what gets the keys
_SIDE = 8  # pixels, shorter than any side of that frame


def entry(first, row):
    """The place of an entry of a list whose first entry is there."""
    return first[0], first[1] + row * ROW


class DrivenZarvo:
    """The program, started in the folder Zarvo of a drive; its output goes to `log`."""

    def __init__(self, desktop, program, drive, scale=1, wrapper=()):
        self.desktop = desktop
        self.program = Path(program).resolve()
        self.drive = Path(drive)
        self.scale = scale
        self.wrapper = list(wrapper)
        self.environment = {}  # beyond that of the desktop
        self.process = None
        self.log = desktop.folder / "zarvo.log"
        self.clicked = None  # the point of the click made last, and when

    def start(self):
        environment = self.desktop.environment | {
            "QT_QPA_PLATFORM": "xcb", "QT_SCALE_FACTOR": str(self.scale),
            "SDL_VIDEODRIVER": "dummy", "SDL_AUDIODRIVER": "dummy"} | self.environment
        with open(self.log, "ab") as log:
            self.process = subprocess.Popen([*self.wrapper, self.program], env=environment,
                                            cwd=self.drive / "Zarvo", stdout=log, stderr=log)

    def open_main(self):
        """Starts the program and gives its main window."""
        self.start()
        main = self.desktop.wait_for(TITLE)
        self.desktop.wait_for_focus(main)
        return main

    def open_panel(self, main, emulator):
        self.click(main, SELECTOR[emulator])
        return self.panel(emulator)

    def panel(self, emulator):
        panel = self.desktop.wait_for(f"{PANEL_TITLES[emulator]} - {TITLE}")
        self.desktop.wait_for_focus(panel)
        return panel

    def box(self):
        """The message box on the screen."""
        box = self.desktop.wait_for(TITLE, "dialog")
        self.desktop.wait_for_focus(box)
        return box

    def answer(self, key):
        """Answers the message box by a key."""
        box = self.box()
        self.desktop.keys(key)
        self.desktop.wait_for_end(box)

    def point(self, window, spot):
        """The pixel of the screen that a spot in twips is, as it stands now."""
        place = self.desktop.screen.place(window.id) or window.place
        return tuple(base + round(twips / TWIPS_PER_PIXEL * self.scale)
                     for base, twips in zip((place.x, place.y), spot))

    def click(self, window, spot, times=1, button=1):
        """Clicks so often at once; what was clicked before at that point counts for itself."""
        point = self.point(window, spot)
        if self.clicked and self.clicked[0] == point:
            time.sleep(max(0, self.clicked[1] + DOUBLE_CLICK - time.monotonic()))
        press = ["click", "--repeat", times, "--delay", 40, button]
        self.desktop.hands("mousemove", *point, *press)
        self.clicked = point, time.monotonic()

    def hover(self, window, spot):
        self.desktop.hands("mousemove", *self.point(window, spot))

    def focus_frame(self, window):
        """The place in the window's pixels of the frame round what gets the keys; None if there is
        none."""
        place = self.desktop.screen.place(window.id)
        pixels = self.desktop.screen.pixels(window=window.id)
        if not place or not pixels:
            return None
        pixel = next((pixels[at:at + 4] for at in self._all(pixels, _FOCUS) if at % 4 == 0), None)
        start = pixels.find(pixel * _SIDE) if pixel else -1
        if start < 0:
            return None
        y, x = divmod(start // 4, place.width)
        width = height = 1
        while pixels[start + 4 * width:start + 4 * width + 4] == pixel:
            width += 1
        stride = 4 * place.width
        while pixels[start + stride * height:start + stride * height + 4] == pixel:
            height += 1
        return Place(x, y, width, height)

    @staticmethod
    def _all(pixels, colour):
        at = pixels.find(colour)
        while at >= 0:
            yield at
            at = pixels.find(colour, at + 1)

    def tab_to(self, window, spot):
        """Presses Tab until the frame of the focus stands round the spot."""
        x, y = (round(twips / TWIPS_PER_PIXEL * self.scale) for twips in spot)
        def patiently(condition, what):
            try:
                wait_until(condition, what, 1.5)
            except Overdue:
                pass  # something without a frame has the focus

        patiently(lambda: self.focus_frame(window), "the focus to be seen in a new window")
        for _ in range(80):
            before = self.focus_frame(window)
            if before and (before.x <= x < before.x + before.width
                           and before.y <= y < before.y + before.height):
                return
            self.desktop.keys("Tab")
            patiently(lambda: self.focus_frame(window) != before, "the focus to move")
        raise Overdue(f"Tab never came to {spot} in {window.title!r}")

    def drag(self, window, start, points):
        """Presses at a spot and lets go at the last of the points, which are pixels of the screen."""
        words = ["mousemove", *self.point(window, start), "mousedown", 1]
        for x, y in points:
            words += ["mousemove", x, y]
        self.desktop.hands(*words, "mouseup", 1)

    def carry(self, window, start, across, down):
        """Takes hold of a window at a spot and lets it go so many pixels further."""
        x, y = self.point(window, start)
        place = self.desktop.screen.place
        before = place(window.id)
        goal = before.x + across, before.y + down
        wiggle = itertools.cycle((20, 22))

        def follows():
            step = next(wiggle)
            self.desktop.hands("mousemove", x + step, y + step)
            return place(window.id) != before

        def arrived():
            now = place(window.id)
            return abs(now.x - goal[0]) <= 24 and abs(now.y - goal[1]) <= 24

        self.desktop.hands("mousemove", x, y, "mousedown", 1)
        wait_until(follows, "the window to follow the mouse")
        self.desktop.hands("mousemove", x + across, y + down)
        wait_until(arrived, lambda: f"the window to come from {before} to {goal}; it's at "
                                    f"{place(window.id)}")
        self.desktop.hands("mouseup", 1)

    def choose(self, window, combo, index, count):
        """Opens a list that drops down, of so many entries, and clicks the one of that index."""
        self.click(window, combo)
        popup = wait_until(self.popup, "the list to drop down")
        place = popup.place
        x, y = place.x + place.width // 3, place.y + (2 * index + 1) * place.height // (2 * count)
        self.desktop.hands("mousemove", x, y, "click", 1)
        self.desktop.wait_for_end(popup)

    def popup(self):
        found = [window for window in self.desktop.screen.windows()
                 if window.kind == "popup"]
        return found[0] if found else None

    def children(self):
        """The processes that the program has started and that live."""
        listing = Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children")
        try:
            return [int(word) for word in listing.read_text().split()]
        except OSError:
            return []

    def wait_for_rest(self):
        """Until no emulator runs and the batch file has gone."""
        def rests():
            return not self.children() and not list(self.drive.glob("Emu/*/lancia.bat"))
        wait_until(rests, "the end of the emulator")

    def quit(self, main):
        """Leaves by the main window; gives the program's exit code."""
        self.click(main, MAIN["Exit"])
        self.answer("Return")
        return self.ended()

    def ended(self):
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Overdue("the program didn't end") from None

    def stop(self):
        """Ends the program if it still runs."""
        if self.process is None or self.process.poll() is not None:
            return
        for child in self.children():
            os.kill(child, signal.SIGKILL)
        self.process.terminate()
        self.process.wait(PATIENCE)
