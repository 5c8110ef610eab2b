"""From the start to a running game and out again without a mouse, and the focus is seen all the way."""

import unittest

from e2e import Scenario
from driven_zarvo import MAIN, MAME_OPTIONS, PANEL, SELECTOR
from private_desktop import Place, wait_until


class Keyboard(Scenario):
    def test_all_by_keys(self):
        keys = self.desktop.keys
        main = self.zarvo.open_main()
        self.zarvo.tab_to(main, SELECTOR["Mame"])
        keys("Return")
        panel = self.zarvo.panel("Mame")
        self.zarvo.tab_to(panel, PANEL["games"])
        self.desktop.write("em")  # finds Ember Keep
        keys("Return")
        self.assert_started("Mame", " ember -ignorecfg -soundcard 1")

        self.zarvo.tab_to(panel, PANEL["settings"])
        keys("space")
        self.zarvo.tab_to(panel, MAME_OPTIONS["frames"])
        keys("Down", "Down", "Down")
        self.zarvo.tab_to(panel, MAME_OPTIONS["no stereo"])
        keys("space")
        self.zarvo.tab_to(panel, PANEL["games"])
        keys("Down", "Up", "Return")  # away and back saves the options
        self.assert_started("Mame", " ember -ignorecfg -frameskip 3 -soundcard 1 -nostereo")

        self.zarvo.tab_to(panel, PANEL["logo"])
        keys("Right", "Down", "Down")
        moved = Place(panel.place.x + 10, panel.place.y + 20, panel.place.width, panel.place.height)
        self.wait_for_place(panel, moved)
        keys("Return")
        self.wait_for_place(panel, panel.place)
        self.zarvo.tab_to(panel, PANEL["X"])
        keys("space")
        self.desktop.wait_for_end(panel)
        self.desktop.wait_for_focus(main)
        self.zarvo.tab_to(main, MAIN["Exit"])
        keys("Return")
        self.zarvo.answer("Return")
        self.assertEqual(0, self.zarvo.ended())

    def wait_for_place(self, window, place):
        wait_until(lambda: self.desktop.screen.place(window.id) == place, f"a window at {place}")


if __name__ == "__main__":
    unittest.main()
