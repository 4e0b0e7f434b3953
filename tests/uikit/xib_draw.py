#!/usr/bin/python3
"""Draws the age gate's screens from their interface files and their solved layouts.

    tests/uikit/xib_draw.py DIRECTORY      writes the pictures of docs/ios.md there

The shapes, fonts and wheels stand in for the system's own; the places and sizes are the layout's.
"""

import math
import os
import sys
from dataclasses import dataclass

from PIL import Image, ImageDraw

from xib_document import SCREENS, Document
from xib_layout import DEVICES, Layout
from xib_text import font

SCALE = 2
CORNER = 8  # of the panel and the button, set in code
LINKS = {'policies': ((0, 14), (17, 33)), 'contact': ((38, 60),)}
WHEELS = ((0.40, 'r', ('March', 'April', 'May', 'June', 'July', 'August', 'September')),
          (0.56, 'm', ('12', '13', '14', '15', '16', '17', '18')),
          (0.77, 'm', ('1987', '1988', '1989', '1990', '1991', '1992', '1993')))


def grey(level):
    return (round(level * 255),) * 3


@dataclass(frozen=True)
class Theme:
    """The colours of a default theme."""
    panel: tuple
    text: tuple
    links: tuple
    button: tuple
    title: tuple


@dataclass(frozen=True)
class Device:
    """The colours of the system's look."""
    system: dict  # by the name that a layout refers to
    wheels: tuple
    band: tuple


LIGHT_THEME = Theme(grey(1), grey(0.29), grey(0.514), grey(0), grey(1))
DARK_THEME = Theme(grey(0.118), grey(1), grey(0.541), grey(1), grey(0))
LIGHT_DEVICE = Device({'groupTableViewBackgroundColor': (242, 242, 247),
                       'secondarySystemGroupedBackgroundColor': grey(1)}, grey(0), (238, 238, 240))
DARK_DEVICE = Device({'groupTableViewBackgroundColor': grey(0),
                      'secondarySystemGroupedBackgroundColor': (28, 28, 30)}, grey(1), (48, 48, 51))
LIGHT, DARK = (LIGHT_THEME, LIGHT_DEVICE), (DARK_THEME, DARK_DEVICE)


class Picture:
    """One screen, at SCALE pixels to the point, in a theme on a device's look."""

    def __init__(self, layout, look):
        self.layout = layout
        self.look, self.device = look
        size = layout.device.width * SCALE, layout.device.height * SCALE
        root = layout.document.root.find('objects/view')
        self.image = Image.new('RGB', size, self._ground(root))
        self._rounded(layout.frames['panel'], CORNER, self.look.panel)
        for id, content in layout.contents.items():
            {'label': self._label, 'textView': self._text_view, 'button': self._button,
             'datePicker': self._picker}[content.item.kind](id, content)

    def _ground(self, element):
        """What the layout gives a view for a background; None without one."""
        color = element.find("color[@key='backgroundColor']")
        return None if color is None else self.device.system[color.get('systemColor')]

    def _rounded(self, frame, radius, color):
        """Drawn large and scaled down, for smooth corners."""
        fine = 4
        box = [round(value * SCALE) for value in (frame.left, frame.top, frame.right, frame.bottom)]
        size = box[2] - box[0], box[3] - box[1]
        mask = Image.new('L', (size[0] * fine, size[1] * fine), 0)
        ImageDraw.Draw(mask).rounded_rectangle((0, 0, mask.width - 1, mask.height - 1),
                                               radius * SCALE * fine, fill=255)
        self.image.paste(color, tuple(box), mask.resize(size, Image.Resampling.LANCZOS))

    def _text(self, at, text, style, color, anchor='ls'):
        face = font(style.face, round(style.points * SCALE))
        ImageDraw.Draw(self.image).text((at[0] * SCALE, at[1] * SCALE), text, color, face, anchor)

    def _baseline(self, style):
        """From the top of a line down to its baseline."""
        ascent, descent = font(style.face, 200).getmetrics()
        return style.line_height * ascent / (ascent + descent)

    def _label(self, id, content):
        frame, style = self.layout.frames[id], content.font
        lines = style.lines(content.text, frame.width)
        y = frame.top + (frame.height - len(lines) * style.line_height) / 2 + self._baseline(style)
        for line in lines:
            self._text((frame.left, y), line, style, self.look.text)
            y += style.line_height

    def _text_view(self, id, content):
        """From the top, its links in their colour."""
        frame, style = self.layout.frames[id], content.font
        x, y = (length / 2 for length in content.padding)
        y += frame.top + self._baseline(style)
        start = 0
        for line in style.lines(content.text, frame.width - 2 * x):
            for offset, character in enumerate(line):
                linked = any(first <= start + offset < end for first, end in LINKS[id])
                left = frame.left + x + style.width(line[:offset + 1]) - style.width(character)
                self._text((left, y), character, style,
                           self.look.links if linked else self.look.text)
            start += len(line) + 1
            y += style.line_height

    def _button(self, id, content):
        frame = self.layout.frames[id]
        self._rounded(frame, CORNER, self.look.button)
        self._text((frame.left + frame.width / 2, frame.top + frame.height / 2), content.text,
                   content.font, self.look.title, 'mm')

    def _picker(self, id, content):
        """A cylinder of rows, the one in the middle on a band."""
        frame = self.layout.frames[id]
        ground = self._ground(content.item.element)
        if ground is not None:
            self._rounded(frame, 0, ground)
        middle, radius = frame.top + frame.height / 2, frame.height / 2 - 4
        band = type(frame)(frame.left + 9, middle - 16, frame.width - 18, 32)
        self._rounded(band, CORNER, self.device.band)
        width = min(frame.width, 320)
        left = frame.left + (frame.width - width) / 2
        for x, anchor, rows in WHEELS:
            for index, row in enumerate(rows):
                self._row((left + x * width, middle), radius, index - len(rows) // 2, row, anchor)

    def _row(self, centre, radius, step, text, anchor):
        angle = step * 32 / radius
        if abs(angle) > 1.45:
            return
        tile = Image.new('L', (240 * SCALE, 32 * SCALE), 0)
        at = {'r': tile.width, 'm': tile.width / 2}[anchor], tile.height / 2
        face = font('InterDisplay-Regular', 22 * SCALE)
        ImageDraw.Draw(tile).text(at, text, 255, face, anchor + 'm')
        height = max(2, round(tile.height * math.cos(angle)))
        tile = tile.resize((tile.width, height), Image.Resampling.LANCZOS)
        shown = 1.0 if step == 0 else 0.42 * math.cos(angle)
        tile = tile.point(lambda value: round(value * shown))
        left = round(centre[0] * SCALE) - (tile.width if anchor == 'r' else tile.width // 2)
        top = round((centre[1] + radius * math.sin(angle)) * SCALE) - height // 2
        self.image.paste(self.device.wheels, (left, top), tile)


def shown_text(text):
    return text.replace('[APPNAME]', 'Lantern')


def screen(name, device, look, content_size='L'):
    device = next(each for each in DEVICES if each.name == device)
    return Picture(Layout(Document.load(name), device, content_size, shown_text), look).image


def sheet(pictures, gap=48):
    """Screens side by side on a plain ground, their corners rounded."""
    width = sum(picture.width for picture in pictures) + gap * (len(pictures) + 1)
    height = max(picture.height for picture in pictures) + 2 * gap
    ground = Image.new('RGB', (width, height), (208, 211, 217))
    left = gap
    for picture in pictures:
        mask = Image.new('L', (picture.width * 2, picture.height * 2), 0)
        whole = 0, 0, mask.width - 1, mask.height - 1
        ImageDraw.Draw(mask).rounded_rectangle(whole, 88, fill=255)
        ground.paste(picture, (left, (height - picture.height) // 2),
                     mask.resize(picture.size, Image.Resampling.LANCZOS))
        left += picture.width + gap
    return ground


def pictures():
    """The pictures of the documentation by file name."""
    gate, refused = SCREENS
    halved = lambda image: image.resize((image.width // 2, image.height // 2),
                                        Image.Resampling.LANCZOS)
    return {
        'ios_age_gate.png': halved(sheet([screen(gate, '390x844', (theme, device))
                                          for theme in (LIGHT_THEME, DARK_THEME)
                                          for device in (LIGHT_DEVICE, DARK_DEVICE)])),
        'ios_refused.png': sheet([screen(refused, '390x844', LIGHT),
                                  screen(refused, '390x844', DARK)]),
        'ios_landscape.png': sheet([screen(gate, '844x390', LIGHT)]),
        'ios_large_text.png': sheet([screen(name, '390x844', look, 'AX2')
                                     for name, look in ((gate, LIGHT), (refused, DARK))]),
        'ios_tablet.png': halved(sheet([screen(gate, '768x1024', LIGHT),
                                        screen(refused, '768x1024', DARK)])),
    }


if __name__ == '__main__':
    for file, picture in pictures().items():
        picture.quantize(128, dither=Image.Dither.NONE).save(
            os.path.join(sys.argv[1], file), optimize=True)
