#!/usr/bin/env python3
"""Checks how the source files of src/ lean on each other, and prints what is wrong: a room that includes one above it,
files that include each other in a circle, and what belongs to the system outside the folders that are its own."""

import pathlib
import re
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent / "src"
# From the top down: a room includes itself and those behind it.
ROOMS = ("app", "organize", "tools", "options", "dialogs", "projection", "config", "menu", "groups", "core", "ui",
         "platform")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
# What a line may say only in files below these folders.
RESERVED = (
    (re.compile(r"^\s*#\s*include\s+<windows\.h>", re.MULTILINE | re.IGNORECASE), "<windows.h>",
     ("platform/win32/", "app/")),
    (re.compile(r"^\s*#\s*(?:if|elif|ifdef|ifndef)\b.*\b_WIN32\b", re.MULTILINE), "_WIN32", ("platform/", "app/")),
)


def unit_of(name):
    """A source file and its header are one unit."""
    return name.rsplit(".", 1)[0]


def read_units(texts):
    """What each unit includes of the others."""
    units = {unit_of(name): set() for name in texts}
    for name, text in texts.items():
        included = {unit_of(path) for path in INCLUDE.findall(text)}
        units[unit_of(name)] |= included & units.keys() - {unit_of(name)}
    return units


def upward(units):
    for unit, included in units.items():
        for other in included:
            if ROOMS.index(room_of(other)) < ROOMS.index(room_of(unit)):
                yield f"{unit} includes {other}, which is above it"


def room_of(unit):
    return unit.split("/")[0]


def circles(units):
    """Takes away again and again what includes nothing that is left: only circles, and what leads to them, stay."""
    left = {unit: set(included) for unit, included in units.items()}
    while done := [unit for unit, included in left.items() if not included & left.keys()]:
        for unit in done:
            del left[unit]
    for unit, included in left.items():
        yield f"{unit} stands in or above a circle with {', '.join(sorted(included & left.keys()))}"


def misplaced(texts):
    for name, text in texts.items():
        for pattern, what, folders in RESERVED:
            if pattern.search(text) and not name.startswith(folders):
                yield f"{name} has {what}, which belongs into {' and '.join(folders)}"


def main():
    files = [path for path in sorted(SOURCE.rglob("*")) if path.suffix in (".h", ".cpp")]
    texts = {path.relative_to(SOURCE).as_posix(): path.read_text(encoding="utf-8") for path in files}
    units = read_units(texts)
    strangers = sorted({room_of(unit) for unit in units} - set(ROOMS))
    found = [f"{room} is no room that this check knows" for room in strangers]
    if not found:
        found = [*upward(units), *circles(units), *misplaced(texts)]
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
