"""The life of the program: how it is ended, a second one in its folder, and what it answers without
a window."""

import os
import signal
import subprocess
import unittest

from e2e import BUILD, Scenario


class Life(Scenario):
    def test_what_is_open_is_saved_whatever_ends_the_program(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(number):
                main = self.zarvo.open_main()
                panel = self.zarvo.open_panel(main, "Mame")
                settings = self.drive / "Zarvo/Cfg/Mame.set"
                settings.unlink(missing_ok=True)
                self.desktop.keys("Down")
                self.zarvo.process.send_signal(number)
                self.assertEqual(128 + number, self.zarvo.process.wait(10))
                self.assertTrue(settings.exists())
                self.assertFalse((self.drive / "Zarvo/zarvo.lock").exists())
                self.desktop.wait_for_end(panel)

    def test_a_box_does_not_keep_a_signal_from_saving(self):
        main = self.zarvo.open_main()
        self.zarvo.open_panel(main, "Mame")
        settings = self.drive / "Zarvo/Cfg/Mame.set"
        settings.unlink(missing_ok=True)
        self.zarvo.click(main, (450, 455))
        self.zarvo.box()
        self.zarvo.process.terminate()
        self.assertEqual(128 + signal.SIGTERM, self.zarvo.process.wait(10))
        self.assertTrue(settings.exists())

    def test_a_second_start_says_so_and_ends(self):
        self.zarvo.open_main()
        environment = self.desktop.environment | {"QT_QPA_PLATFORM": "xcb"}
        second = subprocess.Popen([BUILD / "zarvo"], env=environment, cwd=self.drive / "Zarvo")
        self.addCleanup(second.kill)
        self.zarvo.answer("Return")
        self.assertEqual(1, second.wait(10))
        self.assertIsNone(self.zarvo.process.poll())
        # A lock that a crash has left doesn't count.
        self.zarvo.process.kill()
        self.zarvo.process.wait()
        self.assertTrue((self.drive / "Zarvo/zarvo.lock").exists())
        self.zarvo.open_main()

    def test_it_answers_without_a_window(self):
        def answer(*words, **environment):
            clean = {name: value for name, value in os.environ.items()
                     if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
            clean["LSAN_OPTIONS"] = clean.get("LSAN_OPTIONS", "") + ":print_suppressions=0"
            done = subprocess.run([BUILD / "zarvo", *words], env=clean | environment, text=True,
                                  capture_output=True, cwd=self.drive / "Zarvo", timeout=30)
            return done.returncode, done.stdout, done.stderr

        self.assertEqual((0, "Zarvo v0.1\n", ""), answer("--version"))
        status, said, _ = answer("--help")
        self.assertEqual((0, "Usage: zarvo"), (status, said.splitlines()[0]))
        status, _, complaint = answer("--fullscreen")
        self.assertEqual((2, 1), (status, len(complaint.splitlines())))
        no_display = (1, "", "zarvo: there is no display to open a window on\n")
        self.assertEqual(no_display, answer())
        self.assertEqual(no_display, answer(DISPLAY=":4711"))
        self.assertEqual(no_display, answer(WAYLAND_DISPLAY="wayland-4711"))


if __name__ == "__main__":
    unittest.main()
