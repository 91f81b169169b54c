"""Writes and reads configuration files, on its own account: nothing here is shared with the program under test."""

from dataclasses import dataclass, field, fields
from typing import List, Optional

USER_SECTION = "[MIT_GROUP_USER:]"
SYSTEM_SECTION = "[MIT_PATHS_SYSTEM:]"
SECTION_END = "[END:]"
UTF8_MARKER = "[UTF-8:]"

GROUP, FOLDER, OPEN_ALL = "MIT_GROUP_GENERAL", "MIT_PATH", "MIT_OPENALL"
SINGLE_PANE, DOUBLE_PANE = "MIT_PATH_SHORTCUT", "MIT_PATH_EXPLORER"


@dataclass
class Record:
    """The 22 texts of an item, in the file's order."""
    position: str = "0"
    name: str = ""
    caption: str = ""
    flags: str = "1280"
    owner: str = "MIT_GROUP_USER"
    icon: str = "3"
    separator: str = "False"
    sub_menu: str = "False"
    item_type: str = FOLDER
    open_type: str = SINGLE_PANE
    drive_type: str = "3"
    description: str = ""
    folder: str = ""
    network: str = ""
    item_path: str = "\\"
    location: str = "\\\\Personal"
    remark: str = ""
    keyboard_code: str = ""
    user_description: str = ""
    created: str = "5|11|2003|14|7|9|"
    modified: str = ""
    accessed: str = ""

    def tokens(self):
        return [getattr(self, each.name) for each in fields(self)]


@dataclass
class Entry:
    """An item of the tree as a test tells it."""
    caption: str
    item_type: str = FOLDER
    folder: str = ""
    open_type: str = SINGLE_PANE
    children: List["Entry"] = field(default_factory=list)
    hot_key: Optional[int] = None


def group(caption, *children):
    return Entry(caption, GROUP, children=list(children))


def folder(caption, path, double_pane=False, hot_key=None):
    return Entry(caption, FOLDER, path, DOUBLE_PANE if double_pane else SINGLE_PANE, hot_key=hot_key)


def open_all():
    return Entry("Open-All", OPEN_ALL)


def _records_of(children, owner, path, location, counter):
    records = []
    for position, entry in enumerate(children):
        counter[0] += 1
        name = "N%d" % counter[0]
        is_group = entry.item_type == GROUP
        icon = {GROUP: "2", OPEN_ALL: "12"}.get(entry.item_type, "4" if entry.open_type == DOUBLE_PANE else "3")
        records.append(Record(
            position=str(position), name=name, caption=entry.caption, owner=owner, icon=icon,
            sub_menu=str(is_group), item_type=entry.item_type, open_type=entry.open_type, folder=entry.folder,
            item_path=path, location=location, keyboard_code=str(entry.hot_key or "")))
        if is_group:
            records += _records_of(
                entry.children, name, path + entry.caption + "\\", location + "\\" + entry.caption, counter)
    return records


def write(path, children, title=""):
    """A file with the personal group, these entries below it and a summary title."""
    personal = Record(name="MIT_GROUP_USER", caption="Personal", owner="-1", icon="2", sub_menu="True", item_type=GROUP,
                      description="Personal Group", location="\\\\")
    records = [personal] + _records_of(children, "MIT_GROUP_USER", "\\", "\\\\Personal", [0])
    tokens = [USER_SECTION]
    for record in records:
        tokens += record.tokens()
    tokens.append(SECTION_END)
    if title:
        tokens += ["[SUMMARY_TITLE:]", title, SECTION_END]
    with open(path, "wb") as file:
        file.write("".join(token + "\0" for token in tokens).encode("cp1252"))


class BadFile(Exception):
    """The bytes are no configuration file."""


def read(path) -> List[Record]:
    """The records of all sections. Raises BadFile where the form is broken."""
    with open(path, "rb") as file:
        data = file.read()
    if not data.endswith(b"\0"):
        raise BadFile("the last token isn't closed")
    utf8 = data.startswith(UTF8_MARKER.encode() + b"\0")
    tokens = data.decode("utf-8" if utf8 else "cp1252").split("\0")[:-1]
    records: List[Record] = []
    at = 1 if utf8 else 0
    while at < len(tokens):
        marker = tokens[at]
        at += 1
        if marker in (USER_SECTION, SYSTEM_SECTION):
            at = _read_records(tokens, at, records)
        elif marker.startswith("[SUMMARY_") and tokens[at + 1:at + 2] == [SECTION_END]:
            at += 2
        else:
            raise BadFile("token %d is no section: %r" % (at, marker))
    return records


def _read_records(tokens, at, records):
    size = len(fields(Record))
    while tokens[at:at + 1] != [SECTION_END]:
        record = tokens[at:at + size]
        if len(record) < size:
            raise BadFile("a record is cut off")
        records.append(Record(*record))
        at += size
    return at + 1


def captions(path, owner: Optional[str] = "MIT_GROUP_USER"):
    """The titles of what an owner holds, in the file's order."""
    return [record.caption for record in read(path) if record.owner == owner]
