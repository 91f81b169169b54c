#!/usr/bin/env python3
"""Shows the editor on virtual screens and saves pictures of it: editor_pictures.py [--exe EXE] [--driver DRIVER]
[--build FOLDER] [--output FOLDER] [--dpi 96 144]
"""

import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

import bwmk  # noqa: E402  (needs the path above)
from burrowmark import KEY, Program  # noqa: E402
from editor import Editor  # noqa: E402
from harness import Desktop  # noqa: E402
from picture_options import parser_for, settings_of  # noqa: E402

LAYOUT = KEY + "\\frmOrg"
SCREENS = {96: (1280, 900), 144: (1920, 1350)}
GROUPS = ("Clients", "Finance", "Garden", "House", "Music", "Photos")
TOPICS = ("Archive", "Contracts", "Drafts", "Letters", "Plans")
VIEWS = (("large-icons", "g"), ("small-icons", "m"), ("list", "l"), ("details", "d"), ("grid", "i"))


def tree():
    """Forty items: six groups with five shortcuts each, and four shortcuts beside them."""
    groups = [bwmk.group(name, *[bwmk.folder(topic, "C:\\%s\\%s" % (name, topic), number % 2 == 1)
                                 for number, topic in enumerate(TOPICS)]) for name in GROUPS]
    return groups + [bwmk.open_all(), bwmk.folder("Downloads", "C:\\Downloads"),
                     bwmk.folder("Projects", "C:\\Projects", True, hot_key=53),
                     bwmk.folder("Shared with everybody in the office", "\\\\server\\share\\Everybody")]


class Album:
    def __init__(self, desktop, output):
        self.desktop, self.output, self.saved = desktop, output, 0

    def save(self, name):
        time.sleep(0.4)  # for the last painting
        self.saved += 1
        path = self.output / ("editor-%d-%02d-%s.png" % (self.desktop.dpi, self.saved, name))
        self.desktop.picture().save_png(path)
        print(path)


def take_views(desktop, editor, album):
    for name, letter in VIEWS:
        desktop.keys("alt+v", letter)
        album.save(name)
    desktop.keys("alt+v", "d")


def take_menus(desktop, editor, album):
    for number, letter in enumerate("fevth"):
        desktop.keys("alt+" + letter)
        album.save("menu-%d" % number)
        desktop.keys("Esc", "Esc")
    editor.click_row("Projects", "right")
    album.save("popup-of-a-shortcut")
    desktop.keys("Esc")
    editor.click_node("Personal", "right")
    album.save("popup-of-the-personal-group")
    desktop.keys("Esc")
    desktop.keys("alt+v", "t", "l")
    album.save("small-buttons")
    desktop.keys("alt+v", "t", "t")
    album.save("small-buttons-without-text")
    desktop.keys("alt+v", "t", "l")
    desktop.keys("alt+v", "t", "t")


def take_sizes(desktop, editor, album):
    editor.click_node("Drives")
    album.save("drives")
    editor.click_node("Organized Folders")
    album.save("root")
    editor.click_node("Personal")
    desktop.keys("alt+Space", "x")
    album.save("maximised")
    desktop.keys("alt+Space", "r")


def take_all(settings, output, dpi):
    with Desktop(settings, SCREENS[dpi], dpi) as desktop:
        program = Program(desktop, settings.exe)
        program.set_option("AC0", True)
        program.set_option("AC1", True)
        program.write_tree(*tree())
        # The drives come with the first opening of the menu.
        program.open_menu(program.start())
        desktop.keys("Esc")
        program.wait_no_menu()
        editor = Editor.open(program)
        album = Album(desktop, output)
        album.save("start")
        editor.click_row("Projects")
        album.save("a-row")
        take_views(desktop, editor, album)
        left, top, _, _ = editor.child("SysHeader32").rectangle
        desktop.click((left + 40, top + 8))
        album.save("sorted")
        take_menus(desktop, editor, album)
        take_sizes(desktop, editor, album)
        editor.close()
        editor.wait_closed()
        for name, length in (("W", 5200), ("H", 4800)):
            desktop.driver("write-value", LAYOUT, name, length)
        Editor.open(program)
        album.save("narrow")
        program.end()
        return album.saved


def main():
    parser = parser_for(__doc__)
    parser.add_argument("--dpi", type=int, nargs="+", default=sorted(SCREENS))
    arguments = parser.parse_args()
    settings = settings_of(arguments)
    saved = sum(take_all(settings, arguments.output, dpi) for dpi in arguments.dpi)
    print("%d pictures" % saved)
    return 0


if __name__ == "__main__":
    sys.exit(main())
