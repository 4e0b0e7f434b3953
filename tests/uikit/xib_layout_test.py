#!/usr/bin/python3
"""Both screens, laid out by a constraint solver on every device and at every kind of text size: all
frames are settled, nothing contradicts, is clipped or overlaps, and no constraint is idle."""

import os
import re
import unittest
from dataclasses import astuple

import python_test

python_test.needs(**python_test.LAYOUT_PACKAGES)

from xib_document import BUNDLE, SCREENS, Document  # noqa: E402
from xib_layout import DEVICES, Device, Layout  # noqa: E402
from xib_solver import Unsatisfiable  # noqa: E402

GATE, REFUSED = SCREENS
TEXT_SIZES = ('XS', 'L', 'XXXL', 'AX1', 'AX2', 'AX3', 'AX4', 'AX5')
SHEETS = (  # as the system presents modal screens from 13.0 on, and beside another app
    Device('sheet 390x790', 390, 790, (0, 0, 34, 0), 'compact', 'regular'),
    Device('sheet 704x970', 704, 970, (0, 0, 0, 0), 'regular', 'regular'),
    Device('split 320x1024', 320, 1024, (20, 0, 0, 0), 'compact', 'regular'),
    Device('landscape 568x320', 568, 320, (0, 0, 0, 0), 'compact', 'compact'),
)
APPS = ('Lantern', 'Everyday Crossword Puzzles & Word Games', '')
PICKER_LEAST = 280, 162  # wheels narrower or lower than that are cut
TOUCH = 44
SLACK = 0.01


def read(screen):
    with open(os.path.join(BUNDLE, 'Base.lproj', screen + '.xib'), encoding='utf-8') as file:
        return file.read()


def inside(inner, outer):
    return (inner.left >= outer.left - SLACK and inner.right <= outer.right + SLACK and
            inner.top >= outer.top - SLACK and inner.bottom <= outer.bottom + SLACK)


def overlap(one, other):
    return (min(one.right, other.right) - max(one.left, other.left) > SLACK and
            min(one.bottom, other.bottom) - max(one.top, other.top) > SLACK)


def clipped(content, frame):
    if content.item.kind == 'datePicker':
        return frame.width < PICKER_LEAST[0] - SLACK or frame.height < PICKER_LEAST[1] - SLACK
    width, height = content.size(frame.width)
    return width > frame.width + SLACK or height > frame.height + SLACK


def breaks_a_word(content, frame):
    return content.font and (content.font.widest_word(content.text) + content.padding[0] >
                             frame.width + SLACK)


def problems(layout):
    frames, found = layout.frames, [f'{name} is undetermined' for name in layout.undetermined]
    content, safe = frames['content'], frames['safe']
    if abs(content.width - safe.width) > SLACK or content.height < safe.height - SLACK:
        found.append('the content does not fill the safe area')
    if not inside(frames['panel'], content):
        found.append('panel is outside of the content')
    for id, each in layout.contents.items():
        if not inside(frames[id], frames['panel']):
            found.append(f'{id} is outside of the panel')
        if clipped(each, frames[id]):
            found.append(f'{id} is clipped')
        if each.item.kind in ('button', 'textView') and frames[id].height < TOUCH - SLACK:
            found.append(f'{id} is too low to touch')
        for other in layout.contents:
            if id < other and overlap(frames[id], frames[other]):
                found.append(f'{id} overlaps {other}')
    return found


def lay_out(text, device, content_size='L', app='Lantern'):
    return Layout(Document(text), device, content_size,
                  lambda shown: shown.replace('[APPNAME]', app))


class XibLayout(unittest.TestCase):
    def test_every_device_and_text_size_is_laid_out_whole(self):
        for screen in SCREENS:
            for device in DEVICES + SHEETS:
                for content_size in TEXT_SIZES:
                    for app in APPS if screen == REFUSED else APPS[:1]:
                        with self.subTest(screen, device=device.name, size=content_size, app=app):
                            self.assertEqual(
                                problems(lay_out(read(screen), device, content_size, app)), [])

    def test_no_word_of_the_texts_is_broken(self):
        for screen in SCREENS:
            for device in DEVICES + SHEETS:
                for content_size in TEXT_SIZES:
                    layout = lay_out(read(screen), device, content_size)
                    for id, content in layout.contents.items():
                        self.assertFalse(breaks_a_word(content, layout.frames[id]),
                                         (screen, device.name, content_size, id))

    def test_at_the_usual_text_size_nothing_needs_scrolling(self):
        for screen in SCREENS:
            for device in DEVICES:
                with self.subTest(screen, device=device.name):
                    frames = lay_out(read(screen), device).frames
                    self.assertAlmostEqual(frames['content'].height, frames['safe'].height, 2)

    def test_a_large_text_scrolls(self):
        layout = lay_out(read(GATE), DEVICES[0], 'AX5')
        self.assertGreater(layout.frames['content'].height, 2 * layout.frames['safe'].height)

    def test_tablets_keep_a_readable_width_in_the_middle(self):
        for device in DEVICES[4:]:
            panel = lay_out(read(GATE), device).frames['panel']
            self.assertAlmostEqual(panel.width, 560, 2)
            self.assertAlmostEqual(panel.left, device.width / 2 - 280, 2)

    def test_a_low_screen_puts_the_picker_beside_the_texts(self):
        frames = lay_out(read(GATE), DEVICES[3]).frames
        self.assertGreaterEqual(frames['picker'].left, frames['header'].right)
        self.assertLess(frames['picker'].top, frames['subtitle'].bottom)


class Mistakes(unittest.TestCase):
    """What is planted is found, so that an empty list of problems means something."""

    def found(self, before, after, device=DEVICES[1], content_size='L'):
        self.assertIn(before, read(GATE))
        return problems(lay_out(read(GATE).replace(before, after, 1), device, content_size))

    def test_no_constraint_can_be_left_out(self):
        devices = DEVICES[0], DEVICES[3], DEVICES[5], SHEETS[3]
        for screen in SCREENS:
            for _, constraint in Document(read(screen)).all_constraints():
                with self.subTest(screen, constraint=constraint.id):
                    element = rf'<constraint [^>]*id="{constraint.id}"(/>|>.*?</constraint>)'
                    without = re.sub(element, '', read(screen), flags=re.DOTALL)
                    self.assertTrue(any(self.differs(read(screen), without, device, size)
                                        for device in devices for size in ('L', 'AX3')))

    def differs(self, text, without, device, size):
        before, after = lay_out(text, device, size), lay_out(without, device, size)
        return problems(after) or any(
            abs(one - other) > 0.1 for id in before.frames
            for one, other in zip(astuple(before.frames[id]), astuple(after.frames[id])))

    def test_a_missing_place_is_undetermined(self):
        self.assertIn('confirm.top is undetermined', self.found(
            '<constraint firstAttribute="bottom" secondItem="policies" secondAttribute="bottom" '
            'constant="12" id="policies-bottom"/>', ''))

    def test_room_for_play_is_undetermined(self):
        self.assertIn('header.top is undetermined', self.found(
            'firstItem="header" firstAttribute="top"',
            'firstItem="header" firstAttribute="top" relation="greaterThanOrEqual"'))

    def test_a_tie_of_wishes_is_undetermined(self):
        centred = ('<constraint firstItem="picker" firstAttribute="centerY" secondItem="panel" '
                   'secondAttribute="centerY" priority="500" id="picker-centre"/>')
        tie = '<constraint firstItem="picker" firstAttribute="top" {}constant="{}" priority="500"/>'
        subtitle = 'secondItem="subtitle" secondAttribute="bottom" '
        self.assertIn('picker.top is undetermined', self.found(
            centred, tie.format(subtitle, 20) + tie.format(subtitle, 40), DEVICES[5]))

    def test_a_contradiction_is_named(self):
        with self.assertRaisesRegex(Unsatisfiable, '^header-trailing-too$'):
            self.found('</constraints>\n                            <variation',
                       '<constraint firstAttribute="trailing" secondItem="header" constant="30" '
                       'secondAttribute="trailing" id="header-trailing-too"/></constraints>'
                       '<variation')

    def test_a_fixed_height_clips(self):
        weak = 'verticalCompressionResistancePriority="1000" text="Only used'
        text = read(GATE).replace(weak, weak.replace('1000', '750')).replace(
            '<constraint firstItem="subtitle" firstAttribute="leading"',
            '<constraint firstItem="subtitle" firstAttribute="height" constant="20" id="fixed"/>'
            '<constraint firstItem="subtitle" firstAttribute="leading"')
        self.assertEqual(problems(lay_out(text, DEVICES[1])), ['subtitle is clipped'])

    def test_narrow_wheels_clip(self):
        leading = 'id="tall-picker-leading"'
        self.assertEqual(self.found(leading, 'constant="40" ' + leading, DEVICES[0]),
                         ['picker is clipped'])

    def test_a_title_that_is_too_long_clips(self):
        self.assertEqual(self.found('title="Confirm"', 'title="Confirm my date of birth and go on"',
                                    DEVICES[0]), ['confirm is clipped'])

    def test_an_overlap_is_found(self):
        self.assertEqual(self.found('secondAttribute="bottom" constant="12" id="confirm-top"',
                                    'secondAttribute="bottom" constant="-40" id="confirm-top"',
                                    DEVICES[0], 'AX1'), ['confirm overlaps picker'])

    def test_leaving_the_panel_is_found(self):
        self.assertEqual(self.found('secondAttribute="bottom" constant="12" id="policies-bottom"',
                                    'secondAttribute="bottom" constant="-2" id="policies-bottom"'),
                         ['policies is outside of the panel'])

    def test_a_panel_that_is_too_wide_is_found(self):
        place = 'secondItem="content" secondAttribute="leading" constant='
        self.assertIn('panel is outside of the content', self.found(
            f'relation="greaterThanOrEqual" {place}"12"', f'{place}"-12"'))


if __name__ == '__main__':
    python_test.main()
