"""Guards against tests that pass in silence: waits, comparisons and the driver fail where they should, and a run of a
broken test is no success."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import bwmk
import pixels
from harness import MENU_CLASS, Desktop, DesktopTest, DriverFailure, NotInTime, Settings, wait_for

WHITE = (255, 255, 255)
BROKEN_TESTS = {
    "fails": "self.fail('as it should')",
    "skips": "self.skipTest('proves nothing')",
    "fails_in_part": "with self.subTest():\n            self.fail('as it should')",
    "dies": "__import__('os')._exit(0)",
}


class WithoutDesktop(unittest.TestCase):
    def test_a_wait_ends_at_its_limit(self):
        with self.assertRaises(NotInTime):
            wait_for(lambda: False, "what never comes", 0.1)

    def test_an_image_is_found_where_it_was_drawn_and_nowhere_else(self):
        for size in (16, 24):
            image = pixels.read_icon(pixels.icon_path(3), size)
            data = bytearray(bytes(WHITE) * (60 * 40))
            for (dx, dy), colour in pixels.over(image, WHITE).items():
                at = ((11 + dy) * 60 + 21 + dx) * 3
                data[at:at + 3] = bytes(colour)
            picture = pixels.Picture(60, 40, bytes(data))
            everywhere = (0, 0, 60, 40)
            self.assertEqual(picture.find(image, WHITE, everywhere), (21, 11))
            self.assertIsNone(picture.find(image, WHITE, (22, 0, 60, 40)))
            self.assertIsNone(picture.find(pixels.read_icon(pixels.icon_path(4), size), WHITE, everywhere))

    def test_a_written_file_reads_back_and_a_cut_one_is_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "tree.bwmk"
            bwmk.write(path, [bwmk.folder("Café", "C:\\x"), bwmk.group("Deep", bwmk.open_all())])
            self.assertEqual([bwmk.captions(path, owner) for owner in ("-1", "MIT_GROUP_USER", "N2")],
                             [["Personal"], ["Café", "Deep"], ["Open-All"]])
            path.write_bytes(path.read_bytes()[:-3])
            with self.assertRaises(bwmk.BadFile):
                bwmk.read(path)

    def test_a_run_with_a_broken_test_fails(self):
        run = Path(__file__).with_name("run.py")
        with tempfile.TemporaryDirectory() as folder:
            for name, body in BROKEN_TESTS.items():
                (Path(folder) / ("broken_%s.py" % name)).write_text(
                    "import unittest\n\n\nclass Case(unittest.TestCase):\n    def test(self):\n        %s\n\n"
                    "    def test_other(self):\n        pass\n" % body)
                for module in ("broken_" + name, "broken_not_there"):
                    done = subprocess.run([sys.executable, "-B", str(run), module], cwd=folder, env={**os.environ, "PYTHONPATH": folder},
                                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
                    self.assertNotEqual(done.returncode, 0, (module, done.stdout))


class Driver(DesktopTest):
    def test_what_cant_be_done_is_an_error(self):
        notepad = self.desktop.start("notepad.exe", "C:\\missing file.txt")
        box = self.desktop.wait_window("#32770")
        missing = 2 ** 16 - 2
        for words in (("press", box.handle, 77), ("children", missing), ("menu", box.handle), ("tree", box.handle),
                      ("keys", "Nokey"), ("read-value", "Software\\Nothing", "x"), ("no-verb",), ("close",),
                      ("time-click", 5, 5, 3, 3, 1, 2, 3, 200)):
            with self.subTest(verb=words[0]), self.assertRaises(DriverFailure):
                self.desktop.driver(*words)
        self.assertIn("missing file.txt", " ".join(each.title for each in self.desktop.children(box)))
        self.assertEqual(self.desktop.windows(MENU_CLASS), [])
        self.desktop.press(box, 2)
        self.assertEqual(self.desktop.exit_code(notepad), 0)
        self.assertEqual(self.desktop.exit_code(self.desktop.start("cmd.exe", "/c", "exit 7")), 7)


class CleanUp(unittest.TestCase):
    def test_a_stopped_desktop_leaves_no_process_and_no_folder_and_a_dead_driver_is_an_error(self):
        with Desktop(Settings.from_environment()) as desktop:
            desktop.start("notepad.exe")
            desktop.wait_window("Notepad")
            prefix = desktop.prefix
            self.assertGreater(len(prefix.processes()), 2)
            prefix.end_server()
            with self.assertRaises((DriverFailure, OSError)):
                desktop.driver("windows")
        self.assertFalse(prefix.folder.exists())
        wait_for(lambda: not prefix.processes(), "the end of all processes", 5)
