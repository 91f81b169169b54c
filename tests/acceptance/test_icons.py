"""The icons of the toolbar's buttons as the program file gets them: all there, and the disabled ones fit to be seen."""

import re
import unittest

import pixels
from harness import REPOSITORY

BUTTONS = range(21, 30)
DISABLED = 10  # more than the number of the enabled icon
SIZES = (16, 24, 32)


def contrast(image, ground):
    """The mean distance from the ground where the image covers it."""
    composed = pixels.over(image, ground)
    covered = [pixels.distance(composed[place], ground) / 3 for place, pixel in image.items() if pixel[3] > 127]
    return sum(covered) / len(covered)


class ToolbarIcons(unittest.TestCase):
    def test_the_program_file_gets_both_icons_of_each_button_and_the_disabled_one_is_grey_and_fainter(self):
        resources = dict(re.findall(r'^(\d+) ICON "(.+)"$', (REPOSITORY / "src/app/icons.rc").read_text(), re.M))
        for number in BUTTONS:
            paths = [pixels.icon_path(number), pixels.icon_path(number + DISABLED)]
            self.assertEqual([resources.get(str(number)), resources.get(str(number + DISABLED))],
                             [path.name for path in paths])
            self.assertEqual(*map(pixels.icon_sizes, paths))
            for size in SIZES:
                enabled, disabled = (pixels.read_icon(path, size) for path in paths)
                self.assertTrue(all(red == green == blue for red, green, blue, _ in disabled.values()))
                for ground in ((255, 255, 255), (240, 240, 240)):
                    with self.subTest(number=number, size=size, ground=ground):
                        self.assertLess(contrast(disabled, ground), 0.8 * contrast(enabled, ground))
                        self.assertGreater(contrast(disabled, ground), 20)
