"""The road of a player who has just got Zarvo: from the first start to a game and out again."""

import shutil
import unittest

from e2e import Scenario, wait_until
from driven_zarvo import (CONFIGURATION, FAVOURITES, GAMES, MAIN, MAME_OPTIONS, PANEL, SELECTOR,
                          SETTINGS, TITLE, entry)

USUAL = r'"%s","C:\Emu\Mame\Roms",0,0,0,0,1,1,0,0,0,0,"0","0",14' + ",0" * 21  # settings of a game
SELECT, FIRST_FOLDER = (1920, 3990), (900, 640)  # the picker's button, its topmost folder


class Road(Scenario):
    def open_mame(self):
        self.main = self.zarvo.open_main()
        return self.zarvo.open_panel(self.main, "Mame")

    def test_first_start(self):
        shutil.rmtree(self.drive / "Zarvo/Cfg")
        self.zarvo.start()
        self.zarvo.box()
        self.assertIsNone(self.desktop.window(TITLE), "the main window came before the welcome")
        self.assertFalse((self.drive / "Zarvo/Cfg").exists())
        self.zarvo.answer("Return")
        main = self.desktop.wait_for(TITLE)
        self.desktop.wait_for_focus(main)
        self.assertEqual((33, 27, 230, 484), tuple(vars(main.place).values()))
        self.assertTrue((self.drive / "Zarvo/Cfg").is_dir())

        self.zarvo.click(main, SELECTOR["Mame"])
        self.zarvo.answer("Return")  # there is no configuration
        panel = self.zarvo.panel("Mame")
        self.assertEqual((263, 27, 423, 484), tuple(vars(panel.place).values()))
        # The configuration page is on show: its button opens the picker.
        self.zarvo.click(panel, CONFIGURATION["executable"])
        picker = self.desktop.wait_for("Emulator's Full Path", "dialog")
        self.desktop.wait_for_focus(picker)
        self.desktop.keys("Escape")
        self.desktop.wait_for_end(picker)
        self.assertIsNone(self.state("Cfg/Mame.cfg"), "giving up in the picker saves nothing")

        self.zarvo.click(panel, PANEL["X"])
        self.desktop.wait_for_end(panel)
        self.assertEqual([r'"C:\Emu\Mame\Mame.exe"', r'"C:\Emu\Mame\Roms"',
                          r'"C:\Emu\Snapshot\Mame"', '"GIF"', r'"C:\Emu\Mame"', '"up"'],
                         self.state("Cfg/Mame.cfg"))
        self.assert_quits(main)

    def test_double_click_plays_and_the_end_saves(self):
        panel = self.open_mame()
        for _ in range(2):  # the second time shows that the panel goes on as it stood
            self.zarvo.click(panel, entry(GAMES["Mame"], 4), times=2)
            self.assert_started("Mame", " dune -ignorecfg -soundcard 1")
        self.zarvo.click(self.main, MAIN["Exit"])
        self.zarvo.answer("Escape")
        self.assertIsNotNone(self.desktop.screen.place(panel.id), "No leaves all as it is")
        self.assertIsNone(self.state("Cfg/Mame.set"), "neither a start nor No saves the settings")
        self.assert_quits(self.main)
        self.assertEqual([USUAL % "Dune Patrol"], self.state("Cfg/Mame.set"))

    def test_changed_options_are_started_and_kept(self):
        line = " brassj -ignorecfg -resolution 640x480 -soundcard 4 -sr 44100 -trpilebuffer -flipy"
        panel = self.open_mame()
        self.zarvo.click(panel, entry(FAVOURITES, 2))  # Brass Ring (Japan)
        self.zarvo.click(panel, PANEL["settings"])
        self.zarvo.choose(panel, MAME_OPTIONS["screen"], 4, count=7)
        self.zarvo.choose(panel, MAME_OPTIONS["sound"], 3, count=7)
        self.zarvo.choose(panel, MAME_OPTIONS["rate"], 2, count=3)
        self.zarvo.click(panel, MAME_OPTIONS["triple buffer"])
        self.zarvo.click(panel, MAME_OPTIONS["flip vertical"])
        # Moving to the neighbour saves; back on the game, Enter starts it with what was saved.
        self.zarvo.click(panel, entry(FAVOURITES, 1))
        self.zarvo.click(panel, entry(FAVOURITES, 2))
        self.desktop.keys("Return")
        self.assert_started("Mame", line)
        saved = (r'"Brass Ring (Japan)","C:\Emu\Mame\Roms",4,0,0,0,3,2,0,0,0,0,"0","0",14,'
                 "0,0,0,0,0,0,1,0,0,0,0,0,0,0,1,0,0,0,0,0,0")
        self.assertEqual([saved, USUAL % "Brass Ring"], self.state("Cfg/Mame.set"))

        self.zarvo.click(panel, PANEL["X"])
        self.desktop.wait_for_end(panel)
        panel = self.zarvo.open_panel(self.main, "Mame")
        self.zarvo.click(panel, entry(FAVOURITES, 2), times=2)
        self.assert_started("Mame", line)
        self.assert_quits(self.main)

    def test_archive_of_another_folder(self):
        """It's brought in for the run, and what was in the emulator's folder stays."""
        roms, archive = self.emulator("Mame") / "Roms", self.drive / "Roms/comet.zip"
        archive.parent.mkdir()
        shutil.move(roms / "comet.zip", archive)
        content = archive.read_bytes()
        there = sorted(roms.iterdir())

        panel = self.open_mame()
        self.zarvo.click(panel, entry(GAMES["Mame"], 3))  # Comet Run
        self.zarvo.click(panel, PANEL["settings"])
        self.zarvo.click(panel, SETTINGS["folder"])
        picker = self.desktop.wait_for("Search Rom for Comet Run (comet.zip)", "dialog")
        self.desktop.wait_for_focus(picker)
        self.zarvo.click(picker, FIRST_FOLDER, times=2)  # to C:\, which holds Emu, Roms and Zarvo
        self.zarvo.click(picker, entry(FIRST_FOLDER, 2), times=2)
        self.zarvo.click(picker, SELECT)
        self.desktop.wait_for_end(picker)
        self.zarvo.click(panel, PANEL["snapshot"])  # saves
        wait_until(lambda: self.state("Cfg/Mame.set"), "the settings")
        self.assertIn(r'"Comet Run","C:\Roms",', self.state("Cfg/Mame.set")[0])

        self.zarvo.click(panel, entry(GAMES["Mame"], 3), times=2)
        wait_until((roms / "comet.zip").exists, "the archive to be brought in")
        self.assert_started("Mame", " comet -ignorecfg -soundcard 1")
        self.assertEqual(there, sorted(roms.iterdir()))
        self.assertEqual(content, archive.read_bytes())
        self.assert_quits(self.main)


if __name__ == "__main__":
    unittest.main()
