"""While an emulator runs, nothing that the player does to Zarvo has an effect, then or later, and yet
the windows live."""

import os
import signal
import unittest

from e2e import Scenario, wait_until
from driven_zarvo import FAVOURITES, MAIN, PANEL, SELECTOR, entry
from private_desktop import Place

LINE = " brass -ignorecfg -soundcard 1"


class Run(Scenario):
    def setUp(self):
        super().setUp()
        (self.emulator("Mame") / "QUICK.TXT").unlink()  # the emulator doesn't end at once
        self.told = self.emulator("Mame") / "CMDLINE.TXT"
        self.main = self.zarvo.open_main()

    def start(self):
        self.zarvo.click(self.panel, entry(FAVOURITES, 1), times=2)
        wait_until(lambda: self.told.exists() and self.told.read_text() == LINE, "the emulator")
        self.signal(signal.SIGSTOP)  # it runs for as long as the test needs

    def signal(self, number):
        children = self.zarvo.children()
        self.assertTrue(children, "the emulator has ended already")
        for child in children:
            os.kill(child, number)

    def windows(self):
        return sorted(window.id for window in self.desktop.screen.windows()
                      if window.kind in ("normal", "dialog"))

    def look(self, place):
        """The pixels of a place as soon as two looks are the same."""
        looks = [None]

        def same():
            looks.append(self.desktop.screen.pixels(place))
            return looks[-1] == looks[-2]

        self.desktop.hands("mousemove", 2000, 1500, "sleep", 0.2)
        wait_until(same, "the picture to rest")
        return looks[-1]

    def test_input_is_dropped(self):
        self.panel = self.zarvo.open_panel(self.main, "Mame")
        self.start()
        there = self.windows()
        for spot in (entry(FAVOURITES, 4), PANEL["settings"], PANEL["S"], PANEL["X"]):
            self.zarvo.click(self.panel, spot)
        self.zarvo.click(self.panel, entry(FAVOURITES, 5), times=2)
        self.desktop.keys("Down", "Return", "alt+F4")
        for spot in (SELECTOR["Callus"], MAIN["Lays"], MAIN["Exit"]):
            self.zarvo.click(self.main, spot)
        self.desktop.keys("Tab", "space", "alt+F4")
        self.signal(signal.SIGCONT)
        self.zarvo.wait_for_rest()
        self.told.unlink()

        # What is done now is the first thing that counts: the game in the list is still the same.
        (self.emulator("Mame") / "QUICK.TXT").touch()
        self.zarvo.click(self.panel, PANEL["L"])
        self.assertEqual(there, self.windows())
        self.assertIsNone(self.state("Cfg/Mame.set"), "a button of the panel was pressed")
        self.zarvo.tab_to(self.panel, entry(FAVOURITES, 1))
        self.desktop.keys("Return")
        self.assert_started("Mame", LINE)
        self.assertEqual(there, self.windows())
        self.assert_quits(self.main)

    def test_windows_are_painted(self):
        """Another panel comes into sight when the one in front of it is moved away."""
        behind = self.zarvo.open_panel(self.main, "Callus")
        place = behind.place
        inside = Place(place.x + 165, place.y + 60, 245, 230)  # the snapshot, the same without focus
        looked = self.look(inside)
        self.panel = self.zarvo.open_panel(self.main, "Mame")
        self.assertEqual(place, self.panel.place)
        wait_until(lambda: self.desktop.screen.pixels(inside) != looked, "the panel in front")
        self.start()
        # The window manager moves any window by Alt and the mouse.
        self.desktop.hands("keydown", "Alt_L")
        self.zarvo.carry(self.panel, PANEL["favourites"], place.width + 40, 0)
        self.desktop.hands("keyup", "Alt_L")
        wait_until(lambda: self.desktop.screen.pixels(inside) == looked,
                   "the panel behind to be painted")
        self.signal(signal.SIGCONT)
        self.zarvo.wait_for_rest()
        self.assert_quits(self.main)

    def test_killed_emulator(self):
        self.panel = self.zarvo.open_panel(self.main, "Mame")
        self.start()
        self.signal(signal.SIGKILL)
        self.zarvo.answer("Return")  # says that the emulator was broken off
        self.zarvo.wait_for_rest()
        self.assertFalse((self.emulator("Mame") / "lancia.bat").exists())
        self.assert_quits(self.main)


if __name__ == "__main__":
    unittest.main()
