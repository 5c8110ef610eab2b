"""Favourites are dragged out of the game list and taken away by keys."""

import unittest

from e2e import Scenario
from driven_zarvo import FAVOURITES, GAMES, PANEL, entry

DEMO = ["Arrow Storm", "Brass Ring", "Brass Ring (Japan)", "Dune Patrol", "Ember Keep", "Frost Line"]


class Favourites(Scenario):
    def kept(self):
        """The favourites as the configuration file has them, in the order of the list."""
        return [line.strip('"') for line in reversed(self.state("Cfg/Mame.cfg")[6:])]

    def drag(self, panel, row, *spots):
        self.zarvo.drag(panel, entry(GAMES["Mame"], row),
                        [self.zarvo.point(panel, spot) for spot in spots])

    def test_drag_and_keys(self):
        self.assertEqual(DEMO, self.kept())
        main = self.zarvo.open_main()
        panel = self.zarvo.open_panel(main, "Mame")
        favourites, page = PANEL["favourites"], (4300, 2600)

        self.drag(panel, 7, favourites)              # Glass Tower
        self.drag(panel, 3, page, favourites, page)  # Comet Run over the list and past it
        self.drag(panel, 7, page, favourites)        # Glass Tower once more
        self.zarvo.click(panel, PANEL["X"])
        self.desktop.wait_for_end(panel)
        self.assertEqual([*DEMO, "Glass Tower"], self.kept())

        panel = self.zarvo.open_panel(main, "Mame")
        self.drag(panel, 3, favourites)
        # It stands where its name belongs, and can be started from there.
        self.zarvo.click(panel, entry(FAVOURITES, 3), times=2)
        self.assert_started("Mame", " comet -ignorecfg -soundcard 1")
        self.zarvo.click(panel, entry(FAVOURITES, 0))
        self.desktop.keys("Delete", "Delete")
        self.desktop.keys("Return")
        self.assert_started("Mame", " brassj -ignorecfg -soundcard 1")
        self.assert_quits(main)
        self.assertEqual(["Brass Ring (Japan)", "Comet Run", "Dune Patrol", "Ember Keep",
                          "Frost Line", "Glass Tower"], self.kept())

    def test_clear_asks(self):
        main = self.zarvo.open_main()
        panel = self.zarvo.open_panel(main, "Mame")
        self.zarvo.click(panel, PANEL["Clear"])
        self.zarvo.answer("Escape")
        self.zarvo.click(panel, entry(FAVOURITES, 1), times=2)  # starting saves the list
        self.assert_started("Mame", " brass -ignorecfg -soundcard 1")
        self.assertEqual(DEMO, self.kept())
        self.zarvo.click(panel, PANEL["Clear"])
        self.zarvo.answer("Return")
        self.assert_quits(main)
        self.assertEqual([], self.kept())


if __name__ == "__main__":
    unittest.main()
