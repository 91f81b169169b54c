"""Pictures of the screen, images of icon files, and finding the one in the other."""

import functools
import struct
import subprocess
from pathlib import Path

ICONS = Path(__file__).resolve().parents[2] / "assets" / "icons"


def hex_colour(text):
    """'rrggbb' as a triple."""
    return tuple(bytes.fromhex(text))


def distance(one, other):
    return sum(abs(a - b) for a, b in zip(one, other))


class Picture:
    """Pixels in rows from the top, three bytes each."""

    def __init__(self, width, height, data):
        if len(data) != width * height * 3:
            raise ValueError("a picture of %d by %d doesn't have %d bytes" % (width, height, len(data)))
        self.width = width
        self.height = height
        self.data = data

    @classmethod
    def from_ppm(cls, data):
        """Reads a binary PPM with 8 bits a channel."""
        fields = data.split(None, 4)
        if fields[0] != b"P6" or fields[3] != b"255":
            raise ValueError("no binary PPM of 8 bits a channel")
        width, height = int(fields[1]), int(fields[2])
        return cls(width, height, data[len(data) - width * height * 3:])

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at:at + 3])

    def find(self, image, background, rectangle, tolerance=12):
        """The first place (x, y) in the rectangle where the image stands over the background colour, or None."""
        composed = over(image, background)
        # What differs most from the background is looked at first: nearly every wrong place ends there.
        wanted = sorted(composed.items(), key=lambda row: distance(row[1], background), reverse=True)
        if distance(wanted[0][1], background) < 100:
            raise ValueError("an image that can't be told from its background")
        left, top, right, bottom = rectangle
        size = 1 + max(image)[0]
        for y in range(top, bottom - size + 1):
            for x in range(left, right - size + 1):
                if all(abs(a - b) <= tolerance for (dx, dy), colour in wanted
                       for a, b in zip(self.pixel(x + dx, y + dy), colour)):
                    return x, y
        return None


def icon_path(number):
    """The one file of icons with this number."""
    [path] = ICONS.glob("%02d-*.ico" % number)
    return path


def icon_sizes(path):
    data = path.read_bytes()
    return [data[6 + 16 * index] for index in range(struct.unpack_from("<HHH", data)[2])]


@functools.lru_cache(maxsize=None)
def read_icon(path, size):
    """The pixels of the icon's square image of this size: {(x, y): (red, green, blue, opacity)}."""
    frame = "ico:%s[%d]" % (path, icon_sizes(path).index(size))
    data = subprocess.run(["convert", frame, "-depth", "8", "rgba:-"], stdout=subprocess.PIPE, check=True).stdout
    if len(data) != size * size * 4:
        raise ValueError("%s has no image of %d pixels" % (path, size))
    return {(i % size, i // size): tuple(data[4 * i:4 * i + 4]) for i in range(size * size)}


def over(image, background):
    """The colours of all pixels of an icon, drawn over one background colour."""
    return {place: tuple((colour * pixel[3] + below * (255 - pixel[3]) + 127) // 255
                         for colour, below in zip(pixel, background)) for place, pixel in image.items()}
