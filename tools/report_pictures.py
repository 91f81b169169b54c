#!/usr/bin/env python3
"""How a folder report looks in a browser: report_pictures.py PAGE FOLDER

PAGE is a report that the program wrote, its stylesheet beside it. Writes pictures of it into FOLDER: light and dark, at
1,200 and 400 pixels, and what comes out of a printer. Needs chromium and pdftoppm. Looked at by a person; nothing is
asserted. First it tells what tidy, if it is there, finds in the page.
"""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

WIDTHS = (1200, 400)
# The browser's own words for a reader's preference.
SCHEMES = {"light": 1, "dark": 0}
NARROWEST = 500  # a window of the browser; a narrower page is shown in a frame


def browse(home, *words):
    subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                    "--user-data-dir=%s" % home, *words], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=120)


def framed(page, width, home):
    """A page that shows `page` as narrow as told."""
    frame = Path(home) / ("frame%d.html" % width)
    frame.write_text("<!doctype html><meta name='color-scheme' content='light dark'>"
                     "<body style='margin:0'><iframe src='%s' style='border:0;width:%dpx;height:900px'></iframe>"
                     % (page.as_uri(), width))
    return frame


def tell_of_markup(page):
    if shutil.which("tidy") is None:
        return
    found = subprocess.run(["tidy", "-quiet", "-errors", str(page)], capture_output=True, text=True, check=False)
    kinds = {}
    for line in found.stderr.splitlines():
        kind = line.split(" - ", 1)[-1]
        kinds[kind] = kinds.get(kind, 0) + 1
    for kind, count in sorted(kinds.items()):
        print("%6d  %s" % (count, kind))


def main():
    page, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    tell_of_markup(page)
    with tempfile.TemporaryDirectory() as home:
        for width in WIDTHS:
            shown = page if width >= NARROWEST else framed(page, width, home)
            for scheme, number in SCHEMES.items():
                browse(home, "--allow-file-access-from-files", "--window-size=%d,900" % width,
                       "--blink-settings=preferredColorScheme=%d" % number,
                       "--screenshot=%s" % (folder / ("%s_%d.png" % (scheme, width))), shown.as_uri())
        pdf = Path(home) / "print.pdf"
        browse(home, "--no-pdf-header-footer", "--print-to-pdf=%s" % pdf, page.as_uri())
        subprocess.run(["pdftoppm", "-r", "70", "-png", str(pdf), str(folder / "print")], check=True)


if __name__ == "__main__":
    main()
