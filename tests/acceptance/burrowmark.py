"""The program under test on a desktop: installing it, starting it, and its menu as a user sees it."""

import os
import re
import shutil
import signal
from dataclasses import dataclass
from typing import List, Tuple

import bwmk
import pixels
from harness import BOX_CLASS, MENU_CLASS, DesktopTest, DriverFailure, NotInTime, wait_for

KEY = "Software\\Kestrelan\\Burrowmark"
FOLDER = "C:\\Burrowmark"
EXE = FOLDER + "\\burrowmark.exe"
FOLDER_WINDOW = "ExplorerWClass"
ROOT = ["Help", "Personal", "Options", "Organize Folders"]

GROUP, SINGLE, DOUBLE, OPTIONS, HELP, ORGANIZE = range(2, 8)  # numbers of icons
ENTRY_HEIGHT, SEPARATOR_HEIGHT = 19, 10
RED, WHITE = (255, 0, 0), (255, 255, 255)


@dataclass
class MenuEntry:
    """An entry or a separator; places are those of the screen."""
    text: str
    rectangle: Tuple[int, int, int, int]
    separator: bool
    selected: bool
    group: bool


class Menu:
    """One level of the popup menu."""

    def __init__(self, program, window):
        self.program = program
        self.window = window

    def entries(self) -> List[MenuEntry]:
        """What the system says of the open menu; nothing once it is closed."""
        try:
            return [MenuEntry(**line) for line in self.program.desktop.driver("menu", self.window.handle)]
        except DriverFailure:
            return []

    def wait_texts(self, texts) -> List[MenuEntry]:
        """Waits until the menu holds entries with just these texts, top to bottom; separators aside."""
        seen: List[List[str]] = [[]]

        def there():
            entries = [entry for entry in self.entries() if not entry.separator]
            seen[0] = [entry.text for entry in entries]
            return entries if seen[0] == list(texts) else None
        return wait_for(there, lambda: "a menu of %r; it holds %r" % (list(texts), seen[0]), 10)

    def wait_selected(self, text):
        wait_for(lambda: [entry.text for entry in self.entries() if entry.selected] == [text],
                 "the entry %r selected alone" % text, 10)

    def icon_place(self, picture, entry, number):
        """Where an unselected entry shows an icon, or None."""
        desktop = self.program.desktop
        left, top, right, bottom = entry.rectangle
        ground = picture.pixel(right - 4, top + 1)
        return picture.find(desktop.icon(number), ground, (left, top, left + 32 * desktop.dpi // 96, bottom))

    def shows_text(self, picture, entry):
        """True if there is something dark behind the icon of an unselected entry."""
        left, top, right, bottom = entry.rectangle
        return any(max(picture.pixel(x, y)) < 100 for y in range(top + 2, bottom - 2)
                   for x in range(left + 26 * self.program.desktop.dpi // 96, right - 4))

    def click(self, entry, button="left"):
        left, top, _, bottom = entry.rectangle
        self.program.desktop.click((left + 60 * self.program.desktop.dpi // 96, (top + bottom) // 2), button)

    def wait_level(self):
        """The level that opens beside this one."""
        return self.program.wait_menu({self.window.handle})

    def open_level(self, entry):
        """Clicks on a group and gives its level."""
        before = {window.handle for window in self.program.desktop.windows(MENU_CLASS)}
        self.click(entry)
        return self.program.wait_menu(before)


def install(exe, folder):
    """Copies the program and what stands beside it."""
    folder.mkdir(exist_ok=True)
    for name in (exe.name, "CopyAddress.exe", "Burrowmark.chm", "filecopy.avi", "folder_report.css", "TIPOFDAY.TXT"):
        shutil.copy(exe.parent / name, folder)


class Program:
    """The program, installed into a folder of the desktop's drive C."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = desktop.prefix.host_path(FOLDER)
        self.file = self.folder / "default.bwmk"
        self.process = None
        shutil.rmtree(self.folder, ignore_errors=True)
        install(desktop.settings.exe, self.folder)
        # Nothing of an earlier run; two generated groups off, so that the menu holds what the file says.
        desktop.driver("delete-key", "Software\\Kestrelan")
        self.set_option("AC0", False)
        self.set_option("AC1", False)

    def set_option(self, name, value):
        self.desktop.driver("write-value", KEY + "\\Settings", name, "-1" if value else "0")

    def write_tree(self, *entries):
        bwmk.write(self.file, entries)

    def make_folders(self, *paths):
        for path in paths:
            self.desktop.prefix.host_path(path).mkdir(parents=True, exist_ok=True)

    def start(self, *words):
        """Starts the program and waits for its icon in the task bar. Gives the icon's place."""
        self.process = self.desktop.start(EXE, *words)
        return self.wait_tray_icon()

    def start_second(self, *words):
        return self.desktop.start(EXE, *words)

    def wait_tray_icon(self):
        def icon():
            if not self.runs():
                raise AssertionError("the program ended with %d before its icon came" % self.process.returncode)
            return self.desktop.find_tray_icon()
        return wait_for(icon, "the icon in the task bar", 20)

    def runs(self):
        return self.process is not None and self.process.poll() is None

    def end(self):
        """Ends the program whatever it shows, and closes the folder windows that it opened."""
        if self.runs():
            for box in self.desktop.windows(BOX_CLASS):
                self._try(lambda: self.desktop.press(box, 2))
            if self.desktop.windows(MENU_CLASS):
                self._try(lambda: self.desktop.keys("Esc", "Esc", "Esc"))
            # Killed programs leave their icon in the task bar for a while, so it's asked first.
            self.start_second("/EXIT")
            try:
                self.desktop.exit_code(self.process, 5)
            except NotInTime:
                pass
        for process in self.desktop.prefix.processes("burrowmark.exe"):
            try:
                os.kill(process.pid, signal.SIGTERM)
            except ProcessLookupError:  # gone meanwhile
                pass
        wait_for(self._no_folder_windows, "the end of the folder windows")
        wait_for(lambda: not self.desktop.prefix.processes("burrowmark.exe"), "the end of the program")
        # The next test would take an icon that was left behind for its own.
        wait_for(lambda: self.desktop.find_tray_icon() is None, "the task bar without the icon")

    def _no_folder_windows(self):
        # One that is only coming is closed at a later look.
        for window in self.desktop.windows(FOLDER_WINDOW):
            self._try(lambda: self.desktop.driver("close", window.handle))
        return not self.folder_commands()

    @staticmethod
    def _try(action):
        try:
            action()
        except DriverFailure:  # gone meanwhile
            pass

    def wait_menu(self, other_than=()) -> Menu:
        def new_level():
            levels = self.desktop.windows(MENU_CLASS)
            return next((level for level in levels if level.handle not in other_than), None)
        return Menu(self, wait_for(new_level, "a menu", 10))

    def open_menu(self, place, button="left") -> Menu:
        self.desktop.click(place, button)
        return self.wait_menu()

    def wait_no_menu(self):
        wait_for(lambda: not self.desktop.windows(MENU_CLASS), "the end of the menu", 10)

    def wait_box(self):
        return self.desktop.wait_window(BOX_CLASS, "Burrowmark", 10)

    def folder_commands(self):
        """Commands of the folder windows' processes; the task bar's own is none of them."""
        return [process.command for process in self.desktop.prefix.processes("\\explorer.exe")
                if "/desktop" not in process.command]

    def wait_folder_window(self, title):
        return self.desktop.wait_window(FOLDER_WINDOW, title)


def colour_place_of(menu, entry, number) -> Tuple[Tuple[int, int], Tuple[int, int, int]]:
    """A pixel of an entry's icon that nothing else shows where the icon comes to stand, and its colour."""
    desktop = menu.program.desktop
    left, top = wait_for(lambda: menu.icon_place(desktop.picture(), entry, number), "the icon of " + entry.text, 10)
    picture, image = desktop.picture(), desktop.icon(number)
    grounds = [picture.pixel(entry.rectangle[2] - 4, top), RED, WHITE]

    def strangeness(place):
        return min(pixels.distance(image[place], ground) for ground in grounds) if image[place][3] == 255 else -1
    dx, dy = max(image, key=strangeness)
    return (left + dx, top + dy), picture.pixel(left + dx, top + dy)


class ProgramTest(DesktopTest):
    """A test case with the program installed anew, not yet started."""

    def setUp(self):
        self.program = Program(self.desktop)
        self.addCleanup(self.program.end)

    def start_with(self, *entries):
        self.program.write_tree(*entries)
        return self.program.start()

    def open_root(self, tray, texts=tuple(ROOT)):
        root = self.program.open_menu(tray)
        return root, root.wait_texts(texts)

    def open_personal(self, tray):
        root, entries = self.open_root(tray)
        return root.open_level(entries[1])

    def close_menu(self):
        while self.desktop.windows(MENU_CLASS):
            self.desktop.keys("Esc")

    def start_notepad(self):
        """Another program, with the focus."""
        self.desktop.start("notepad.exe")
        notepad = self.desktop.wait_window("Notepad")
        self.addCleanup(lambda: self.desktop.driver("close", notepad.handle))
        self.desktop.click(notepad.middle)
        self.desktop.wait_focus(notepad, "Edit")
        return notepad

    def texts_of(self, box):
        return " ".join(child.title for child in self.desktop.children(box))

    def answer(self, text, button):
        """Waits for a box that says this and presses a button of it."""
        box = self.program.wait_box()
        self.assertIn(text, self.texts_of(box))
        self.desktop.press(box, button)
        self.desktop.wait_gone(box)

    def wait_commands(self, *words):
        """Waits until just these folder windows were asked for; as many processes run, and these are their words."""
        wanted = sorted(words)
        found = wait_for(lambda: len(self.program.folder_commands()) >= len(wanted) and self.program.folder_commands(),
                         "the folder windows' processes")
        self.assertEqual(sorted(re.sub(r"(?i)^.*?explorer\.exe ", "", command) for command in found), wanted)

    def wait_file(self, captions):
        wait_for(lambda: self.program.file.exists() and bwmk.captions(self.program.file) == captions,
                 "the file with %r" % captions, 10)
