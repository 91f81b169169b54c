#!/usr/bin/env python3
"""Makes the pictures of the help, which the README shows too: one window each, in a palette of few colours.

With the fonts of Wine's own (Debian package fonts-wine, `--fonts`) windows have their buttons as they should look.
"""

import argparse
import shutil
import signal
import sys
import time
from pathlib import Path

import sample  # first: it finds the modules below
import bwmk
from burrowmark import KEY, Program
from editor import FORM, LIST, TREE, Editor, ListWindow
from harness import REPOSITORY, Desktop, Settings, wait_for

SCREEN = (1024, 768)
COLOURS = 96
GROUPS = (("Clients", ("Contracts", "Invoices", "Letters", "Offers")), ("House", ("Insurance", "Plans", "Repairs")),
          ("Photos", ("Family", "Garden", "Travel")))


def path_of(*names):
    return "\\".join(("C:",) + names)


def tree():
    groups = [bwmk.group(name, *[bwmk.folder(topic, path_of(name, topic), number % 2 == 1)
                                 for number, topic in enumerate(topics)], bwmk.open_all()) for name, topics in GROUPS]
    return groups + [bwmk.folder("Downloads", path_of("Downloads")),
                     bwmk.folder("Music", path_of("Music"), True),
                     bwmk.folder("Old budget", path_of("Budget", "2003")),
                     bwmk.folder("Projects", path_of("Projects"), True, hot_key=53)]


class FontDesktop(Desktop):
    """A desktop with fonts of its own."""

    def __init__(self, settings, fonts):
        super().__init__(settings, SCREEN)
        self._fonts = fonts

    def _start_screen(self):
        for font in self._fonts.glob("*.ttf") if self._fonts else ():
            shutil.copy(font, self.prefix.drive_c / "windows" / "Fonts")
        super()._start_screen()


class Camera:
    def __init__(self, desktop, output):
        self.desktop, self.output = desktop, output

    def _import(self, part, *words):
        return self.desktop.prefix.run("import", "-silent", "-window", "root", "-crop", part, *words, limit=30).stdout

    def _wait_still(self, part):
        """A machine with much to do paints late; a caret that blinks is the same at every other look."""
        before = None
        for _ in range(20):
            time.sleep(0.7)
            now = self._import(part, "ppm:-")
            if now == before:
                return
            before = now

    def take(self, name, *rectangles):
        """A picture of the smallest rectangle around these."""
        left, top, right, bottom = [pick(edges) for pick, edges in zip((min, min, max, max), zip(*rectangles))]
        part = "%dx%d+%d+%d" % (right - left, bottom - top, left, top)
        self._wait_still(part)
        path = self.output / (name + ".png")
        self._import(part, "+repage", "-strip", "+dither", "-colors", str(COLOURS), "PNG8:%s" % path)
        print("%s: %d bytes" % (path, path.stat().st_size))

    def take_window(self, name, window):
        self.take(name, next(each for each in self.desktop.windows() if each.handle == window.handle).rectangle)


def entry_of(menu, text):
    return next(entry for entry in wait_for(menu.entries, "entries of the menu") if entry.text == text)


def take_menu(camera, program, tray):
    desktop = camera.desktop
    menu = program.open_menu(tray)
    personal = menu.open_level(entry_of(menu, "Personal"))
    entry_of(personal, "Projects")
    desktop.keys("Up")  # without the pointer, which would hide a part
    personal.wait_selected("Projects")
    levels = [level.window.rectangle for level in (menu, personal)]
    bar = desktop.wait_window("Shell_TrayWnd").rectangle
    camera.take("menu", (min(each[0] for each in levels) - 8, min(each[1] for each in levels) - 8, bar[2], bar[3]))
    desktop.keys("Esc", "Esc")
    program.wait_no_menu()


def take_options(camera, program, tray):
    desktop = camera.desktop
    menu = program.open_menu(tray)
    menu.click(entry_of(menu, "Options"))
    dialog = desktop.wait_window(FORM, "Options", 10)
    desktop.keys("Tab")
    desktop.wait_focus(dialog, TREE)
    desktop.keys("ctrl+Tab", "ctrl+Tab", "Home", "Down", "Down", "Down")
    camera.take_window("options", dialog)
    desktop.keys("Esc")
    desktop.wait_gone(dialog)


def set_place(desktop, form, width, height):
    """Where a window opens next time, in twips."""
    for name, value in (("L", 1200), ("T", 900), ("W", width), ("H", height), ("S", 0)):
        desktop.driver("write-value", KEY + "\\" + form, name, value)


def take_editor(camera, program):
    desktop = camera.desktop
    set_place(desktop, "frmOrg", 9900, 6300)
    for number, width in enumerate((1900, 1500, 1800, 2000), 1):
        desktop.driver("write-value", KEY + "\\frmOrg", "ICHW%d" % number, width)
    editor = Editor.open(program)
    editor.click_node("Personal")
    editor.click_row("Projects")
    camera.take_window("editor", editor.window)
    return editor


def take_dialogs(camera, editor):
    desktop = camera.desktop

    def show(name, title, *keys, then=()):
        desktop.keys(*keys)
        dialog = desktop.wait_window(FORM, title, 10)
        time.sleep(0.5)
        if then:
            desktop.keys(*then)
        camera.take_window(name, dialog)
        desktop.keys("Esc")
        desktop.wait_gone(dialog)

    editor.click_node("Photos")
    desktop.wait_focus(editor.window, TREE)
    show("new-item", "New Item", "ctrl+n",
         then=("alt+p", "text:C:\\Photos\\Garden", "alt+n", "text:Garden in spring", "alt+d", "text:The best of each year"))
    show("information", "Information", "alt+f", "i",
         then=("Right", "alt+t", "text:Home and office", "alt+c", "text:Personal"))
    editor.click_node("Personal")
    editor.click_row("Projects")
    desktop.wait_focus(editor.window, LIST)
    show("report", "Projects - Folder Report", "alt+t", "r", then=("Return",))


def take_list(camera, program):
    desktop = camera.desktop
    set_place(desktop, "frmLST", 9900, 5400)
    editor = Editor.open(program)
    desktop.keys("alt+t", "v")
    shown = ListWindow(desktop, "Folder Shortcuts List", 10)
    wait_for(lambda: all(row[1] for row in shown.rows()), "a status in every row")
    camera.take_window("list", shown.window)
    shown.close_and_wait()
    editor.close_and_wait()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    Settings.add_options(parser)
    parser.add_argument("--output", type=Path, default=REPOSITORY / "assets" / "help")
    parser.add_argument("--fonts", type=Path)
    arguments = parser.parse_args()
    settings = Settings.of(arguments)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that one that is ended from outside cleans up
    arguments.output.mkdir(parents=True, exist_ok=True)
    with FontDesktop(settings, arguments.fonts) as desktop:
        program = Program(desktop)
        for option in ("AC0", "AC1", "ADVC0", "ADVC1", "ADVC6", "ADVC7"):
            program.set_option(option, True)
        for name, topics in GROUPS:
            program.make_folders(*[path_of(name, topic) for topic in topics])
        program.make_folders(path_of("Downloads"), path_of("Music"), path_of("Projects"))
        program.write_tree(*tree())
        tray = program.start()
        camera = Camera(desktop, arguments.output)
        take_menu(camera, program, tray)
        take_options(camera, program, tray)
        editor = take_editor(camera, program)
        take_dialogs(camera, editor)
        editor.close_and_wait()
        program.end()
        program.set_option("AC0", False)  # a list of the user's own
        program.start()
        take_list(camera, program)
        program.end()


if __name__ == "__main__":
    main()
