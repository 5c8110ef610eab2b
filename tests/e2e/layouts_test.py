"""A layout made with the mouse comes back at the next start, to the pixel."""

import unittest

from e2e import Scenario, wait_until
from driven_zarvo import LAYOUTS, MAIN, PANEL

SIZES = {1: {"M": (423, 308), "S": (161, 308)}, 1.5: {"M": (635, 462), "S": (242, 462)},
         2: {"M": (846, 616), "S": (322, 616)}}


class Layouts(Scenario):
    def place(self, window):
        return self.desktop.screen.place(window.id)

    def resize(self, panel, size):
        before = self.place(panel)
        self.zarvo.click(panel, PANEL[size])
        wait_until(lambda: self.place(panel) != before, f"the size {size}")
        width, height = SIZES[self.zarvo.scale][size]
        after = self.place(panel)
        self.assertAlmostEqual(width, after.width, delta=1)
        self.assertAlmostEqual(height, after.height, delta=1)
        # A panel stands on whole pixels of its own scale, a hand lets go anywhere.
        self.assertAlmostEqual(before.x, after.x, delta=1)
        self.assertAlmostEqual(before.y, after.y, delta=1)

    def move(self, panel, across, down):
        """Moves a panel by its logo, as far as told in pixels."""
        self.zarvo.carry(panel, PANEL["logo"], across, down)
        dropped = self.place(panel)
        self.desktop.hands("mousemove_relative", 40, 25, "sleep", 0.2)
        self.assertEqual(dropped, self.place(panel), "the panel still follows the mouse")

    def save_as_default(self, main):
        """Adds a layout, saves it and makes it the one for the start."""
        self.zarvo.click(main, MAIN["Lays"])
        manager = self.desktop.wait_for("Zarvo - Layouts Manager", "dialog")
        self.desktop.wait_for_focus(manager)
        self.zarvo.click(manager, LAYOUTS["Add"])
        name = self.desktop.wait_for("Add a new layout", "dialog")
        self.desktop.wait_for_focus(name)
        self.desktop.keys("ctrl+a")
        self.desktop.write("At home")
        self.desktop.keys("Return")
        self.desktop.wait_for_end(name)
        self.zarvo.click(manager, LAYOUTS["Save"])
        self.zarvo.click(manager, LAYOUTS["autoload"])
        self.zarvo.click(manager, LAYOUTS["Close"])
        self.desktop.wait_for_end(manager)

    def come_back(self, scale):
        self.zarvo.scale = scale
        main = self.zarvo.open_main()
        mame = self.zarvo.open_panel(main, "Mame")
        self.move(mame, 390, 41)
        self.resize(mame, "M")
        raine = self.zarvo.open_panel(main, "Raine")
        self.move(raine, 57, 529)
        self.resize(raine, "S")
        places = [self.place(window) for window in (main, mame, raine)]
        self.save_as_default(main)
        self.assertIn("DefaultLayout = At home", self.state("zarvo.ini"))
        self.assertIn("AutoloadOnStartup = 1", self.state("zarvo.ini"))
        words = [line.split(",")[0] for line in self.state("layouts.dat")]
        self.assertEqual(["[At home]", "MAIN", "MAME", "RAINE", "-"], words)
        self.assert_quits(main)

        main = self.zarvo.open_main()
        again = [main] + [self.desktop.wait_for(window.title) for window in (mame, raine)]
        self.assertEqual(places, [self.place(window) for window in again])
        self.assert_quits(main)


for number, size in enumerate(SIZES):
    setattr(Layouts, f"test_scale_{number}", lambda self, scale=size: self.come_back(scale))


if __name__ == "__main__":
    unittest.main()
