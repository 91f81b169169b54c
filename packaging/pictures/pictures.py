#!/usr/bin/env python3
"""The picture of the set-up's last page, for the resolutions of screens.

    pictures.py render          draws tray.svg as tray-DPI.png (needs rsvg-convert; the files are committed)
    pictures.py bitmaps FOLDER  writes these as the bitmaps that the set-up shows
"""

import struct
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parents[1] / "assets/icons"))
from render import decode_png  # noqa: E402  (needs the path above)

RESOLUTIONS = (96, 120, 144, 192)
WIDTH = 450  # at 96 dots an inch


def picture(dpi):
    return HERE / ("tray-%d.png" % dpi)


def render():
    for dpi in RESOLUTIONS:
        subprocess.run(["rsvg-convert", "--width=%d" % (WIDTH * dpi // 96), "--keep-aspect-ratio",
                        "--output=" + str(picture(dpi)), str(HERE / "tray.svg")], check=True)


def bitmap(width, height, pixels):
    """24 bits a pixel, bottom row first, rows padded to whole words. `pixels` are RGBA without a see-through one."""
    padding = bytes(-width * 3 % 4)
    rows = []
    for y in reversed(range(height)):
        row = pixels[y * width * 4:(y + 1) * width * 4]
        rows.append(b"".join(bytes((row[x + 2], row[x + 1], row[x])) for x in range(0, len(row), 4)) + padding)
    data = b"".join(rows)
    return (struct.pack("<2sIII", b"BM", 54 + len(data), 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 0, 0, 0, 0) + data)


def bitmaps(folder):
    for dpi in RESOLUTIONS:
        (Path(folder) / ("tray-%d.bmp" % dpi)).write_bytes(bitmap(*decode_png(picture(dpi).read_bytes())))


if __name__ == "__main__":
    commands = {"render": render, "bitmaps": bitmaps}
    if len(sys.argv) < 2 or sys.argv[1] not in commands:
        sys.exit(__doc__)
    commands[sys.argv[1]](*sys.argv[2:])
