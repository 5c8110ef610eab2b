"""Each emulator gets its own default words, by a double click and by Enter."""

import unittest

from e2e import Scenario
from driven_zarvo import FAVOURITES, GAMES, entry

# What stands behind the emulator's name: for a double click on the second game of its list, and for
# Enter on the third. The words of Callus are too many for DOS, which passes 126 characters on; a
# program built with DJGPP gets them all the same.
LINES = {
    "Mame": (" brass -ignorecfg -soundcard 1", " brassj -ignorecfg -soundcard 1"),
    "Callus": (" irongate -resv 640 480 -res 640 480 -frameskip AUTO -sndrate 22050"
               " -setinput 1 KEY1 -setinput 2 KEY1 -setinput 3 KEY1 -setinput 4 KEY1",
               " jade -resv 640 480 -res 640 480 -frameskip AUTO -sndrate 22050"
               " -setinput 1 KEY1 -setinput 2 KEY1 -setinput 3 KEY1 -setinput 4 KEY1"),
    "Raine": (" -game lantern -nogui -screenmode 0 -screenx 320 -screeny 200 -joystick -1",
              " -game moon -nogui -screenmode 0 -screenx 320 -screeny 200 -joystick -1"),
    "System16": (" orbit -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 3",
                 " pend -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 3"),
    "M72": (" dbreed -r 22050", " gallop -r 22050"),
}


class Emulators(Scenario):
    def test_default_words(self):
        main = self.zarvo.open_main()
        for emulator, (clicked, entered) in LINES.items():
            with self.subTest(emulator):
                panel = self.zarvo.open_panel(main, emulator)
                self.zarvo.click(panel, entry(GAMES[emulator], 1), times=2)
                self.assert_started(emulator, clicked)
                self.zarvo.click(panel, entry(FAVOURITES, 2))
                self.desktop.keys("Return")
                self.assert_started(emulator, entered)
                if emulator == "Callus":
                    self.assert_asked_before_options_are_cut(panel)
        # All five stand open, and each saves what it has.
        self.assert_quits(main)
        for emulator in LINES:
            self.assertIsNotNone(self.state(f"Cfg/{emulator}.set"), emulator)

    def assert_asked_before_options_are_cut(self, panel):
        """An emulator that knows nothing of long lines: asked for each game, and cut in between two
        options."""
        program = self.drive / "Emu/Callus/Callus.exe"
        program.write_bytes(program.read_bytes().replace(b"go32stub", b"(no stub)"[:8]))
        for spot, line in zip((1, 2), LINES["Callus"]):
            self.zarvo.click(panel, entry(GAMES["Callus"], spot), times=2)
            self.zarvo.answer("Return")
            self.assert_started("Callus", line.removesuffix(" -setinput 4 KEY1"))


if __name__ == "__main__":
    unittest.main()
