#!/usr/bin/env python3
"""Checks the help: the made file holds its sources as they are, and all that leads somewhere gets there."""

import subprocess
import sys
import tempfile
from html.parser import HTMLParser
from pathlib import Path

FOLDER = Path(__file__).resolve().parents[1] / "assets" / "help"
MADE = FOLDER / "Burrowmark.chm"
PROJECT = FOLDER / "Burrowmark.hhp"
CONTENTS, INDEX = FOLDER / "contents.hhc", FOLDER / "index.hhk"
OWN_TABLES = ("#", "$", "_#_")  # what the maker or the reader adds


class Page(HTMLParser):
    """What a file refers to, and what it calls itself."""

    def __init__(self, path):
        super().__init__()
        self.links, self.pictures, self.anchors, self.entries = [], [], set(), []
        self.title, self._in_title = "", False
        self.feed(path.read_text("ascii"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self._in_title = tag == "title"
        if "id" in values:
            self.anchors.add(values["id"])
        if tag in ("a", "link") and "href" in values:
            self.links.append(values["href"])
        elif tag == "img":
            self.pictures.append((values["src"], values.get("alt", "")))
        elif tag == "param" and values["name"] == "Name":
            self.entries.append([values["value"], None])
        elif tag == "param":
            self.entries[-1][1] = values["value"]

    def handle_endtag(self, _):
        self._in_title = False

    def handle_data(self, data):
        if self._in_title:
            self.title += data


def faults_of_file(sources):
    """The made file, as another reader than its maker takes it apart."""
    with tempfile.TemporaryDirectory() as folder:
        if subprocess.run(["extract_chmLib", MADE, folder], stdout=subprocess.DEVNULL).returncode != 0:
            return ["%s can't be read" % MADE.name]
        held = {str(path.relative_to(folder)): path.read_bytes() for path in Path(folder).rglob("*") if path.is_file()}
    held = {name: content for name, content in held.items() if not name.startswith(OWN_TABLES)}
    faults = ["%s is missing in %s" % (name, MADE.name) for name in sources if name not in held]
    faults += ["%s in %s is another one" % (name, MADE.name) for name in held if sources.get(name) != held[name]]
    return faults


def faults_of_pages(pages, sources):
    faults, shown = [], set()
    for name, page in pages.items():
        for link in page.links:
            target, _, anchor = link.partition("#")
            if (target or name) not in sources or (anchor and anchor not in pages[target or name].anchors):
                faults.append("%s leads to %s, which isn't there" % (name, link))
        for picture, text in page.pictures:
            shown.add(picture)
            if picture not in sources or not text:
                faults.append("%s shows %s: no such picture, or no text for it" % (name, picture))
    faults += ["no page shows " + name for name in sources if name.endswith(".png") and name not in shown]
    return faults


def faults_of_lists(pages):
    contents, index = Page(CONTENTS).entries, Page(INDEX).entries
    listed = {page: name for name, page in contents if page}
    faults = ["%s isn't in the contents under its title" % name for name, page in pages.items()
              if listed.get(name) != page.title]
    faults += ["%s leads to %s, which isn't there" % (name, page) for name, page in contents + index
               if page and page not in pages]
    files = PROJECT.read_text("ascii").partition("[FILES]")[2].split()
    return faults + ["%s: other pages than there are" % PROJECT.name] * (sorted(files) != sorted(pages))


def main():
    sources = {path.name: path.read_bytes() for path in FOLDER.iterdir() if path not in (MADE, PROJECT)}
    pages = {name: Page(FOLDER / name) for name in sorted(sources) if name.endswith(".html")}
    faults = faults_of_pages(pages, sources) + faults_of_lists(pages)
    stale = faults_of_file(sources)
    for fault in faults + stale:
        print("help: " + fault)
    if stale:
        print("help: tools/make_help.sh makes the file anew")
    sys.exit(1 if faults or stale else 0)


if __name__ == "__main__":
    main()
