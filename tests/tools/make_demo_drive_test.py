"""Lays out small demo drives and looks at what a player would find, first and after changes."""

import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "make_demo_drive"
WORDS = ("Mame", "Callus", "Raine", "System16", "M72")
HEADER = "".join(f"*line {i}\r\n" for i in range(1, 18))


def record(name, rom, parent="-", genre="Puzzle"):
    return f"{name};{rom};O;{parent};{genre};Maker;1990;" + "n/a;" * 14 + "\r\n"


GAMES = (
    record("Alpha (US)", "alpha")
    + record("Beta", "beta", "betaroot", "Racing")
    + record('Gamma "X"', "gamma")
    + record("Delta", "../delta")
    + "# a comment\r\n"
    + record("Eta", "eta")
)


class DemoDrive(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.base = Path(self.folder.name)
        self.drive = self.base / "drive"
        for name in ("data", "build/demo"):
            (self.base / name).mkdir(parents=True)
        for word in WORDS:
            self.data(word).write_bytes((HEADER + GAMES).encode("latin-1"))
            (self.base / "build/demo" / f"{word}.exe").write_bytes(b"MZ " + word.encode())

    def data(self, word):
        return self.base / "data" / f"{word}.dat"

    def lay_out(self):
        command = [sys.executable, TOOL, self.drive, self.base / "build", self.base / "data"]
        run = subprocess.run(command, capture_output=True, text=True)
        return run.returncode, run.stdout + run.stderr

    def laid_out(self):
        code, output = self.lay_out()
        self.assertEqual(0, code, output)
        return output

    def names(self, folder):
        return sorted(entry.name for entry in (self.drive / folder).iterdir())

    def test_first_time(self):
        self.laid_out()
        self.assertEqual(
            b'"C:\\Emu\\Mame\\Mame.exe"\r\n"C:\\Emu\\Mame\\Roms"\r\n"C:\\Emu\\Snapshot\\Mame"\r\n'
            b'"GIF"\r\n"C:\\Emu\\Mame"\r\n"up"\r\n"Eta"\r\n"Beta"\r\n"Alpha (US)"\r\n',
            (self.drive / "Zarvo/Cfg/Mame.cfg").read_bytes())
        self.assertEqual(
            b'"C:\\Emu\\M72\\M72.exe"\r\n"C:\\Emu\\M72\\Ziproms"\r\n"C:\\Emu\\Snapshot\\M72"\r\n'
            b'"GIF"\r\n"C:\\Emu\\M72"\r\n"up"\r\n',
            (self.drive / "Zarvo/Cfg/M72.cfg").read_bytes())
        self.assertEqual(self.data("Raine").read_bytes(),
                         (self.drive / "Zarvo/Data/Raine.dat").read_bytes())
        # The parent of a clone is there too, a name that leaves the folder isn't.
        self.assertEqual(["alpha.zip", "beta.zip", "betaroot.zip", "eta.zip"],
                         self.names("Emu/Mame/Roms"))
        self.assertIsNone(zipfile.ZipFile(self.drive / "Emu/Raine/ZipRoms/beta.zip").testzip())
        self.assertIn("beta.zip", self.names("Emu/Callus"))
        for path, magic in (("Emu/Snapshot/Mame/alpha.gif", b"GIF87a"),
                            ("Emu/Raine/Snapshot/alpha.jpg", b"\xff\xd8\xff"),
                            ("Emu/System16/Snapshot/alpha.bmp", b"BM")):
            self.assertTrue((self.drive / path).read_bytes().startswith(magic), path)
        # The title of a block is what the panel looks for: MAME's without its region.
        self.assertTrue((self.drive / "Emu/Mame/gamelist.txt").read_bytes().startswith(b"Alpha\r\n"))
        self.assertIn(b"Alpha (US)\r\n", (self.drive / "Emu/Callus/gamelist.txt").read_bytes())

    def test_later_runs_keep_what_the_player_changed(self):
        self.laid_out()
        cfg = self.drive / "Zarvo/Cfg/Mame.cfg"
        cfg.write_bytes(b'"D:\\mine.exe"\r\n')
        emulator = self.drive / "Emu/Mame/Mame.exe"
        emulator.write_bytes(b"a real one")
        (self.drive / "Zarvo/Cfg/Mame.set").write_bytes(b"mine")
        (self.drive / "Emu/Mame/Roms").rename(self.drive / "Emu/Mame/ROMS")
        (self.drive / "Emu/Mame/ROMS/eta.zip").unlink()
        (self.drive / "Emu/Mame/ROMS/beta.zip").rename(self.drive / "Emu/Mame/ROMS/BETA.ZIP")
        self.assertIn("Wrote 1 file", self.laid_out())
        self.assertEqual("", self.laid_out())

        self.data("Mame").write_bytes((HEADER + GAMES + record("Zeta", "zeta")).encode("latin-1"))
        self.laid_out()
        self.assertEqual(self.data("Mame").read_bytes(),
                         (self.drive / "Zarvo/Data/Mame.dat").read_bytes())
        self.assertEqual(b'"D:\\mine.exe"\r\n', cfg.read_bytes())
        self.assertEqual(b"a real one", emulator.read_bytes())
        self.assertEqual(b"mine", (self.drive / "Zarvo/Cfg/Mame.set").read_bytes())
        self.assertEqual(["BETA.ZIP", "alpha.zip", "betaroot.zip", "eta.zip", "zeta.zip"],
                         self.names("Emu/Mame/ROMS"))
        self.assertNotIn("Roms", self.names("Emu/Mame"))

    def test_missing_data_file_is_named(self):
        self.data("Raine").unlink()
        code, output = self.lay_out()
        self.assertEqual(1, code)
        self.assertIn("Raine.dat", output)
        self.assertFalse(self.drive.exists())


if __name__ == "__main__":
    unittest.main()
