"""The program under test on a desktop: installing it, starting it, and its menu as a user sees it."""

import os
import shutil
import signal
from dataclasses import dataclass
from typing import List, Tuple

import bwmk
from harness import BOX_CLASS, MENU_CLASS, DriverFailure, NotInTime, Window, wait_for

KEY = "Software\\Kestrelan\\Burrowmark"
FOLDER = "C:\\Burrowmark"
EXE = FOLDER + "\\burrowmark.exe"
FOLDER_WINDOW = "ExplorerWClass"

GROUP, SINGLE, DOUBLE, OPTIONS, HELP, ORGANIZE, OPEN_ALL = 2, 3, 4, 5, 6, 7, 12
ENTRY_HEIGHT, SEPARATOR_HEIGHT = 19, 10
COLOUR_MENU, COLOUR_HIGHLIGHT, COLOUR_SHADOW, COLOUR_LIGHT = 4, 13, 16, 20
RED = (255, 0, 0)


@dataclass
class MenuEntry:
    """A drawn entry, found by its icon; places are those of the screen."""
    icon: int
    top: int
    left: int
    selected: bool


class Menu:
    """One level of the popup menu."""

    def __init__(self, program, window):
        self.program = program
        self.window: Window = window

    def _scaled(self, pixels_at_96):
        return pixels_at_96 * self.program.desktop.dpi // 96

    def entries(self, picture=None) -> List[MenuEntry]:
        desktop = self.program.desktop
        picture = picture or desktop.picture()
        left, top, right, bottom = self.window.rectangle
        strip = (left, top, min(left + self._scaled(32), right), bottom)
        ground, bar = desktop.colour(COLOUR_MENU), desktop.colour(COLOUR_HIGHLIGHT)
        found = []
        for number, image in self.program.icons().items():
            for below in {ground, bar, RED}:
                for x, y in picture.find(image, below, strip):
                    entry = MenuEntry(number, y - self._scaled(2), x - self._scaled(4), False)
                    # The bar reaches from the icon's right to the text, whether the icon has a frame or not.
                    entry.selected = picture.pixel(entry.left + self._scaled(25), y) in (bar, RED)
                    found.append(entry)
        return sorted(found, key=lambda entry: entry.top)

    def wait_entries(self, icons) -> List[MenuEntry]:
        """Waits until the menu shows entries with just these icons, top to bottom."""
        seen: List[List[int]] = [[]]

        def shown():
            entries = self.entries()
            seen[0] = [entry.icon for entry in entries]
            return entries if seen[0] == list(icons) else None
        try:
            return wait_for(shown, "the entries", 10)
        except AssertionError:
            raise AssertionError("the menu shows the icons %r, not %r" % (seen[0], list(icons)))

    def separator_tops(self, picture) -> List[int]:
        """Places of the drawn lines that divide the menu, as the top of the separator each belongs to."""
        desktop = self.program.desktop
        left, top, right, bottom = self.window.rectangle
        shadow = desktop.colour(COLOUR_SHADOW)
        x = (left + right) // 2
        inner = range(top + 3, bottom - 3)
        lines = [y for y in inner if picture.pixel(x, y) == shadow and picture.pixel(x, y - 1) != shadow]
        return [y - self._scaled(4) for y in lines]

    def shows_text(self, entry, text):
        """True if an unselected entry shows just this text, compared pixel by pixel with the menu's own font."""
        desktop = self.program.desktop
        drawn = desktop.driver("menu-text", text)[0]
        width, height = drawn["width"], drawn["height"]
        wanted = bytes.fromhex(drawn["pixels"])
        picture = desktop.picture()
        left, top = entry.left + self._scaled(26), entry.top + self._scaled(2)
        for y in range(min(height, self._scaled(ENTRY_HEIGHT - 2))):
            for x in range(width):
                at = (y * width + x) * 3
                if any(abs(a - b) > 24 for a, b in zip(wanted[at:at + 3], picture.pixel(left + x, top + y))):
                    return False
        ground = desktop.colour(COLOUR_MENU)
        rest = range(left + width + 2, min(left + width + 12, self.window.rectangle[2] - 4))
        return all(picture.pixel(x, top + y) == ground for x in rest for y in range(height))

    def wait_text(self, entry, text):
        """Waits for it: the tip of the tray icon may lie over the menu for a moment."""
        wait_for(lambda: self.shows_text(entry, text), "an entry with the text %r" % text, 10)

    def click(self, entry, button="left"):
        self.program.desktop.click((entry.left + self._scaled(60), entry.top + self._scaled(9)), button)

    def open_level(self, entry):
        """Clicks on a group and gives its level."""
        before = {window.handle for window in self.program.desktop.windows(MENU_CLASS)}
        self.click(entry)
        return self.program.wait_menu(before)


def install(exe, folder):
    """Copies the program and what stands beside it."""
    shutil.copy(exe, folder / "burrowmark.exe")
    shutil.copy(exe.parent / "filecopy.avi", folder)


class Program:
    """The program, installed into a folder of the desktop's drive C."""

    def __init__(self, desktop, exe):
        self.desktop = desktop
        self.folder = desktop.prefix.host_path(FOLDER)
        self.file = self.folder / "default.bwmk"
        self.process = None
        self._icons = {}
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        install(exe, self.folder)
        # Nothing of an earlier run; two generated groups off, so that the menu holds what the file says.
        desktop.driver("delete-key", "Software\\Kestrelan")
        self.set_option("AC0", False)
        self.set_option("AC1", False)

    def set_option(self, name, value):
        self.desktop.driver("write-value", KEY + "\\Settings", name, "-1" if value else "0")

    def icons(self):
        if not self._icons:
            self._icons = {number: self.desktop.icon(number) for number in range(1, 14)}
        return self._icons

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
        for process in self.desktop.processes("burrowmark.exe"):
            try:
                os.kill(process.pid, signal.SIGTERM)
            except ProcessLookupError:  # gone meanwhile
                pass
        for window in self.desktop.windows(FOLDER_WINDOW):
            self._try(lambda: self.desktop.driver("close", window.handle))
        wait_for(lambda: not self.desktop.windows(FOLDER_WINDOW), "the end of the folder windows")
        wait_for(lambda: not self.desktop.processes("burrowmark.exe"), "the end of the program")
        # The next test would take an icon that was left behind for its own.
        wait_for(lambda: self.desktop.find_tray_icon() is None, "the task bar without the icon")

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
        return [process.command for process in self.desktop.processes("\\explorer.exe")
                if "/desktop" not in process.command]

    def wait_folder_window(self, title):
        return self.desktop.wait_window(FOLDER_WINDOW, title)


def colour_place_of(program, menu, entry) -> Tuple[Tuple[int, int], Tuple[int, int, int]]:
    """A pixel of an entry's icon that neither the menu's ground nor a bar behind it can show."""
    picture = program.desktop.picture()
    image = program.icons()[entry.icon]
    x, y = entry.left + menu._scaled(4), entry.top + menu._scaled(2)
    grounds = [program.desktop.colour(COLOUR_MENU), program.desktop.colour(COLOUR_HIGHLIGHT), RED, (255, 255, 255)]

    def distance(place):
        red, green, blue, opacity = image.pixels[place]
        if opacity < 255:
            return -1
        return min(sum(abs(a - b) for a, b in zip((red, green, blue), ground)) for ground in grounds)
    dx, dy = max(image.pixels, key=distance)
    return (x + dx, y + dy), picture.pixel(x + dx, y + dy)
