"""The icons of the toolbar's buttons as the program file gets them: all there, and the disabled ones fit to be seen."""

import re
import struct
import unittest

import pixels
from harness import REPOSITORY, icon_path

BUTTONS = range(21, 30)
DISABLED = 10  # more than the number of the enabled icon
SIZES = (16, 20, 24, 30, 32, 36, 48)
GROUNDS = ((255, 255, 255), (240, 240, 240))


def sizes_in(path):
    data = path.read_bytes()
    return tuple(data[6 + 16 * index] for index in range(struct.unpack_from("<HHH", data)[2]))


def contrast(image, ground):
    """The mean distance from the ground where the image covers it."""
    places = [place for place, pixel in image.pixels.items() if pixel[3] > 127]
    composed = image.over(ground)
    return sum(abs(a - b) for place in places for a, b in zip(composed[place], ground)) / (3 * len(places))


class ToolbarIcons(unittest.TestCase):
    def test_the_program_file_gets_both_icons_of_each_button_in_every_size(self):
        resources = dict(re.findall(r'^(\d+) ICON "(.+)"$', (REPOSITORY / "src/app/icons.rc").read_text(), re.M))
        for enabled in BUTTONS:
            for number in (enabled, enabled + DISABLED):
                with self.subTest(number=number):
                    self.assertEqual(resources.get(str(number)), icon_path(number).name)
                    self.assertEqual(sizes_in(icon_path(number)), SIZES)

    def test_a_disabled_icon_is_grey_and_fainter_but_still_seen(self):
        for number in BUTTONS:
            for size in SIZES:
                enabled = pixels.read_icon(icon_path(number), size)
                disabled = pixels.read_icon(icon_path(number + DISABLED), size)
                self.assertTrue(all(red == green == blue for red, green, blue, _ in disabled.pixels.values()))
                for ground in GROUNDS:
                    with self.subTest(number=number, size=size, ground=ground):
                        self.assertLess(contrast(disabled, ground), 0.8 * contrast(enabled, ground))
                        self.assertGreater(contrast(disabled, ground), 20)


if __name__ == "__main__":
    unittest.main()
