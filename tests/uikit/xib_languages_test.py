#!/usr/bin/python3
"""Both screens in every language, laid out in its direction by a constraint solver: nothing is clipped or overlaps, and
no word is broken, from the smallest phone to the largest tablet, at the usual text size and at twice that.

    tests/uikit/xib_languages_test.py --table      prints what tools/language_room makes its table of
"""

import os
import sys
import unittest

import python_test

python_test.needs(**python_test.LAYOUT_PACKAGES)

from xib_text import DEJAVU, LOHIT  # noqa: E402

python_test.needs(files={DEJAVU: 'fonts-dejavu-core', LOHIT: 'fonts-lohit-deva'})

from xib_document import BUNDLE, LANGUAGES, SCREENS, Document  # noqa: E402
from xib_layout import DEVICES  # noqa: E402
from xib_layout_test import Layout, problems  # noqa: E402

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../../tools'))
from screen_texts import FILLER, parse_strings  # noqa: E402

TEXT_SIZES = ('L', 'AX2')  # of 17 and of 33 points
# A line may end after any character of theirs.
WITHOUT_BLANKS = ('ja', 'ko', 'zh-Hans', 'zh-Hant')
FROM_RIGHT_TO_LEFT = ('ar', 'he')
PLACES = {'text': ('.', 'text'), 'normalTitle': ("state[@key='normal']", 'title'),
          'accessibilityLabel': ('accessibility', 'label')}


def document(screen, language):
    """The layout with the words of the language in it, as they are seen."""
    found = Document.load(screen)
    if language == 'en':
        return found
    with open(os.path.join(BUNDLE, f'{language}.lproj', f'{screen}.strings'), 'rb') as file:
        for key, text in parse_strings(file.read()).items():
            item, kind = key.split('.')
            element, attribute = PLACES[kind]
            found.items[item].element.find(element).set(attribute, text.replace(FILLER, ''))
    return found


def margin(layout, language):
    """What is left of a line beside the widest word of all."""
    def left(id, content):
        words = content.text if language in WITHOUT_BLANKS else content.text.split(' ')
        pieces = [content.text] if content.item.kind == 'button' else words
        return layout.frames[id].width - content.padding[0] - max(map(content.font.width, pieces))
    return min(left(id, content) for id, content in layout.contents.items() if content.font)


def lay_out(found, device, size, is_reversed):
    return Layout(found, device, size, lambda shown: shown.replace('[APPNAME]', 'Lantern'), is_reversed)


def every_layout(language):
    for screen in SCREENS:
        for device in DEVICES:
            for size in TEXT_SIZES:
                yield screen, device, size, lay_out(document(screen, language), device, size,
                                                    language in FROM_RIGHT_TO_LEFT)


class XibLanguages(unittest.TestCase):
    def test_every_language_fits(self):
        for language in LANGUAGES:
            for screen, device, size, layout in every_layout(language):
                with self.subTest(language, screen=screen, device=device.name, size=size):
                    self.assertEqual(problems(layout), [])
                    self.assertGreaterEqual(margin(layout, language), 0)

    def test_a_word_that_is_too_long_is_found(self):
        long = document(SCREENS[0], 'de')
        long.items['header'].element.set('text', 'Wie lautet Ihr Geburtsdatum?')
        self.assertLess(margin(Layout(long, DEVICES[0], 'AX2'), 'de'), 0)

    def test_from_right_to_left_each_layout_is_the_mirror_image(self):
        for language in FROM_RIGHT_TO_LEFT:
            for screen, device, size, layout in every_layout(language):
                plain = lay_out(document(screen, language), device, size, False)
                for id, frame in layout.frames.items():
                    with self.subTest(language, screen=screen, device=device.name, size=size, id=id):
                        self.assertAlmostEqual(frame.left, device.width - plain.frames[id].right, 2)
                        self.assertAlmostEqual(frame.top, plain.frames[id].top, 2)

    def test_from_right_to_left_lines_begin_at_the_right(self):
        small = lay_out(document(SCREENS[0], 'ar'), DEVICES[0], 'L', True).frames
        self.assertAlmostEqual(small['panel'].right - small['header'].right, 24, 2)
        low = lay_out(document(SCREENS[0], 'ar'), DEVICES[3], 'L', True).frames
        self.assertLessEqual(low['picker'].right, low['header'].left)

    def test_from_right_to_left_a_place_from_the_middle_stays_as_it_is(self):
        moved = document(SCREENS[0], 'ar')
        for _, constraint in moved.all_constraints():
            if constraint.id == 'panel-centre-x':
                constraint.element.set('constant', '20')
        panel = lay_out(moved, DEVICES[5], 'L', True).frames['panel']
        self.assertAlmostEqual(panel.left, 512 + 20 - 280, 2)

    def test_the_words_are_the_languages(self):
        self.assertEqual(document(SCREENS[0], 'de').items['confirm'].element.find('state').get('title'), 'Bestätigen')


def print_table():
    names = dict(zip(SCREENS, ('gate', 'refusal')))
    points = {'L': 'text of 17', 'AX2': 'text of 33'}
    for language in ('en', *LANGUAGES):
        for screen, device, size, layout in every_layout(language):
            print(f'| {language} | {names[screen]} | {device.name} | {points[size]} | {margin(layout, language):.0f} |')


if __name__ == '__main__':
    if sys.argv[1:] == ['--table']:
        print_table()
    else:
        python_test.main()
