"""Lays out small source trees with one fault each and looks at what tools/check_includes says."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "check_includes"

SOUND = {
    "src/zarvo/main.cpp": '#include <QApplication>\n#include "ui/panel/panel.h"\n',
    "src/core/platform/text.h": "#include <string>\n",
    "src/core/platform/text.cpp": '#include "core/platform/text.h"\n#include <algorithm>\n',
    "src/ui/panel/panel.h": '#include <QWidget>\n#include "core/platform/text.h"\n',
    "src/ui/panel/panel.cpp": '#include "ui/panel/panel.h"\n',
    "src/core/panel/cfg_file.cpp": '#include "core/platform/text.h"\n',
}


def check(changes, *options):
    """The exit code and output for the sound tree with some files changed."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {**SOUND, **changes}.items():
            file = Path(folder) / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, TOOL, folder, *options], capture_output=True, text=True)
        return run.returncode, run.stdout + run.stderr


class CheckIncludes(unittest.TestCase):
    def test_sound_tree_passes(self):
        commented = "/* once:\n#include <QString>\n*/\n// #include <QWidget>\n"
        for changes in ({}, {"src/core/platform/text.cpp": commented}):
            self.assertEqual((0, "6 files, 0 faults\n"), check(changes))

    def test_faults_are_told(self):
        cases = [
            ({"src/core/platform/text.cpp": "  #  include <QString>\n"},
             "src/core/platform/text.cpp: is core and includes QString\n"),
            ({"src/core/platform/text.h": '#include "core/platform/deep.h"\n',
              "src/core/platform/deep.h": "#include <QtCore/QString>\n"},
             "src/core/panel/cfg_file.cpp: is core and includes "
             "core/platform/text.h > core/platform/deep.h > QtCore/QString\n"),
            ({"src/core/panel/cfg_file.cpp": '#include "qstring.h"\n'},
             "src/core/panel/cfg_file.cpp: is core and includes qstring.h\n"),
            ({"src/core/platform/text.h": '#include "core/panel/cfg_file.h"\n',
              "src/core/panel/cfg_file.h": ""},
             "src/core/platform/text.h: includes core/panel/cfg_file.h, "
             "which core/platform may not use\n"),
            ({"src/core/layouts/a.cpp": '#include "ui/panel/panel.h"\n'},
             "src/core/layouts/a.cpp: includes ui/panel/panel.h, which core/layouts may not use\n"),
            ({"src/import/list.h": '#include "ui/panel/panel.h"\n'},
             "src/import/list.h: includes ui/panel/panel.h, which import may not use\n"),
            ({"src/ui/panel/a.h": '#include "ui/panel/b.h"\n',
              "src/ui/panel/b.h": '#include "ui/panel/a.h"\n'},
             "src/ui/panel/a: includes itself: ui/panel/a > ui/panel/b > ui/panel/a\n"),
            # A circle of sources, which no compiler notices.
            ({"src/ui/panel/a.h": "", "src/ui/panel/b.h": "",
              "src/ui/panel/a.cpp": '#include "ui/panel/b.h"\n',
              "src/ui/panel/b.cpp": '#include "ui/panel/a.h"\n'},
             "src/ui/panel/a: includes itself: ui/panel/a > ui/panel/b > ui/panel/a\n"),
            ({"src/ui/panel/panel.cpp": '#include "panel.h"\n'},
             'src/ui/panel/panel.cpp: "panel.h" isn\'t a path from src/\n'),
            ({"src/misc/a.h": ""},
             "src/misc/a.h: the folder misc is no room in the order of the rooms\n"),
        ]
        for changes, expected in cases:
            with self.subTest(expected):
                code, output = check(changes)
                self.assertEqual(1, code)
                self.assertIn(expected, output)

    def test_picture_leaves_out_what_a_longer_way_reaches(self):
        _, output = check({}, "--picture")
        self.assertIn("  zarvo --> ui_panel\n", output)
        self.assertIn("  ui_panel --> core_platform\n", output)
        self.assertNotIn("zarvo --> core_platform", output)


if __name__ == "__main__":
    unittest.main()
