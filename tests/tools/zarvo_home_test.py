#!/usr/bin/env python3
"""Tests of the start script: zarvo_home_test.py START_SCRIPT

It runs from a folder laid out as an installation, with a script in place of the program that tells
where it was started.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

START_SCRIPT = Path(sys.argv.pop(1))
SHIPPED = {"drives.ini": "C = .\n", "Readme.txt": "read\n", "data/Mame.dat": "mame\n",
           "data/M72.dat": "m72\n"}


class ZarvoHome(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        bin_folder = self.root / "usr/bin"
        bin_folder.mkdir(parents=True)
        shutil.copy(START_SCRIPT, bin_folder)
        self.write(bin_folder / "zarvo", "#!/bin/sh\npwd\n")
        (bin_folder / "zarvo").chmod(0o755)
        for name, text in SHIPPED.items():
            self.write(self.root / "usr/share/zarvo" / name, text)
        self.home = self.root / "home of me"
        self.home.mkdir()
        self.zarvo = self.home / "Zarvo"

    @staticmethod
    def write(path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def start(self, **changes):
        environment = {"PATH": os.environ["PATH"], "HOME": self.home, **changes}
        environment = {name: str(value) for name, value in environment.items() if value}
        return subprocess.run([self.root / "usr/bin" / START_SCRIPT.name], env=environment,
                              capture_output=True, text=True, check=False)

    def files(self):
        return {str(file.relative_to(self.zarvo)): file.read_text()
                for file in self.zarvo.rglob("*") if file.is_file() and file.name != "brought.txt"}

    def assert_refused(self, words, **changes):
        result = self.start(**changes)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn(words, result.stderr)
        self.assertEqual(result.stdout, "", "the program was started all the same")

    def test_first_start_lays_the_folder_out(self):
        result = self.start()
        self.assertEqual((result.returncode, result.stdout.strip()), (0, str(self.zarvo)))
        self.assertEqual(self.files(), {"drives.ini": "C = .\n", "Readme.txt": "read\n",
                                        "Data/Mame.dat": "mame\n", "Data/M72.dat": "m72\n"})

    def test_later_start_brings_in_what_is_missing_and_keeps_the_rest(self):
        self.write(self.zarvo / "DATA/mame.DAT", "mine\n")
        self.write(self.zarvo / "README.TXT", "mine\n")
        self.write(self.zarvo / "cfg/Mame.cfg", "mine\n")
        self.assertEqual(self.start().returncode, 0)
        # A folder that has been in use keeps its drives, so it gets no drives.ini.
        self.assertEqual(self.files(), {"DATA/mame.DAT": "mine\n", "README.TXT": "mine\n",
                                        "cfg/Mame.cfg": "mine\n", "DATA/M72.dat": "m72\n"})

    def test_a_list_is_renewed_unless_somebody_has_touched_it(self):
        self.assertEqual(self.start().returncode, 0)
        shipped = self.root / "usr/share/zarvo/data"
        for name in ("Mame.dat", "M72.dat"):
            self.write(shipped / name, "newer\n")
        self.write(self.zarvo / "Data/M72.dat", "mine\n")
        for _ in range(2):
            self.assertEqual(self.start().returncode, 0)
            self.assertEqual("newer\n", self.files()["Data/Mame.dat"])
            self.assertEqual("mine\n", self.files()["Data/M72.dat"])
        self.write(shipped / "Mame.dat", "newest\n")
        self.assertEqual(self.start().returncode, 0)
        self.assertEqual("newest\n", self.files()["Data/Mame.dat"])

    def test_folders_for_todays_mame_where_it_is_installed(self):
        tools = self.root / "tools"
        for name in ("mame", "zarvo-mame"):
            self.write((tools if name == "mame" else self.root / "usr/bin") / name,
                       '#!/bin/sh\necho "$@"\n')
            ((tools if name == "mame" else self.root / "usr/bin") / name).chmod(0o755)
        told = self.start(PATH=f"{tools}:{os.environ['PATH']}").stdout.splitlines()
        self.assertEqual([f"--lay-out {self.zarvo}", str(self.zarvo)], told)

    def test_no_place_for_the_folder(self):
        self.assert_refused("HOME isn't set", HOME=None)
        self.assert_refused("There is no folder", HOME=self.root / "gone")
        self.write(self.zarvo, "a file in the way\n")
        self.assert_refused("can't be made")
        self.assertEqual(self.zarvo.read_text(), "a file in the way\n")

    def test_full_disk_leaves_no_half_file(self):
        full = self.root / "full/cp"
        self.write(full, '#!/bin/sh\nprintf half >"$2"\necho "No space left on device" >&2\nexit 1\n')
        full.chmod(0o755)
        self.assert_refused("No space left on device", PATH=f"{full.parent}:{os.environ['PATH']}")
        self.assertEqual(self.files(), {})


if __name__ == "__main__":
    unittest.main()
