"""What the end-to-end tests stand on: each test method has a desktop and a drive of its own and drives
the built program there. A test file is run as: NAME_test.py BUILD_FOLDER

The games are a few invented here, so that a test knows every line by heart.
"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(PROJECT / "tools"))

from driven_zarvo import DrivenZarvo  # noqa: E402
from private_desktop import Desktop, wait_until  # noqa: E402

BUILD = Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 else PROJECT / "build/debug"

# Name, rom and parent. Of eight games the drive makes all but the fourth and the last favourites.
GAMES = {
    "Mame": [("Arrow Storm", "arrow", "-"), ("Brass Ring", "brass", "-"),
             ("Brass Ring (Japan)", "brassj", "brass"), ("Comet Run", "comet", "-"),
             ("Dune Patrol", "dune", "-"), ("Ember Keep", "ember", "-"),
             ("Frost Line", "frost", "-"), ("Glass Tower", "glass", "-")],
    "Callus": [("Harbour Fight", "harbour", "-"), ("Iron Gate", "irongate", "-"),
               ("Jade Tiger", "jade", "-")],
    "Raine": [("Kite Wars", "kite", "-"), ("Lantern", "lantern", "-"), ("Moon Rider", "moon", "-")],
    "System16": [("Night Mail", "night", "-"), ("Orbit", "orbit", "-"), ("Pendulum", "pend", "-")],
    "M72": [("R-Type 2", "rtype2", "-"), ("R-Type (JP)", "rtypej", "-"),
            ("R-Type (US)", "rtypeu", "-"), ("Image Fight", "imgfight", "-"),
            ("Dragon Breed", "dbreed", "-"), ("Mr.Heli (JP)", "mrheli", "-"),
            ("Battle Chopper", "bchopper", "-"), ("Hammerin'Harry", "hharry", "-"),
            ("Legend of Hero Tonma", "loht", "-"), ("Ninja Spirit", "nspirit", "-"),
            ("X-Multiply", "xmultipl", "-"), ("Gallop - Armed Police Unit", "gallop", "-")],
}


def write_data(folder):
    folder.mkdir()
    for emulator, games in GAMES.items():
        lines = [f"*{emulator} {number}" for number in range(1, 18)]
        lines += [f"{name};{rom};{'O' if parent == '-' else 'C'};{parent};Shooter;Maker;1990;"
                  + "n/a;" * 14 for name, rom, parent in games]
        text = "".join(line + "\r\n" for line in lines)
        (folder / f"{emulator}.dat").write_bytes(text.encode("latin-1"))


class Scenario(unittest.TestCase):
    """A fresh drive, a desktop, and the program that isn't started yet."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="zarvo-e2e-")
        self.addCleanup(folder.cleanup)
        base = Path(folder.name)
        write_data(base / "data")
        self.drive = base / "drive"
        subprocess.run([sys.executable, PROJECT / "tools/make_demo_drive", self.drive, BUILD,
                        base / "data"], check=True, stdout=subprocess.DEVNULL)
        for emulator in GAMES:
            (self.emulator(emulator) / "QUICK.TXT").touch()
        self.desktop = self.enterContext(Desktop())
        self.zarvo = DrivenZarvo(self.desktop, BUILD / "zarvo", self.drive)
        self.addCleanup(self.zarvo.stop)
        self.addCleanup(self.keep_traces)

    def keep_traces(self):
        """Of a failed test: what stood on the screen, and what the program has said."""
        outcome = self._outcome.result
        if not any(test is self for test, _ in outcome.failures + outcome.errors):
            return
        traces = BUILD / "e2e"
        traces.mkdir(exist_ok=True)
        self.desktop.picture(traces / f"{self.id()}.png")
        said = self.zarvo.log.read_text(errors="replace") if self.zarvo.log.exists() else ""
        ended = self.zarvo.process and self.zarvo.process.poll()
        print(f"{self.id()} left {traces / self.id()}.png; exit code of the program so far: {ended}; "
              f"it has said:\n{said}", file=sys.stderr)

    def emulator(self, emulator):
        return self.drive / "Emu" / emulator

    def state(self, name):
        """The lines of a file in Zarvo's own folder."""
        file = self.drive / "Zarvo" / name
        return file.read_text(encoding="cp1252").splitlines() if file.exists() else None

    def assert_started(self, emulator, line):
        """The emulator was started with exactly these words behind its name, and has ended."""
        told = self.emulator(emulator) / "CMDLINE.TXT"
        wait_until(lambda: told.exists() and told.read_text() == line, lambda: (
            f"the command line {line!r}; there is {told.read_text() if told.exists() else None!r}"))
        self.zarvo.wait_for_rest()
        told.unlink()

    def assert_quits(self, main):
        self.assertEqual(0, self.zarvo.quit(main), self.zarvo.log.read_text(errors="replace"))
