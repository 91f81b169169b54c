"""Pictures of the screen, images of icon files, and finding the one in the other."""

import struct
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"

def hex_colour(text):
    """'rrggbb' as a triple."""
    return tuple(bytes.fromhex(text))


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

    def save_png(self, path):
        def chunk(kind, content):
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

        stride = self.width * 3
        rows = b"".join(b"\0" + self.data[y * stride:(y + 1) * stride] for y in range(self.height))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(PNG_SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows))
                       + chunk(b"IEND", b""))

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at:at + 3])

    def crop(self, rectangle):
        left, top, right, bottom = self._within(rectangle)
        rows = [self.data[(y * self.width + left) * 3:(y * self.width + right) * 3] for y in range(top, bottom)]
        return Picture(right - left, bottom - top, b"".join(rows))

    def _within(self, rectangle):
        left, top, right, bottom = rectangle
        return max(left, 0), max(top, 0), min(right, self.width), min(bottom, self.height)

    def find(self, image, background, rectangle=None, tolerance=12):
        """Places (x, y) where the image stands over the background colour, from the top. No two of them overlap."""
        left, top, right, bottom = self._within(rectangle or (0, 0, self.width, self.height))
        composed = image.over(background)
        # What differs most from the background is looked at first: nearly every wrong place ends there.
        wanted = sorted(
            ((sum(abs(a - b) for a, b in zip(colour, background)), dx, dy, colour)
             for (dx, dy), colour in composed.items()),
            key=lambda row: row[0], reverse=True)
        if not wanted or wanted[0][0] < 100:
            raise ValueError("an image that can't be told from its background")
        found = []
        data, stride = self.data, self.width * 3
        offsets = [(dy * stride + dx * 3,) + colour for _, dx, dy, colour in wanted]
        for y in range(top, bottom - image.height + 1):
            for x in range(left, right - image.width + 1):
                base = y * stride + x * 3
                for offset, red, green, blue in offsets:
                    at = base + offset
                    if (abs(data[at] - red) > tolerance or abs(data[at + 1] - green) > tolerance
                            or abs(data[at + 2] - blue) > tolerance):
                        break
                else:
                    if all(abs(x - a) >= image.width or abs(y - b) >= image.height for a, b in found):
                        found.append((x, y))
        return found


class IconImage:
    """One size of an icon: a colour and an opacity (0 to 255) for each pixel."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels  # (x, y): (red, green, blue, opacity)

    def over(self, background):
        """The colours of all pixels, drawn over one background colour."""
        composed = {}
        for place, (red, green, blue, alpha) in self.pixels.items():
            composed[place] = tuple(
                (colour * alpha + below * (255 - alpha) + 127) // 255
                for colour, below in zip((red, green, blue), background))
        return composed


def read_icon(path, size):
    """The 32-bit image of this width from an icon file."""
    with open(path, "rb") as file:
        data = file.read()
    _, kind, count = struct.unpack_from("<HHH", data)
    if kind != 1:
        raise ValueError("%s is no icon file" % path)
    for index in range(count):
        width, _, _, _, _, bits, length, offset = struct.unpack_from("<BBBBHHII", data, 6 + 16 * index)
        if width == size and bits == 32:
            image = data[offset:offset + length]
            return _read_png(image) if image.startswith(PNG_SIGNATURE) else _read_bitmap(image, 0)
    raise ValueError("%s has no image of %d pixels" % (path, size))


def _read_png(data):
    """A PNG as the icons' renderer writes it: red, green, blue and opacity of 8 bits each, rows without a filter."""
    width, height, depth, colour = struct.unpack_from(">IIBB", data, 16)
    packed, at = b"", len(PNG_SIGNATURE)
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        if kind == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += length + 12
    rows = zlib.decompress(packed)
    stride = 1 + width * 4
    if (depth, colour) != (8, 6) or any(rows[y * stride] for y in range(height)):
        raise ValueError("another kind of PNG")
    return IconImage(width, height, {(x, y): tuple(rows[y * stride + 1 + 4 * x:][:4])
                                     for y in range(height) for x in range(width)})


def _read_bitmap(data, offset):
    header, width, double_height = struct.unpack_from("<Iii", data, offset)
    height = double_height // 2  # the mask is counted too
    pixels = {}
    for y in range(height):
        row = offset + header + (height - 1 - y) * width * 4
        for x in range(width):
            blue, green, red, alpha = data[row + 4 * x:row + 4 * x + 4]
            pixels[x, y] = (red, green, blue, alpha)
    return IconImage(width, height, pixels)
