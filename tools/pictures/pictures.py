#!/usr/bin/env python3
"""Shows the program on virtual screens and saves pictures of its menu and of the editor.

The tree is a sample with folders that exist; the drives of the virtual machine bring the icons that no file can.
"""

import argparse
import signal
import sys
import time
from pathlib import Path

import sample  # first: it finds the modules below
from burrowmark import KEY, Program
from editor import FORM, HEADER, LIST, TREE, Editor, ListWindow
from harness import REPOSITORY, Desktop, Settings, wait_for

SCREENS = {96: (1280, 900), 144: (1920, 1350)}
VIEWS = (("large-icons", "g"), ("small-icons", "m"), ("list", "l"), ("grid", "i"), ("details", "d"))


class Album:
    """Saves numbered pictures of one desktop."""

    def __init__(self, desktop, output):
        self.desktop, self.output, self.saved = desktop, output, 0

    def save(self, name):
        time.sleep(0.4)  # for the last painting
        self.saved += 1
        path = self.output / ("%d-%02d-%s.png" % (self.desktop.dpi, self.saved, name))
        self.desktop.save_picture(path)
        print(path)


def take_menu(album, menu, name="menu"):
    """This level, then each group's level below it."""
    entries = wait_for(menu.entries, "entries of the menu")
    album.save(name)
    for entry in entries:
        if entry.group:
            level = menu.open_level(entry)
            take_menu(album, level, name + "-" + entry.text.lower().replace(" ", "-"))
            album.desktop.keys("Esc")
            album.desktop.wait_gone(level.window)


def take_editor(album, editor):
    def press(name, *keys):
        album.desktop.keys(*keys)
        album.save(name)

    def click(name, click, text, *button):
        click(text, *button)
        album.save(name)

    album.save("editor")
    click("a-row", editor.click_row, "Projects")
    for name, letter in VIEWS:
        press(name, "alt+v", letter)
    left, top, _, bottom = editor.child(HEADER).rectangle
    click("sorted", album.desktop.click, (left + 40, (top + bottom) // 2))
    for letter in "fevth":
        press("menu-" + letter, "alt+" + letter)
        album.desktop.keys("Esc", "Esc")
    click("popup-of-a-shortcut", editor.click_row, "Projects", "right")
    album.desktop.keys("Esc")
    click("popup-of-the-personal-group", editor.click_node, "Personal", "right")
    album.desktop.keys("Esc")
    press("small-buttons", "alt+v", "t", "l")
    press("small-buttons-without-text", "alt+v", "t", "t")
    album.desktop.keys("alt+v", "t", "l")
    album.desktop.keys("alt+v", "t", "t")
    click("drives", editor.click_node, "Drives")
    click("root", editor.click_node, "Organized Folders")
    press("maximised", "alt+Space", "x")
    album.desktop.keys("alt+Space", "r")


def take_dialogs(album, editor):
    """What the commands on items open, from the keyboard."""
    desktop = album.desktop

    def show(name, title, *keys):
        desktop.keys(*keys)
        dialog = desktop.wait_window(FORM, title, 10)
        album.save(name)
        return dialog

    editor.click_node("Personal")
    desktop.wait_focus(editor.window, TREE)
    item = show("new-item", "New Item", "ctrl+n")
    picker = show("browse", "Browse for Target Location", "alt+b")
    folder = show("new-folder", "New Folder", "alt+n")
    for dialog in (folder, picker, item):
        desktop.keys("Esc")
        desktop.wait_gone(dialog)
    editor.click_row("Projects")
    desktop.wait_focus(editor.window, LIST)
    properties = show("properties", "Properties", "alt+Return")
    change = show("change", "Change Shortcut Projects", "alt+h")
    for dialog in (change, properties):
        desktop.keys("Esc")
        desktop.wait_gone(dialog)
    desktop.keys("ctrl+x")
    album.save("cut")
    desktop.keys("ctrl+c")
    editor.click_node("Finance")
    desktop.wait_focus(editor.window, TREE)
    desktop.keys("ctrl+v")
    clash = show("taken-title", "Replace or Rename Existing Item", "ctrl+v")
    desktop.keys("Esc")
    desktop.wait_gone(clash)
    information = show("information", "Information", "alt+f", "i")
    for name in ("summary", "statistics"):
        desktop.keys("Right")
        album.save("information-" + name)
    desktop.keys("Esc")
    desktop.wait_gone(information)
    for name, key in (("Personal", "p"), ("System Folders", "s")):
        wizard = show("restore-" + key, "Restore %s Group Wizard" % name, "alt+t", "t", key)
        desktop.keys("Esc")
        desktop.wait_gone(wizard)
    tip = show("tip", "Tip of the Day", "alt+h", "t")
    desktop.keys("Esc")
    desktop.wait_gone(tip)


def take_tools(album, editor):
    """The windows of the Tools menu."""
    desktop = album.desktop

    def show(name, title, letter):
        desktop.keys("alt+t", letter)
        window = ListWindow(desktop, title, 10)
        time.sleep(1)  # for what comes later
        album.save(name)
        return window

    def close(window):
        desktop.keys("Esc")
        desktop.wait_gone(window.window)

    shown = show("shortcuts-list", "Folder Shortcuts List", "v")
    for name in ("downwards", "upwards"):
        shown.click_first_header()
        album.save("shortcuts-list-" + name)
    shown.click_row(shown.titles()[0], "right")
    album.save("shortcuts-list-popup")
    desktop.keys("Esc")
    close(shown)
    drives = show("network-drives", "Network Drives", "n")
    desktop.keys("ctrl+m")
    time.sleep(1)
    album.save("network-drives-map")
    close(drives)
    close(show("personal-network-info", "Personal Network Info", "p"))


def take_options(album, tray, program):
    """Its tabs; the longest of the descriptions, so that one that is cut off shows."""
    desktop = album.desktop
    menu = program.open_menu(tray)
    menu.click(next(entry for entry in wait_for(menu.entries, "entries of the menu") if entry.text == "Options"))
    dialog = desktop.wait_window(FORM, "Options", 10)
    for tab, keys in (("general", ()), ("appearance", ("End", "Up")), ("advanced", ("Home", "Down"))):
        album.save("options-" + tab)
        if tab == "general":
            desktop.keys("Tab")
            desktop.wait_focus(dialog, TREE)
        desktop.keys(*(keys or ("Home", "End", "Home")))
        album.save("options-%s-described" % tab)
        desktop.keys("ctrl+Tab")
    desktop.keys("Esc")
    desktop.wait_gone(dialog)


def take_all(settings, output, dpi):
    with Desktop(settings, SCREENS[dpi], dpi) as desktop:
        album = Album(desktop, output)
        program = Program(desktop)
        for group in ("AC0", "AC1"):
            program.set_option(group, True)
        sample.make_folders(desktop.prefix)
        program.write_tree(*sample.tree())
        tray = program.start()
        album.save("tray")
        take_menu(album, program.open_menu(tray))
        desktop.keys("Esc")
        program.wait_no_menu()
        take_options(album, tray, program)
        editor = Editor.open(program)
        take_editor(album, editor)
        take_dialogs(album, editor)
        take_tools(album, editor)
        editor.close_and_wait()
        for name, length in (("W", 5200), ("H", 4800)):
            desktop.driver("write-value", KEY + "\\frmOrg", name, length)
        Editor.open(program)
        album.save("narrow")
        program.end()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    Settings.add_options(parser)
    parser.add_argument("--output", type=Path, default=REPOSITORY / "build" / "pictures")
    parser.add_argument("--dpi", type=int, nargs="+", choices=SCREENS, default=[96])
    arguments = parser.parse_args()
    settings = Settings.of(arguments)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that one that is ended from outside cleans up
    arguments.output.mkdir(parents=True, exist_ok=True)
    for old in arguments.output.glob("*.png"):
        old.unlink()
    for dpi in arguments.dpi:
        take_all(settings, arguments.output, dpi)


if __name__ == "__main__":
    main()
