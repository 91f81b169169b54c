#!/usr/bin/env python3
"""Render the SVG drawings in this directory into Windows .ico files.

Needs only the standard library and the command rsvg-convert (Debian package
librsvg2-bin).  Running it again without changing a drawing changes no byte.

    render.py           write the .ico files
    render.py --check   write nothing; fail if a file is not what it would write
"""

import argparse
import pathlib
import re
import struct
import subprocess
import sys
import zlib

HERE = pathlib.Path(__file__).resolve().parent

# The sizes that the files of a kind of icon hold.
# For menus, lists and the tray.
MENU = (16, 20, 24, 32, 48)
# For buttons of 16 and of 24 pixels, at 96, 120, 144 and 192 dots an inch.
TOOLBAR = (16, 20, 24, 30, 32, 36, 48)
# For rows and buttons of 16 pixels that are never disabled.
SMALL = (16, 20, 24, 32)
# burrowmark.ico, the program file's icon, and BWMK.ico, that of its documents.
PROGRAM = (16, 20, 24, 32, 40, 48, 64, 256)

# The kinds of NN-name.ico by the numbers NN.
KINDS = (
    (range(1, 21), MENU),
    (range(21, 30), TOOLBAR),
    (range(41, 50), SMALL),
)
# A toolbar icon's number and this make the number of its disabled variant.
OFF_STEP = 10

# The greys of a disabled variant that black and white turn into, and how opaque
# it is of 255.  The bitmap's mask needs more than half.
OFF_BLACK, OFF_WHITE = 84, 232
OFF_OPACITY = 160

# Every colour a drawing may use, see README.md.
PALETTE = {
    "#ffebad", "#ffcd4d", "#f7b22f", "#e68a17", "#c96a08", "#7a4504",
    "#ffffff", "#e6ecf3", "#b7c3d1", "#76879a", "#2f3b49",
    "#c3c6ff", "#7378f0", "#5054cc", "#25276f",
    "#b4f5cd", "#2fc470", "#18994f", "#07522a",
    "#5c3211", "#2b1406",
    "#ffc4bd", "#f0574d", "#c9302c", "#6e1210",
}

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
SOURCE_NAME = re.compile(r"(\d\d-[a-z]+?)(?:-(\d+))?\.svg")
BASE_GRID = 16


def find_sources():
    """Return {icon name: {grid size: path}}; a name without a size is 16."""
    icons = {}
    for path in sorted(HERE.glob("*.svg")):
        match = SOURCE_NAME.fullmatch(path.name)
        if not match:
            sys.exit(f"{path.name}: not named NN-name.svg or NN-name-SIZE.svg")
        grid = int(match[2] or BASE_GRID)
        text = path.read_text(encoding="utf-8")
        if f'viewBox="0 0 {grid} {grid}"' not in text:
            sys.exit(f"{path.name}: expected a {grid} by {grid} viewBox")
        strangers = set(re.findall(r"#[0-9a-fA-F]{6}\b", text)) - PALETTE
        if strangers:
            sys.exit(f"{path.name}: not in the palette: {sorted(strangers)}")
        icons.setdefault(match[1], {})[grid] = path
    return icons


def pick_source(drawings, size):
    """Pick the drawing with the largest grid that divides size evenly, so that
    every line of the grid falls between two pixels."""
    grids = [grid for grid in drawings if size % grid == 0]
    if not grids:
        sys.exit(f"{drawings[BASE_GRID].name}: no drawing fits {size} pixels")
    return drawings[max(grids)]


def render(path, size):
    """Return the drawing as size*size straight-alpha RGBA bytes, top row first."""
    png = subprocess.run(
        ["rsvg-convert", "--format=png", f"--width={size}", f"--height={size}",
         str(path)],
        check=True, stdout=subprocess.PIPE).stdout
    width, height, pixels = decode_png(png)
    if (width, height) != (size, size):
        sys.exit(f"{path.name}: rendered as {width} by {height}, not {size}")
    # Invisible pixels carry no colour.
    for at in range(0, len(pixels), 4):
        if pixels[at + 3] == 0:
            pixels[at:at + 4] = b"\0\0\0\0"
    return pixels


def disabled(pixels):
    """Return the picture in pale greys with little contrast, half transparent."""
    out = bytearray()
    for at in range(0, len(pixels), 4):
        red, green, blue, alpha = pixels[at:at + 4]
        light = (299 * red + 587 * green + 114 * blue) // 1000
        grey = OFF_BLACK + light * (OFF_WHITE - OFF_BLACK) // 255
        alpha = alpha * OFF_OPACITY // 255
        out += bytes((grey, grey, grey, alpha)) if alpha else b"\0\0\0\0"
    return out


def decode_png(data):
    """Decode an 8-bit RGB or RGBA PNG without interlacing into RGBA bytes."""
    if not data.startswith(PNG_SIGNATURE):
        raise ValueError("not a PNG")
    at, packed, header = len(PNG_SIGNATURE), b"", None
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8:at + 8 + length]
        at += length + 12
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
    width, height, depth, colour, _, _, interlace = header
    if depth != 8 or colour not in (2, 6) or interlace:
        raise ValueError("unexpected kind of PNG")
    bpp = 4 if colour == 6 else 3
    stride = width * bpp
    raw = zlib.decompress(packed)
    above = bytearray(stride)
    out = bytearray()
    for y in range(height):
        start = y * (stride + 1)
        kind = raw[start]
        row = bytearray(raw[start + 1:start + 1 + stride])
        for x in range(stride):
            left = row[x - bpp] if x >= bpp else 0
            up = above[x]
            corner = above[x - bpp] if x >= bpp else 0
            if kind == 1:
                row[x] = (row[x] + left) & 255
            elif kind == 2:
                row[x] = (row[x] + up) & 255
            elif kind == 3:
                row[x] = (row[x] + (left + up) // 2) & 255
            elif kind == 4:
                guess = left + up - corner
                near = min((abs(guess - left), 0, left),
                           (abs(guess - up), 1, up),
                           (abs(guess - corner), 2, corner))[2]
                row[x] = (row[x] + near) & 255
        above = row
        if bpp == 4:
            out += row
        else:
            for x in range(0, stride, 3):
                out += row[x:x + 3] + b"\xff"
    return width, height, out


def png_image(size, pixels):
    """Encode RGBA pixels as PNG with nothing in it but the picture."""
    def chunk(kind, body):
        return (struct.pack(">I", len(body)) + kind + body
                + struct.pack(">I", zlib.crc32(kind + body)))

    rows = b"".join(b"\0" + bytes(pixels[y * size * 4:(y + 1) * size * 4])
                    for y in range(size))
    return (PNG_SIGNATURE
            + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows, 9))
            + chunk(b"IEND", b""))


def bitmap_image(size, pixels):
    """Encode RGBA pixels as a bottom-up 32-bit BGRA bitmap and its AND mask.

    The mask is 1 where the screen shows through: where the picture is less
    than half opaque.  Its rows are padded to whole 32-bit words."""
    colour, mask = bytearray(), bytearray()
    mask_stride = (size + 31) // 32 * 4
    for y in reversed(range(size)):
        bits = bytearray(mask_stride)
        for x in range(size):
            at = (y * size + x) * 4
            red, green, blue, alpha = pixels[at:at + 4]
            colour += bytes((blue, green, red, alpha))
            if alpha < 128:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    # The height counts the picture and the mask.
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0,
                         len(colour) + len(mask), 0, 0, 0, 0)
    return header + bytes(colour) + bytes(mask)


def render_all(drawings, sizes):
    """Return {size: pixels}."""
    return {size: render(pick_source(drawings, size), size) for size in sizes}


def icon_file(pictures):
    """Return the bytes of an .ico file with these {size: pixels}: each as PNG or
    as bitmap, whichever is smaller."""
    images = [(size, min(png_image(size, pixels), bitmap_image(size, pixels), key=len))
              for size, pixels in pictures.items()]
    offset = 6 + 16 * len(images)
    directory = struct.pack("<HHH", 0, 1, len(images))
    for size, data in images:
        # 256 is written as 0.
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0,
                                 1, 32, len(data), offset)
        offset += len(data)
    return directory + b"".join(data for _, data in images)


def files_of(name, drawings):
    """Return {file name: bytes} of what is made from an icon's drawings."""
    number, title = int(name[:2]), name[3:]
    kind = next((kind for numbers, kind in KINDS if number in numbers), None)
    if kind is None:
        sys.exit(f"{name}: no kind of icon has this number")
    pictures = render_all(drawings, kind)
    files = {f"{name}.ico": icon_file(pictures)}
    if kind is TOOLBAR:
        off = {size: disabled(pixels) for size, pixels in pictures.items()}
        files[f"{number + OFF_STEP}-{title}-off.ico"] = icon_file(off)
    return files


def main():
    parser = argparse.ArgumentParser(description="Render the icons.")
    parser.add_argument("--check", action="store_true",
                        help="write nothing, fail if a file is out of date")
    check = parser.parse_args().check

    icons = find_sources()
    files = {"burrowmark.ico": icon_file(render_all(icons["01-burrowmark"], PROGRAM)),
             "BWMK.ico": icon_file(render_all(icons.pop("20-document"), PROGRAM))}
    for name, drawings in icons.items():
        files.update(files_of(name, drawings))

    stale = 0
    for name, data in sorted(files.items()):
        path = HERE / name
        if path.exists() and path.read_bytes() == data:
            continue
        stale += 1
        if check:
            print(f"{name}: out of date")
        else:
            path.write_bytes(data)
            print(f"{name}: written")
    return 1 if check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
