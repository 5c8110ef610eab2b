"""Runs the stand-in emulators in a real DOSBox, without a picture: standin_test.py BUILD_FOLDER"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

STAND_INS = Path(sys.argv.pop(1)) / "demo"


def run_in_dos(folder, lines):
    """Runs the lines on a drive C: that is the folder."""
    configuration = Path(folder) / "run.conf"
    configuration.write_text(
        "[autoexec]\n@echo off\n" + f'mount c "{folder}"\nc:\n' + "\n".join(lines) + "\nexit\n")
    quiet = {**os.environ, "SDL_VIDEODRIVER": "dummy", "SDL_AUDIODRIVER": "dummy", "HOME": folder}
    subprocess.run(["dosbox", "-conf", configuration], env=quiet, check=True, timeout=60,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class StandIn(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = Path(self.folder.name)

    def test_writes_its_tail_byte_for_byte(self):
        (self.root / "QUICK.TXT").touch()
        long_tail = " " + "x" * 60 + " -a  -b " + "y" * 40
        for word, tail in (("Mame", " agsofdk -ignorecfg -soundcard 1"), ("Callus", "  two  blanks"),
                           ("Raine", long_tail), ("System16", ""), ("M72", " rtype")):
            with self.subTest(word):
                shutil.copy(STAND_INS / f"{word}.exe", self.root)
                told = self.root / "CMDLINE.TXT"
                told.write_text("z" * 200)  # what an earlier run left is replaced
                run_in_dos(self.root, [f"{word}.exe{tail}", "if errorlevel 1 mkdir FAILED"])
                self.assertEqual(tail, told.read_text())
                self.assertFalse((self.root / "FAILED").exists())

    def test_ends_by_itself(self):
        shutil.copy(STAND_INS / "Mame.exe", self.root)
        run_in_dos(self.root, ["Mame.exe alone", "echo x > AFTER.TXT"])
        self.assertEqual(" alone", (self.root / "CMDLINE.TXT").read_text())
        self.assertTrue((self.root / "AFTER.TXT").exists())


if __name__ == "__main__":
    unittest.main()
