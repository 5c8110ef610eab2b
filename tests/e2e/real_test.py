"""Real games: today's MAME behind the panels, from an empty folder to a snapshot on the page.

Ends with 77, for "skipped", where MAME isn't installed.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from e2e import BUILD, PROJECT, wait_until
from driven_zarvo import FAVOURITES, MAME_OPTIONS, PANEL, PANEL_TITLES, TITLE, DrivenZarvo, entry
from private_desktop import Desktop, Place

MAME = shutil.which("mame") or shutil.which("/usr/games/mame")
SKIPPED = 77


class Words(unittest.TestCase):
    VALUES = {"-resolution": "640x480", "x…": "", "-samplerate": "22050", "-beam_width_max": "2.00",
              "-gamma": "1.20", "-frameskip": "3", "-input_directory": "x"}

    def test_every_translated_word_is_one_of_mame(self):
        table = subprocess.run([BUILD / "zarvo-mame", "--table"], check=True, capture_output=True,
                               text=True).stdout
        lines = {line for row in table.splitlines() if row.startswith("| `")
                 for line in re.findall("`([^`]*)`", row.split("|")[2])}
        self.assertGreater(len(lines), 30)
        for line in sorted(lines - {"x…"}):
            words = line.replace("…", self.VALUES.get(line.split()[0], "?")).split()
            told = subprocess.run([MAME, "pong", *words, "-showconfig"], capture_output=True,
                                  text=True, env={"HOME": "/nonexistent", "PATH": os.defpath})
            self.assertEqual((0, ""), (told.returncode, told.stderr), line)


class RealGame(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="zarvo-real-")
        self.addCleanup(folder.cleanup)
        base = Path(folder.name)
        self.drive = base / "drive"
        self.home = base / "home"
        self.home.mkdir()
        shutil.copytree(PROJECT / "data", self.drive / "Zarvo/Data",
                        ignore=lambda _, names: [n for n in names if not n.endswith(".dat")])
        told = subprocess.run([BUILD / "zarvo-mame", "--lay-out", self.drive / "Zarvo"],
                              check=True, capture_output=True, text=True)
        self.assertEqual(len(PANEL_TITLES), len(told.stdout.splitlines()), told.stdout)
        for emulator in ("Mame", "Callus"):
            # What a player writes there for an X server without a graphics card.
            with open(self.drive / "Emu" / emulator / "mame.ini", "a", encoding="utf-8") as ini:
                ini.write("video soft\nwindow 1\nmaximize 0\nsound none\nresolution 640x480\n")
        self.desktop = self.enterContext(Desktop())
        self.zarvo = DrivenZarvo(self.desktop, BUILD / "zarvo", self.drive)
        self.zarvo.environment = {"HOME": str(self.home), "SDL_VIDEODRIVER": "x11",
                                  # The sanitizers aren't MAME's.
                                  "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}
        self.addCleanup(self.zarvo.stop)

    def test_three_clicks_to_pong_and_its_snapshot(self):
        main = self.zarvo.open_main()
        panel = self.zarvo.open_panel(main, "Mame")
        self.zarvo.click(panel, entry(FAVOURITES, 1))  # Breakout, Pong, Pong Doubles, Rebound
        self.desktop.keys("Return")
        game = wait_until(self.window_of_mame, "the window of MAME")
        self.desktop.wait_for_focus(game)
        snapshot = self.drive / "Emu/Snapshot/Mame/pong.png"

        self.hold("F12", snapshot.exists, "the snapshot")
        self.desktop.picture(BUILD / "e2e-pong.png")
        self.hold("Escape", lambda: not self.zarvo.children(), "the end of the game")
        self.zarvo.wait_for_rest()
        self.assertIsNone(self.desktop.window(TITLE, "dialog"), "a good end is silent")
        self.zarvo.click(panel, entry(FAVOURITES, 2))
        self.zarvo.click(panel, entry(FAVOURITES, 1))
        place = self.desktop.screen.place(panel.id)
        wait_until(lambda: self.shows_picture(place), "the game's black ground on the page")
        self.desktop.picture(BUILD / "e2e-pong-page.png")
        self.assertEqual(0, self.zarvo.quit(main))

    def test_a_recording_lies_where_the_panel_looks_and_is_played_back(self):
        recordings = self.drive / "Emu/Mame/INP"
        main = self.zarvo.open_main()
        panel = self.zarvo.open_panel(main, "Mame")
        self.zarvo.click(panel, entry(FAVOURITES, 1))
        self.zarvo.click(panel, PANEL["settings"])
        self.zarvo.click(panel, MAME_OPTIONS["record"])
        self.assert_plays(panel, lambda words: "-record" in words)
        name, = (file.name for file in recordings.iterdir())
        self.assertRegex(name, r"^pong_.*\.inp$")

        self.zarvo.click(panel, MAME_OPTIONS["record"])  # off again: the two exclude each other
        self.zarvo.click(panel, MAME_OPTIONS["playback"])
        picker = self.desktop.wait_for("Choose the INP file", "dialog")
        self.desktop.wait_for_focus(picker)
        self.desktop.keys("Down", "Return")
        self.desktop.wait_for_end(picker)
        self.assert_plays(panel, lambda words: words[words.index("-playback") + 1] == name)
        self.assertIsNone(self.desktop.window(TITLE, "dialog"), "a good end is silent")
        self.assertEqual(0, self.zarvo.quit(main))

    def assert_plays(self, panel, expected):
        """Enter on the selected game brings up MAME with the words that are expected; it's ended."""
        self.zarvo.click(panel, entry(FAVOURITES, 1))
        self.desktop.keys("Return")
        self.desktop.wait_for_focus(wait_until(self.window_of_mame, "the window of MAME"))
        child, = self.zarvo.children()
        words = Path(f"/proc/{child}/cmdline").read_text().split("\0")
        self.assertTrue(expected(words), words)
        self.hold("Escape", lambda: not self.zarvo.children(), "the end of the game")
        self.zarvo.wait_for_rest()
        time.sleep(0.8)  # an Enter sooner than that is taken for one that is still held

    def hold(self, key, condition, what):
        """MAME looks at the keys once in a frame, so a key is held, and again until it was seen."""
        def held():
            self.desktop.hands("keydown", key, "sleep", 0.2, "keyup", key)
            return condition()
        wait_until(held, what)

    def window_of_mame(self):
        return next((window for window in self.desktop.screen.windows() if "pong" in window.title),
                    None)

    def shows_picture(self, place):
        """Whether the middle of the page has the black of the game's ground in most of it."""
        pixels = self.desktop.screen.pixels(Place(place.x + 200, place.y + 80, 180, 180))
        dark = sum(1 for i in range(0, len(pixels) - 3, 4) if max(pixels[i:i + 3]) < 24)
        return dark * 4 > len(pixels) // 2

    def test_an_incomplete_set_is_told_in_the_emulators_own_words(self):
        empty = b"PK\5\6" + bytes(18)
        (self.drive / "Emu/Callus/ffightj1.zip").write_bytes(empty)
        cfg = self.drive / "Zarvo/cfg/Callus.cfg"
        cfg.write_bytes(cfg.read_bytes() + b'"Final Fight (Japan 900112)"\r\n')
        main = self.zarvo.open_main()
        panel = self.zarvo.open_panel(main, "Callus")
        self.zarvo.click(panel, FAVOURITES, times=2)
        box = self.zarvo.box()
        self.desktop.picture(BUILD / "e2e-incomplete.png")
        # Our own sentence alone is two lines.
        self.assertGreater(box.place.height, 200, "the box doesn't have the lines of MAME")
        self.zarvo.answer("Return")
        self.assertEqual(0, self.zarvo.quit(main))


if __name__ == "__main__":
    if MAME is None:
        print("MAME isn't installed: skipped")
        sys.exit(SKIPPED)
    unittest.main()
