#!/usr/bin/python3
"""The pictures in docs/pictures are those of the interface files as they are now."""

import os
import unittest

import python_test

python_test.needs(**python_test.LAYOUT_PACKAGES)

from PIL import Image, ImageChops, ImageStat, features  # noqa: E402

import xib_draw  # noqa: E402

PICTURES = os.path.join(os.path.dirname(__file__), '../../docs/pictures')
DRAWN_WITH = '2.12.1'  # of FreeType, as in Debian 12; another measures texts otherwise
ALLOWED = 1.5  # levels of 255 on average: the checked-in files have fewer colours


def difference(one, other):
    if one.size != other.size:
        return 255
    return max(ImageStat.Stat(ImageChops.difference(one, other.convert('RGB'))).mean)


class XibPictures(unittest.TestCase):
    @unittest.skipUnless(features.version('freetype2') == DRAWN_WITH,
                         'the pictures were drawn with FreeType ' + DRAWN_WITH)
    def test_the_pictures_are_up_to_date(self):
        for file, picture in xib_draw.pictures().items():
            with self.subTest(file), Image.open(os.path.join(PICTURES, file)) as checked_in:
                self.assertLess(difference(picture, checked_in), ALLOWED,
                                'draw again: tests/uikit/xib_draw.py docs/pictures')

    def test_a_moved_text_would_be_seen(self):
        picture = xib_draw.pictures()['ios_refused.png']
        self.assertGreater(difference(picture, ImageChops.offset(picture, 0, 16)), ALLOWED)


if __name__ == '__main__':
    python_test.main()
