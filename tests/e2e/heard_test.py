"""What a screen reader hears of every window: asked over AT-SPI, as a screen reader asks.

Ends with 77, for "skipped", where Python can't speak AT-SPI.
"""

import os
import shutil
import subprocess
import sys
import unittest

SKIPPED = 77
INSIDE = "ZARVO_HEARD_INSIDE"  # set in the session bus of this test's own

if __name__ == "__main__" and INSIDE not in os.environ:
    try:
        import pyatspi  # noqa: F401
        ready = shutil.which("dbus-run-session") is not None
    except ImportError:
        ready = False
    if not ready:
        print("no python3-pyatspi or dbus-run-session: skipped")
        sys.exit(SKIPPED)
    sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv],
                            env=os.environ | {INSIDE: "1"}, check=False).returncode)

from e2e import Scenario, wait_until  # noqa: E402
from driven_zarvo import CONFIGURATION, GAMES, LAYOUTS, MAIN, PANEL, PANEL_TITLES, SELECTOR, TITLE  # noqa: E402

PAGES = {"snapshot": "Snapshot", "settings": "Settings", "details": "Details", "help": "Help",
         "configuration": "Configuration"}


class Heard(Scenario):
    def setUp(self):
        super().setUp()
        launcher = next(path for path in ("/usr/libexec/at-spi-bus-launcher",
                                          "/usr/lib/at-spi2-core/at-spi-bus-launcher")
                        if os.path.exists(path))
        environment = self.desktop.environment | {
            name: os.environ[name] for name in ("DBUS_SESSION_BUS_ADDRESS",)}
        os.environ.update(environment)
        bus = subprocess.Popen([launcher, "--launch-immediately"], env=environment,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(bus.wait)
        self.addCleanup(bus.terminate)
        self.zarvo.environment = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                                  "DBUS_SESSION_BUS_ADDRESS": environment["DBUS_SESSION_BUS_ADDRESS"]}

    def frame(self, title):
        """The window of that title, as a screen reader finds it."""
        import pyatspi

        def look():
            for application in pyatspi.Registry.getDesktop(0):
                if application is None or application.name != "zarvo":
                    continue
                for window in application:
                    if window is not None and window.name == title and self.has(window, "showing"):
                        return window
            return None
        return wait_until(look, f"the window {title!r} to be heard of")

    @staticmethod
    def has(thing, state):
        import pyatspi
        return thing.getState().contains(getattr(pyatspi, "STATE_" + state.upper()))

    def walk(self, thing):
        """Whatever is showing below a thing; the entries of lists are the lists' own."""
        for child in thing:
            if child is None or not self.has(child, "showing"):
                continue
            yield child
            if child.getRoleName() not in ("list", "combo box"):
                yield from self.walk(child)

    def assert_heard(self, title, where):
        heard = {}
        for thing in self.walk(self.frame(title)):
            role, name = thing.getRoleName(), thing.name
            if role == "image":
                self.assertTrue(name, f"{where}: a picture that means nothing is announced")
            if not self.has(thing, "focusable"):
                continue
            self.assertTrue(any(letter.isalpha() for letter in name), f"{where}: {role} {name!r}")
            self.assertNotIn((role, name), heard, f"{where}: two of one name")
            heard[role, name] = thing
        self.assertTrue(heard, where)
        return heard

    def test_every_window(self):
        main = self.zarvo.open_main()
        self.assert_heard(TITLE, "main window")
        for emulator, title in PANEL_TITLES.items():
            panel = self.zarvo.open_panel(main, emulator)
            for spot, page in PAGES.items():
                self.zarvo.click(panel, PANEL[spot])
                where = f"{emulator}, {page}"

                def down():
                    heard = self.assert_heard(f"{title} - {TITLE}", where)
                    return [name for (role, name), thing in heard.items()
                            if role == "push button" and name in PAGES.values()
                            and self.has(thing, "checked")] == [page]
                wait_until(down, f"the page {where} to be told as the one that is open")
            self.zarvo.click(panel, GAMES[emulator])
            self.desktop.keys("ctrl+f")
            self.desktop.write("e")
            self.assert_finds(title, emulator)
            self.desktop.keys("Escape")
            opened = self.assert_heard(TITLE, "main window")
            self.assertTrue(self.has(opened["push button", title], "checked"), emulator)
            self.zarvo.click(panel, PANEL["X"])
            self.desktop.wait_for_end(panel)
            opened = self.assert_heard(TITLE, "main window")
            self.assertFalse(self.has(opened["push button", title], "checked"), emulator)
        self.zarvo.click(main, MAIN["Lays"])
        lays = self.dialog("Layouts Manager")
        self.zarvo.click(lays, LAYOUTS["Add"])
        self.dialog("name of a layout", lays)
        self.desktop.keys("Escape", "Escape")
        self.desktop.wait_for_end(lays)
        self.zarvo.click(main, MAIN["About"])
        about = self.dialog("About window")
        self.desktop.keys("Escape")
        self.desktop.wait_for_end(about)
        panel = self.zarvo.open_panel(main, "Mame")
        self.zarvo.click(panel, PANEL["configuration"])
        for picker in ("executable", "roms"):
            self.zarvo.click(panel, CONFIGURATION[picker])
            window = self.dialog(f"picker, {picker}")
            self.desktop.keys("Escape")
            self.desktop.wait_for_end(window)

    def assert_finds(self, title, emulator):
        """The field that finds games is heard, with what it has found."""
        def told():
            heard = self.assert_heard(f"{title} - {TITLE}", f"{emulator}, find")
            found = [thing.name for thing in self.walk(self.frame(f"{title} - {TITLE}"))
                     if thing.name.startswith("Found: 1 of ")]
            return ("text", "Find a game by a part of its name") in heard and found
        wait_until(told, f"the field that finds games of {emulator} to be heard")

    def dialog(self, where, below=None):
        """The dialog over the one below, heard."""
        dialog = wait_until(lambda: next((window for window in self.desktop.screen.windows()
                                          if window.kind == "dialog" and window.id !=
                                          (below.id if below else None)), None), where)
        self.assert_heard(dialog.title, where)
        self.desktop.wait_for_focus(dialog)
        return dialog


if __name__ == "__main__":
    unittest.main()
