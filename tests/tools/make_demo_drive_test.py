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
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.base = Path(folder.name)
        self.drive = self.base / "drive"
        for name in ("data", "build/demo"):
            (self.base / name).mkdir(parents=True)
        for word in WORDS:
            self.put_data(word, GAMES)
            (self.base / "build/demo" / f"{word}.exe").write_bytes(b"MZ " + word.encode())

    def put_data(self, word, games):
        (self.base / "data" / f"{word}.dat").write_bytes((HEADER + games).encode("latin-1"))

    def lay_out(self, code=0):
        command = [sys.executable, TOOL, self.drive, self.base / "build", self.base / "data"]
        run = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(code, run.returncode, run.stdout + run.stderr)
        return run.stdout + run.stderr

    def bytes_of(self, path):
        return (self.drive / path).read_bytes()

    def names(self, folder):
        return sorted(entry.name for entry in (self.drive / folder).iterdir())

    def test_first_time(self):
        self.lay_out()
        self.assertEqual(
            b'"C:\\Emu\\Mame\\Mame.exe"\r\n"C:\\Emu\\Mame\\Roms"\r\n"C:\\Emu\\Snapshot\\Mame"\r\n'
            b'"GIF"\r\n"C:\\Emu\\Mame"\r\n"up"\r\n"Eta"\r\n"Beta"\r\n"Alpha (US)"\r\n',
            self.bytes_of("Zarvo/Cfg/Mame.cfg"))
        self.assertEqual(
            b'"C:\\Emu\\M72\\M72.exe"\r\n"C:\\Emu\\M72\\Ziproms"\r\n"C:\\Emu\\Snapshot\\M72"\r\n'
            b'"GIF"\r\n"C:\\Emu\\M72"\r\n"up"\r\n', self.bytes_of("Zarvo/Cfg/M72.cfg"))
        self.assertEqual((HEADER + GAMES).encode(), self.bytes_of("Zarvo/Data/Raine.dat"))
        # The parent of a clone is there too, a name that leaves the folder isn't.
        self.assertEqual(["alpha.zip", "beta.zip", "betaroot.zip", "eta.zip"],
                         self.names("Emu/Mame/Roms"))
        self.assertIsNone(zipfile.ZipFile(self.drive / "Emu/Raine/ZipRoms/beta.zip").testzip())
        self.assertIn("beta.zip", self.names("Emu/Callus"))
        # The title of a block is what the panel looks for: MAME's without its region.
        for path, start in (("Emu/Snapshot/Mame/alpha.gif", b"GIF87a"),
                            ("Emu/Raine/Snapshot/alpha.jpg", b"\xff\xd8\xff"),
                            ("Emu/System16/Snapshot/alpha.bmp", b"BM"),
                            ("Emu/Mame/gamelist.txt", b"Alpha\r\n")):
            self.assertTrue(self.bytes_of(path).startswith(start), path)
        self.assertIn(b"Alpha (US)\r\n", self.bytes_of("Emu/Callus/gamelist.txt"))

    def test_later_runs_keep_what_the_player_changed(self):
        self.lay_out()
        mine = ("Zarvo/Cfg/Mame.cfg", "Zarvo/Cfg/Mame.set", "Emu/Mame/Mame.exe")
        for path in mine:
            (self.drive / path).write_bytes(b"mine")
        roms = (self.drive / "Emu/Mame/Roms").rename(self.drive / "Emu/Mame/ROMS")
        (roms / "eta.zip").unlink()
        (roms / "beta.zip").rename(roms / "BETA.ZIP")
        self.assertIn("Wrote 1 file", self.lay_out())
        self.assertEqual("", self.lay_out())

        more = GAMES + record("Zeta", "zeta")
        self.put_data("Mame", more)
        self.lay_out()
        self.assertEqual((HEADER + more).encode(), self.bytes_of("Zarvo/Data/Mame.dat"))
        for path in mine:
            self.assertEqual(b"mine", self.bytes_of(path))
        self.assertEqual(["BETA.ZIP", "alpha.zip", "betaroot.zip", "eta.zip", "zeta.zip"],
                         self.names("Emu/Mame/ROMS"))
        self.assertNotIn("Roms", self.names("Emu/Mame"))

    def test_missing_data_file_is_named(self):
        (self.base / "data/Raine.dat").unlink()
        self.assertIn("Raine.dat", self.lay_out(code=1))
        self.assertFalse(self.drive.exists())


if __name__ == "__main__":
    unittest.main()
