"""Lays out small source trees with one fault each and looks at what tools/check_includes says."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "check_includes"

SOUND = {
    "src/CMakeLists.txt": "add_executable(zarvo main.cpp)\n",
    "src/main.cpp": '#include <QApplication>\n#include "panel/panel.h"\n',
    "src/platform/CMakeLists.txt": "target_sources(zarvo_core PRIVATE\n  text.cpp\n)\n",
    "src/platform/text.h": "#include <string>\n",
    "src/platform/text.cpp": '#include "platform/text.h"\n#include <algorithm>\n',
    "src/panel/CMakeLists.txt": "target_sources(zarvo_ui PRIVATE panel.cpp)\n"
    "target_sources(zarvo_core PRIVATE cfg_file.cpp)\n",
    "src/panel/panel.h": '#include <QWidget>\n#include "platform/text.h"\n',
    "src/panel/panel.cpp": '#include "panel/panel.h"\n',
    "src/panel/cfg_file.cpp": '#include "platform/text.h"\n',
}


def check(changes):
    """The exit code and output for the sound tree with some files changed."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {**SOUND, **changes}.items():
            file = Path(folder) / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True)
        return run.returncode, run.stdout + run.stderr


class CheckIncludes(unittest.TestCase):
    def test_sound_tree_passes(self):
        commented = "/* once:\n#include <QString>\n*/\n// #include <QWidget>\n"
        for changes in ({}, {"src/platform/text.cpp": commented}):
            self.assertEqual((0, "6 files, 0 faults\n"), check(changes))

    def test_faults_are_told(self):
        cases = [
            ({"src/platform/text.cpp": "  #  include <QString>\n"},
             "src/platform/text.cpp: is core and includes QString\n"),
            ({"src/platform/text.h": '#include "platform/deep.h"\n',
              "src/platform/deep.h": "#include <QtCore/QString>\n"},
             "src/panel/cfg_file.cpp: is core and includes "
             "platform/text.h > platform/deep.h > QtCore/QString\n"),
            ({"src/panel/cfg_file.cpp": '#include "qstring.h"\n'},
             "src/panel/cfg_file.cpp: is core and includes qstring.h\n"),
            ({"src/platform/text.h": '#include "panel/cfg_file.h"\n', "src/panel/cfg_file.h": ""},
             "src/platform/text.h: includes panel/cfg_file.h, which lies above platform\n"),
            ({"src/import/list.h": '#include "panel/panel.h"\n'},
             "src/import/list.h: includes panel/panel.h, which lies above import\n"),
            ({"src/panel/a.h": '#include "panel/b.h"\n', "src/panel/b.h": '#include "panel/a.h"\n'},
             "src/panel/a.h: includes itself: panel/a.h > panel/b.h > panel/a.h\n"),
            ({"src/panel/panel.cpp": '#include "panel.h"\n'},
             'src/panel/panel.cpp: "panel.h" isn\'t a path from src/\n'),
            ({"src/panel/lost.cpp": ""}, "src/panel/lost.cpp: stands in no CMakeLists.txt\n"),
            ({"src/misc/a.h": ""},
             "src/misc/a.h: the folder misc has no place in the order of the folders\n"),
            ({"src/platform/CMakeLists.txt": "", "src/panel/CMakeLists.txt": ""}, ""),
        ]
        for changes, expected in cases:
            with self.subTest(expected):
                code, output = check(changes)
                self.assertEqual(1, code)
                self.assertIn(expected, output)


if __name__ == "__main__":
    unittest.main()
