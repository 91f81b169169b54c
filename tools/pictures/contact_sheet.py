#!/usr/bin/env python3
"""Pictures of every window, page and tab of the program, each alone, and of its menu; and one sheet of them all.

They are taken at several scales; the menu also where apps are dark, and everything once in a user's colours of high
contrast. Nothing looks at them but people.
"""

import argparse
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

import pictures  # first: it finds the modules below
import sample
from burrowmark import Program
from editor import FORM, Editor
from harness import REPOSITORY, Desktop, Settings

SCREENS = {**pictures.SCREENS, 192: (2560, 1800)}
MENU, BOX = "#32768", "#32770"
THEMES = "Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"
DARK = {THEMES: {"AppsUseLightTheme": 0}}
BLACK, WHITE, CYAN, GREEN, PURPLE = "0 0 0", "255 255 255", "26 235 255", "63 242 63", "55 0 110"
CONTRAST = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager": {"ThemeActive": "0"},
    "Control Panel\\Colors": {
        "Window": BLACK, "WindowText": WHITE, "Menu": BLACK, "MenuText": WHITE, "MenuBar": BLACK, "ButtonFace": BLACK,
        "ButtonText": WHITE, "ButtonHilight": WHITE, "ButtonLight": WHITE, "ButtonShadow": WHITE,
        "ButtonDkShadow": WHITE, "ButtonAlternateFace": BLACK, "GrayText": GREEN, "Hilight": CYAN,
        "HilightText": BLACK, "HotTrackingColor": CYAN, "ActiveTitle": PURPLE, "GradientActiveTitle": PURPLE,
        "TitleText": WHITE, "InfoWindow": BLACK, "InfoText": WHITE, "AppWorkSpace": BLACK, "Background": BLACK,
        "WindowFrame": WHITE, "Scrollbar": BLACK}}


def caption_font(build):
    """The font of the caption's buttons, out of its Debian package; it needn't be installed for that."""
    found = next(build.glob("fonts-wine/**/marlett.ttf"), None)
    if found is None:
        folder = build / "fonts-wine"
        folder.mkdir(parents=True, exist_ok=True)
        subprocess.run(["apt-get", "download", "-qq", "fonts-wine"], cwd=folder, check=True)
        subprocess.run(["dpkg-deb", "-x", str(next(folder.glob("*.deb"))), str(folder)], check=True)
        found = next(folder.glob("**/marlett.ttf"))
    return found


class LookedAt(Desktop):
    """A desktop with the caption's font and with some values of the user's registry."""

    def __init__(self, settings, dpi, registry):
        super().__init__(settings, SCREENS[dpi], dpi)
        self.registry = registry

    def _start_screen(self):
        shutil.copy(caption_font(self.settings.build), self.prefix.drive_c / "windows" / "Fonts")
        for key, values in self.registry.items():
            self.prefix.add_registry(key, values)
        super()._start_screen()


class Sheet(pictures.Album):
    """Saves the window in front alone, with the menus that are open."""

    def __init__(self, desktop, output, look):
        super().__init__(desktop, output)
        self.look = look

    def save(self, name):
        time.sleep(0.4)  # for the last painting
        shown = [window for window in self.desktop.windows() if window.class_name in (FORM, BOX, MENU)]
        menus = [window for window in shown if window.class_name == MENU]
        others = [window for window in shown if window.class_name != MENU]
        boxes = [window.rectangle for window in menus + others[:1]]
        if not boxes:
            return
        left, top = (max(min(box[side] for box in boxes), 0) for side in (0, 1))
        right, bottom = (max(box[side] for box in boxes) for side in (2, 3))
        self.saved += 1
        path = self.output / ("%d-%s-%02d-%s.png" % (self.desktop.dpi, self.look, self.saved, name))
        part = "%dx%d+%d+%d" % (right - left, bottom - top, left, top)
        self.desktop.prefix.run("import", "-silent", "-window", "root", "-crop", part, "+repage", str(path),
                                limit=30)
        print(path, flush=True)


def take_report(sheet, program):
    """The pages of the wizard."""
    desktop = sheet.desktop
    program.start_second("/FR", "C:\\Projects")
    wizard = desktop.wait_window(FORM, "Projects - Folder Report", 20)
    time.sleep(1)
    sheet.save("report")
    for page in ("data", "delimiter", "destination"):
        desktop.keys("alt+n")
        sheet.save("report-" + page)
    desktop.keys("Esc")
    desktop.wait_gone(wizard)


def take_about(sheet):
    desktop = sheet.desktop
    desktop.keys("alt+h", "a")
    about = desktop.wait_window(FORM, "About Burrowmark", 10)
    sheet.save("about")
    desktop.keys("Esc")
    desktop.wait_gone(about)


def take(settings, output, dpi, look, registry, menu_only):
    with LookedAt(settings, dpi, registry) as desktop:
        sheet = Sheet(desktop, output, look)
        program = Program(desktop)
        for group in ("AC0", "AC1"):
            program.set_option(group, True)
        sample.make_folders(desktop.prefix)
        program.write_tree(*sample.tree())
        tray = program.start()
        menu = program.open_menu(tray)
        pictures.take_menu(sheet, menu)
        desktop.keys("Esc")
        program.wait_no_menu()
        if not menu_only:
            pictures.take_options(sheet, tray, program)
            take_report(sheet, program)
            editor = Editor.open(program)
            pictures.take_editor(sheet, editor)
            pictures.take_dialogs(sheet, editor)
            pictures.take_tools(sheet, editor)
            take_about(sheet)
        program.end()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    Settings.add_options(parser)
    parser.add_argument("--output", type=Path, default=REPOSITORY / "build" / "contact-sheet")
    parser.add_argument("--dpi", type=int, nargs="+", choices=SCREENS, default=list(SCREENS))
    parser.add_argument("--looks", nargs="+", choices=("light", "dark", "contrast"),
                        default=["light", "dark", "contrast"])
    arguments = parser.parse_args()
    settings = Settings.of(arguments)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that one that is ended from outside cleans up
    arguments.output.mkdir(parents=True, exist_ok=True)
    for old in arguments.output.glob("*.png"):
        old.unlink()
    for dpi in arguments.dpi:
        for look, registry in (("light", {}), ("dark", DARK), ("contrast", CONTRAST)):
            if look in arguments.looks and (look != "contrast" or dpi == arguments.dpi[0]):
                take(settings, arguments.output, dpi, look, registry, look == "dark")
        taken = sorted(map(str, arguments.output.glob("%d-*.png" % dpi)))
        sheet = arguments.output / ("sheet-%d.png" % dpi)
        subprocess.run(["montage", "-label", "%t", *taken, "-geometry", "%dx+8+8" % (dpi * 5), "-tile", "6x",
                        "-background", "gray80", str(sheet)], check=True)
        print(sheet)


if __name__ == "__main__":
    main()
