"""Proves the harness on programs that come with the system: what it reports must be what is there."""

import subprocess
import tempfile
import unittest
from pathlib import Path

import bwmk
import pixels
from harness import (BOX_CLASS, MENU_CLASS, Desktop, DesktopTest, DriverFailure, NotInTime, Settings,
                     icon_path, wait_for)

BUTTON_NO, BUTTON_CANCEL = 7, 2
WHITE = (255, 255, 255)


class WithoutDesktop(unittest.TestCase):
    def test_a_wait_ends_at_its_limit(self):
        with self.assertRaises(NotInTime):
            wait_for(lambda: False, "what never comes", 0.1)

    def test_an_image_is_found_where_it_was_drawn_and_nowhere_else(self):
        image = pixels.read_icon(icon_path(3), 16)
        data = bytearray(bytes(WHITE) * (60 * 40))
        for (dx, dy), colour in image.over(WHITE).items():
            at = ((11 + dy) * 60 + 21 + dx) * 3
            data[at:at + 3] = bytes(colour)
        picture = pixels.Picture(60, 40, bytes(data))
        self.assertEqual(picture.find(image, WHITE), [(21, 11)])
        self.assertEqual(picture.find(pixels.read_icon(icon_path(4), 16), WHITE), [])

    def test_a_saved_picture_is_read_alike_by_another_program(self):
        data = bytes(range(2 * 3 * 3))
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "small.png"
            pixels.Picture(2, 3, data).save_png(path)
            ppm = subprocess.run(["convert", str(path), "-depth", "8", "ppm:-"], stdout=subprocess.PIPE, check=True)
        self.assertEqual(pixels.Picture.from_ppm(ppm.stdout).data, data)

    def test_a_written_file_reads_back_with_its_groups(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "tree.bwmk"
            bwmk.write(path, [bwmk.folder("Café", "C:\\x"), bwmk.group("Deep", bwmk.open_all())], "A title")
            self.assertEqual(bwmk.captions(path, "-1"), ["Personal"])
            self.assertEqual(bwmk.captions(path), ["Café", "Deep"])
            self.assertEqual(bwmk.captions(path, "N2"), ["Open-All"])
            path.write_bytes(path.read_bytes()[:-3])
            with self.assertRaises(bwmk.BadFile):
                bwmk.read(path)


class Windows(DesktopTest):
    def start_notepad(self, *words):
        program = self.desktop.start("notepad.exe", *words)
        self.addCleanup(self.end, program)
        return program

    def end(self, program):
        if program.poll() is None:
            for window in self.desktop.windows(BOX_CLASS):
                self.desktop.press(window, BUTTON_NO)
            for window in self.desktop.windows("Notepad"):
                self.desktop.driver("close", window.handle)
            self.desktop.exit_code(program)

    def dark_pixel(self, menu):
        """Place and colour of a pixel of an entry's text; before the menu the white page lies there."""
        picture = self.desktop.picture()
        left, top, right, bottom = menu.rectangle
        for y in range(top + 4, bottom - 4):
            for x in range(left + 20, right - 20):
                if max(picture.pixel(x, y)) < 180:
                    return (x, y), picture.pixel(x, y)
        return None

    def test_a_window_is_found_typed_into_and_closed(self):
        program = self.start_notepad()
        window = self.desktop.wait_window("Notepad")
        self.assertIn("Notepad", window.title)
        wait_for(lambda: self.desktop.driver("foreground")[0]["handle"] == window.handle, "Notepad in front")
        self.desktop.keys("a", "B", "text:cé", "Return", "d")
        edit = next(each for each in self.desktop.children(window) if each.class_name == "Edit")
        self.assertTrue(edit.focus)

        def typed():
            return self.desktop.children(window)[0].title
        wait_for(lambda: typed() == "aBcé\r\nd", "the typed text")

        self.desktop.driver("close", window.handle)
        box = self.desktop.wait_window(BOX_CLASS)
        self.assertEqual({each.id for each in self.desktop.children(box) if each.class_name == "Button"}, {6, 7, 2})
        self.desktop.press(box, BUTTON_CANCEL)
        self.desktop.wait_gone(box)
        self.assertIsNone(program.poll(), "Cancel keeps the program")
        self.desktop.driver("close", window.handle)
        self.desktop.press(self.desktop.wait_window(BOX_CLASS), BUTTON_NO)
        self.assertEqual(self.desktop.exit_code(program), 0)

    def test_a_box_shows_its_text_and_refuses_buttons_it_has_not(self):
        self.start_notepad("C:\\missing file.txt")
        box = self.desktop.wait_window(BOX_CLASS)
        self.assertTrue(any("missing file.txt" in each.title for each in self.desktop.children(box)))
        with self.assertRaises(DriverFailure):
            self.desktop.press(box, 77)

    def test_a_right_click_opens_a_menu_that_is_timed_and_left_by_key(self):
        self.start_notepad()
        window = self.desktop.wait_window("Notepad")
        edit = self.desktop.children(window)[0]
        self.desktop.click(edit.middle, "right")
        menu = self.desktop.wait_window(MENU_CLASS)
        place, colour = wait_for(lambda: self.dark_pixel(menu), "the drawn menu")
        self.desktop.keys("Esc")
        self.desktop.wait_gone(menu)

        timed = self.desktop.time_click(edit.middle, "right", place, colour)
        self.assertLessEqual(0, timed["opened"])
        self.assertLessEqual(timed["opened"], timed["drawn"])
        self.desktop.keys("Esc")
        self.desktop.wait_gone(menu)
        with self.assertRaises(DriverFailure):
            self.desktop.time_click((5, 5), "left", place, (1, 2, 3), limit_ms=300)

    def test_a_folder_window_and_its_process_are_seen(self):
        (self.desktop.prefix.drive_c / "Some Folder").mkdir()
        self.desktop.start("explorer.exe", "C:\\Some Folder")
        window = self.desktop.wait_window("ExplorerWClass", "Some Folder")
        processes = self.desktop.processes("Some Folder")
        self.assertEqual(len(processes), 1)
        self.assertGreaterEqual(processes[0].ticks(), 0)
        self.desktop.driver("close", window.handle)
        self.desktop.wait_gone(window)
        wait_for(lambda: not self.desktop.processes("Some Folder"), "the end of the process")

    def test_registry_values_are_written_read_and_deleted(self):
        self.desktop.driver("write-value", "Software\\Harness", "Text", "a \"b\" é")
        self.assertEqual(self.desktop.registry_text("Software\\Harness", "Text"), "a \"b\" é")
        self.desktop.driver("delete-key", "Software\\Harness")
        self.assertIsNone(self.desktop.registry_text("Software\\Harness", "Text"))

    def test_the_picture_has_the_size_of_the_screen(self):
        picture = self.desktop.picture()
        self.assertEqual((picture.width, picture.height), self.size)
        self.assertEqual(self.desktop.driver("metrics")[0]["width"], self.size[0])

    def test_an_exit_code_comes_through(self):
        self.assertEqual(self.desktop.exit_code(self.desktop.start("cmd.exe", "/c", "exit 7")), 7)


class Resolution(DesktopTest):
    dpi = 192

    def test_the_desktop_has_the_resolution_asked_for(self):
        self.assertEqual(self.desktop.driver("metrics")[0]["dpi"], 192)


class CleanUp(unittest.TestCase):
    def test_a_stopped_desktop_leaves_no_process_and_no_folder(self):
        desktop = Desktop(Settings.from_environment())
        with desktop:
            desktop.start("notepad.exe")
            desktop.wait_window("Notepad")
            folder, prefix = desktop.prefix.folder, desktop.prefix.path
            self.assertNotEqual(desktop.processes(), [])
            screen = desktop.screen_pid()
        self.assertFalse(folder.exists())
        self.assertFalse(Path("/proc/%d" % screen).exists())
        mark = b"WINEPREFIX=" + str(prefix).encode()
        for process in Path("/proc").glob("[0-9]*/environ"):
            try:
                self.assertNotIn(mark, process.read_bytes())
            except OSError:
                continue


if __name__ == "__main__":
    unittest.main()
