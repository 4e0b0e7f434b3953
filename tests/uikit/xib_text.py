"""Measures and wraps text as labels do, with a real font in the place of the system's own.

Inter is drawn for the same purpose as the system font and runs slightly wider, so that what fits in
Inter fits on the device. What it has no letters for is measured in a font of the script; the letters of
Chinese, Japanese and Korean are as wide as they are high.
"""

import functools
import math

from PIL import ImageFont

FONTS = '/usr/share/fonts/opentype/inter/'
DEJAVU = '/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf'
LOHIT = '/usr/share/fonts/truetype/lohit-devanagari/Lohit-Devanagari.ttf'
OTHER_SCRIPTS = (('\u0590', '\u06ff', DEJAVU), ('\u0900', '\u097f', LOHIT))  # Hebrew and Arabic; Hindi

# Points by text style at the content sizes of the platform's Dynamic Type table.
SIZES = ('XS', 'S', 'M', 'L', 'XL', 'XXL', 'XXXL', 'AX1', 'AX2', 'AX3', 'AX4', 'AX5')
STYLES = {
    'UICTFontTextStyleTitle1': (
        'InterDisplay-Regular', (25, 26, 27, 28, 30, 32, 34, 38, 43, 48, 53, 58)),
    'UICTFontTextStyleHeadline': (
        'Inter-SemiBold', (14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53)),
    'UICTFontTextStyleBody': (
        'Inter-Regular', (14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53)),
    'UICTFontTextStyleSubhead': (
        'Inter-Regular', (12, 13, 14, 15, 17, 19, 21, 25, 30, 36, 42, 49)),
}

_MEASURED_AT = 200  # pixels to the em, so that rounding in the font engine does not count


@functools.lru_cache(maxsize=None)
def font(face, pixels):
    return ImageFont.truetype(face if face.startswith('/') else f'{FONTS}{face}.otf', pixels)


class Font:
    """A text style at a content size, for example Font('UICTFontTextStyleBody', 'L')."""

    def __init__(self, style, content_size):
        self.face, points = STYLES[style]
        self.points = points[SIZES.index(content_size)]

    @property
    def line_height(self):
        return sum(font(self.face, _MEASURED_AT).getmetrics()) * self.points / _MEASURED_AT

    def width(self, text):
        face = next((file for first, last, file in OTHER_SCRIPTS
                     if any(first <= letter <= last for letter in text)), self.face)
        return font(face, _MEASURED_AT).getlength(text) * self.points / _MEASURED_AT

    def lines(self, text, width):
        """Wraps at blanks, and a word that is wider than `width` between any two characters."""
        lines = []
        for word in text.split(' '):
            if lines and self.width(f'{lines[-1]} {word}') <= width:
                lines[-1] += ' ' + word
                continue
            while len(word) > 1 and self.width(word) > width:
                fits = max(1, sum(self.width(word[:end]) <= width for end in range(1, len(word))))
                lines.append(word[:fits])
                word = word[fits:]
            lines.append(word)
        return lines

    def size(self, text, width=math.inf):
        """Width and height of `text` wrapped to `width`, rounded up to half points."""
        lines = self.lines(text, width)
        size = max(map(self.width, lines)), len(lines) * self.line_height
        return tuple(math.ceil(length * 2) / 2 for length in size)

    def widest_word(self, text):
        return max(map(self.width, text.split(' ')))
