#!/usr/bin/env python3
"""Render filecopy.avi: sheets of paper that fly from one folder to another.

Needs only the standard library and the command rsvg-convert (Debian package
librsvg2-bin).  Running it again changes no byte.

    render.py           write ../filecopy.avi
    render.py --check   write nothing; fail if it is not what would be written
    render.py --sheet F write all pictures, one below the other, as PNG file F

The film is 8 bits a pixel, run-length coded, without sound: the only kind that
the system's animation control plays everywhere.  The first pixel's colour is
the one that lets the window through.
"""

import argparse
import math
import pathlib
import struct
import subprocess
import sys
import zlib

OUTPUT = pathlib.Path(__file__).resolve().parent.parent / "filecopy.avi"
WIDTH, HEIGHT = 272, 60
FRAMES = 28
FRAMES_PER_SECOND = 14
BACKGROUND = (240, 240, 240)
PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"

# A folder of 44 by 34 with its back, what stands in it, and its front.  The
# colours are those of the icons.
FOLDER_BACK = """
  <path d="M1.5 31.5v-28q0-2 2-2h11l4 4h20q2 0 2 2v24z" fill="#e68a17" stroke="#7a4504"/>
"""
FOLDER_FRONT = """
  <path d="M1.5 31.5v-17q0-2 2-2h37q2 0 2 2v17q0 2-2 2h-37q-2 0-2-2z" fill="#f7b22f" stroke="#7a4504"/>
  <path d="M3 13.5h38" stroke="#ffebad"/>
  <path d="M3 32.5h38" stroke="#c96a08"/>
"""
# A sheet of 22 by 28 around 0, 0 with a folded corner.
SHEET = """
  <path d="M-10.5-13.5h14l7 7v20h-21z" fill="#ffffff" stroke="#2f3b49"/>
  <path d="M3.5-13.5v7h7z" fill="#e6ecf3" stroke="#2f3b49" stroke-linejoin="round"/>
  <path d="M-7-5.5h7M-7-1.5h14M-7 2.5h14M-7 6.5h10" stroke="#7378f0"/>
"""
LEFT_X, RIGHT_X, FOLDER_Y = 14, WIDTH - 14 - 44, 24
SLOT = 22  # from a folder's left edge to its middle


def ease(t):
    """From 0 to 1, slow at both ends."""
    return t * t * (3 - 2 * t)


def sheet_at(t):
    """Place and turn of the sheet at a time from 0 to 1: out, over, in."""
    start, end = LEFT_X + SLOT, RIGHT_X + SLOT
    low, high = FOLDER_Y + 19, 22
    if t < 0.2:
        return start, low + (high - low) * ease(t / 0.2), 0.0
    if t > 0.8:
        return end, high + (low - high) * ease((t - 0.8) / 0.2), 0.0
    along = ease((t - 0.2) / 0.6)
    hop = math.sin(math.pi * along)
    return start + (end - start) * along, high - 3 * hop, 14 * math.sin(2 * math.pi * along)


def burrow(x):
    """The heap of earth that a folder stands on."""
    return (f'<path d="M{x - 8} 59.5q6-5 14-4.5h32q8-.5 14 4.5z" fill="#5c3211" stroke="#2b1406"/>')


def frame_svg(number):
    x, y, turn = sheet_at(number / FRAMES)
    folders = [f'<g transform="translate({left} {FOLDER_Y})">%s</g>' for left in (LEFT_X, RIGHT_X)]
    parts = [burrow(LEFT_X), burrow(RIGHT_X)]
    parts += [folder % FOLDER_BACK for folder in folders]
    parts.append(f'<g transform="translate({x:.2f} {y:.2f}) rotate({turn:.2f})">{SHEET}</g>')
    parts += [folder % FOLDER_FRONT for folder in folders]
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" fill="none">'
            f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#{bytes(BACKGROUND).hex()}"/>{"".join(parts)}</svg>')


def rows_of(svg):
    """Render a drawing into rows of (red, green, blue), top row first."""
    png = subprocess.run(["rsvg-convert", "--format=png"], input=svg.encode(), check=True,
                         stdout=subprocess.PIPE).stdout
    return decode_png(png)


def decode_png(data):
    """Decode an 8-bit RGB or RGBA PNG without interlacing and transparency."""
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
    above, rows = bytearray(stride), []
    for y in range(height):
        start = y * (stride + 1)
        row = unfilter(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above, bpp)
        rows.append([tuple(row[x:x + 3]) for x in range(0, stride, bpp)])
        above = row
    return rows


def unfilter(kind, row, above, bpp):
    for x in range(len(row)):
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
            near = min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]
            row[x] = (row[x] + near) & 255
    return row


def distance(one, other):
    return sum((a - b) ** 2 for a, b in zip(one, other))


def choose_palette(frames):
    """The background first, then the colours most in use: shades of edges that
    come last take the nearest of those."""
    counts = {}
    for rows in frames:
        for row in rows:
            for colour in row:
                counts[colour] = counts.get(colour, 0) + 1
    counts.pop(BACKGROUND)
    most = sorted(counts, key=lambda colour: (-counts[colour], colour))[:255]
    return [BACKGROUND] + most


def indexed(rows, palette, known):
    def index(colour):
        if colour not in known:
            known[colour] = min(range(1, len(palette)), key=lambda i: (distance(palette[i], colour), i))
        return known[colour]

    return [bytes(index(colour) for colour in row) for row in rows]


def runs(row):
    """Split a row into (count, index)."""
    result, start = [], 0
    for x in range(1, len(row) + 1):
        if x == len(row) or row[x] != row[start] or x - start == 255:
            result.append((x - start, row[start]))
            start = x
    return result


def encode_literal(values):
    """At least three values that differ, padded to whole words."""
    return bytes((0, len(values))) + values + b"\0" * (len(values) % 2)


def encode_row(row):
    out, loose = bytearray(), bytearray()

    def flush():
        if len(loose) >= 3:
            out.extend(encode_literal(bytes(loose)))
        else:
            for value in loose:
                out.extend((1, value))
        loose.clear()

    for count, value in runs(row):
        if count < 3 and len(loose) + count <= 254:
            loose.extend(bytes((value,)) * count)
            continue
        flush()
        out.extend((count, value))
    flush()
    return bytes(out)


def encode(rows):
    """A whole picture, bottom row first."""
    return b"\0\0".join(encode_row(row) for row in reversed(rows)) + b"\0\1"


def chunk(kind, body):
    return kind + struct.pack("<I", len(body)) + body + b"\0" * (len(body) % 2)


def group(kind, *parts):
    return chunk(b"LIST", kind + b"".join(parts))


def avi(pictures, palette):
    microseconds = 1000000 // FRAMES_PER_SECOND
    largest = max(len(picture) for picture in pictures)
    main = struct.pack("<14I", microseconds, largest * FRAMES_PER_SECOND, 0, 0x10, len(pictures), 0, 1, largest,
                       WIDTH, HEIGHT, 0, 0, 0, 0)
    stream = struct.pack("<4s4sIHHIIIIIIII4H", b"vids", b"RLE ", 0, 0, 0, 0, 1, FRAMES_PER_SECOND, 0, len(pictures),
                         largest, 0xFFFFFFFF, 0, 0, 0, WIDTH, HEIGHT)
    colours = b"".join(bytes((blue, green, red, 0)) for red, green, blue in palette)
    picture = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 1, WIDTH * HEIGHT, 0, 0, len(palette), 0) + colours
    headers = group(b"hdrl", chunk(b"avih", main), group(b"strl", chunk(b"strh", stream), chunk(b"strf", picture)))
    movie, index, at = [], [], 4
    for body in pictures:
        movie.append(chunk(b"00dc", body))
        index.append(struct.pack("<4sIII", b"00dc", 0x10, at, len(body)))
        at += len(movie[-1])
    return chunk(b"RIFF", b"AVI " + headers + group(b"movi", *movie) + chunk(b"idx1", b"".join(index)))


def contact_sheet(frames):
    def part(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    lines = b"".join(b"\0" + b"".join(bytes(colour) for colour in row) for rows in frames for row in rows)
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT * len(frames), 8, 2, 0, 0, 0)
    return PNG_SIGNATURE + part(b"IHDR", header) + part(b"IDAT", zlib.compress(lines, 9)) + part(b"IEND", b"")


def main():
    parser = argparse.ArgumentParser(description="Render the film of the progress window.")
    parser.add_argument("--check", action="store_true", help="write nothing, fail if the file is out of date")
    parser.add_argument("--sheet", metavar="FILE", help="write all pictures as one PNG instead")
    options = parser.parse_args()

    frames = [rows_of(frame_svg(number)) for number in range(FRAMES)]
    palette = choose_palette(frames)
    known = {colour: index for index, colour in enumerate(palette)}
    pictures = [indexed(rows, palette, known) for rows in frames]
    if options.sheet:
        shown = [[[palette[i] for i in row] for row in rows] for rows in pictures]
        pathlib.Path(options.sheet).write_bytes(contact_sheet(shown))
        return 0
    data = avi([encode(rows) for rows in pictures], palette)
    if OUTPUT.exists() and OUTPUT.read_bytes() == data:
        return 0
    if options.check:
        print(f"{OUTPUT.name}: out of date")
        return 1
    OUTPUT.write_bytes(data)
    print(f"{OUTPUT.name}: written, {len(data)} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
