#!/usr/bin/env python3
"""Shows the program on a virtual screen and saves pictures of its menu: pictures.py [--exe EXE] [--driver DRIVER]
[--build FOLDER] [--output FOLDER]

The tree is a sample with folders that exist; the drives of the virtual machine bring the icons that no file can.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

import bwmk  # noqa: E402  (needs the path above)
from burrowmark import GROUP, Program  # noqa: E402
from harness import MENU_CLASS, Desktop, NotInTime, wait_for  # noqa: E402
from picture_options import parser_for, settings_of  # noqa: E402

# Letter and kind of the drives beside C, as the system's own settings call them.
DRIVES = (("a", "floppy"), ("d", "hd"), ("e", "cdrom"), ("n", "network"), ("u", "floppy"))
PROJECTS = "C:\\Projects"
SAMPLE_FOLDERS = (PROJECTS + "\\Garden", PROJECTS + "\\House", PROJECTS + "\\Boat", "C:\\Letters", "C:\\Photos")


def sample_tree():
    return [
        bwmk.group("Projects",
                   bwmk.open_all(),
                   bwmk.folder("Garden", PROJECTS + "\\Garden"),
                   bwmk.folder("House", PROJECTS + "\\House", True),
                   bwmk.group("Finished", bwmk.folder("Boat", PROJECTS + "\\Boat"))),
        bwmk.folder("Letters", "C:\\Letters"),
        bwmk.folder("Photos", "C:\\Photos", True),
        bwmk.folder("A title that is longer than the fifty letters that fit into the menu", "C:\\Letters"),
    ]


def with_drives(desktop):
    """Links folders as drives before the desktop starts."""
    for letter, kind in DRIVES:
        folder = desktop.prefix.folder / ("drive_" + letter)
        folder.mkdir()
        (desktop.prefix.path / "dosdevices" / (letter + ":")).symlink_to(folder)
        desktop.prefix.add_registry("Software\\Wine\\Drives", {letter + ":": kind}, machine=True)


class Album:
    """Saves numbered pictures of the levels of the menu."""

    def __init__(self, program, output):
        self.program = program
        self.output = output
        self.saved = 0

    def save(self, name):
        self.saved += 1
        path = self.output / ("%02d-%s.png" % (self.saved, name))
        self.program.desktop.picture().save_png(path)
        print(path)

    def take(self, menu, name):
        """This level, then each group's level below it."""
        entries = wait_for(menu.entries, "entries of the menu")
        self.save(name)
        groups = [entry for entry in entries if entry.icon == GROUP]
        for number, entry in enumerate(groups, 1):
            try:
                level = menu.open_level(entry)
            except NotInTime:
                print("%s: group %d opens no level" % (name, number))
                continue
            self.take(level, "%s-%d" % (name, number))
            self.program.desktop.keys("Esc")
            self.program.desktop.wait_gone(level.window)


def main():
    arguments = parser_for(__doc__).parse_args()
    settings = settings_of(arguments)
    for old in arguments.output.glob("[0-9][0-9]-*.png"):
        old.unlink()

    with Desktop(settings, prepare=with_drives) as desktop:
        program = Program(desktop, settings.exe)
        program.set_option("AC0", True)
        program.set_option("AC1", True)
        program.make_folders(*SAMPLE_FOLDERS)
        program.write_tree(*sample_tree())
        tray = program.start()
        album = Album(program, arguments.output)
        album.save("tray")
        album.take(program.open_menu(tray), "menu")
        while desktop.windows(MENU_CLASS):
            desktop.keys("Esc")
        program.end()
    print("%d pictures" % album.saved)
    return 0


if __name__ == "__main__":
    sys.exit(main())
