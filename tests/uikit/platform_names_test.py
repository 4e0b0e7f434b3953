#!/usr/bin/python3
"""Every name of the platform that the adapter and the example use is a real one, with as many
arguments, the same number and the same first system version as platform_names.txt has from the
platform's own declarations. QV_OBJC_HEADERS names the build's patched Objective-C headers."""

import os
import re
import shutil
import sys
import tempfile
import unittest

import python_test

OBJC_HEADERS = os.environ['QV_OBJC_HEADERS']
python_test.needs(packages={'clang': 'python3-clang'},
                  files={OBJC_HEADERS + '/GNUstep/Foundation/Foundation.h': 'libgnustep-base-dev'})

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '../../tools'))

import platform_names  # noqa: E402

LIST = os.path.join(HERE, 'platform_names.txt')
OLDEST = (11, 0)  # the deployment target


def listed():
    """The list's uses by kind, owner and name."""
    with open(LIST, encoding='utf-8') as file:
        uses = [platform_names.Use(*line.rstrip('\n').split('\t'))
                for line in file if not line.startswith('#')]
    return {use[:3]: use for use in uses}


def newer(since):
    return since != '-' and tuple(map(int, since.split('.'))) > OLDEST


def problems(finder, known):
    for use, place in finder.places.items():
        real = known.get(use[:3])
        if real is None:
            yield f'{place}: the platform has no {use.kind} {use.owner} {use.name}'
        elif real.number not in ('-', use.number):
            yield f'{place}: {use.name} is {use.number} here and {real.number} on the platform'
        elif real.since != '-' and real.since != use.since and (
                newer(real.since) or newer(use.since)):
            yield f'{place}: {use.name} is marked {use.since} and there from {real.since} on'
    for place in finder.unresolved:
        yield f'{place}: a template leaves open whose member this is'


class PlatformNames(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.finder = platform_names.Finder(OBJC_HEADERS)
        for source in platform_names.sources():
            cls.finder.read(source)

    def test_every_name_in_use_is_the_platforms(self):
        self.assertEqual(sorted(problems(self.finder, listed())), [])

    def test_the_names_were_found(self):
        used = {use[:3] for use in self.finder.places}
        self.assertLessEqual({
            ('method', 'UIViewController', 'presentViewController:animated:completion:'),
            ('property', 'UIViewController', 'modalInPresentation'),
            ('property', 'UISearchBar', 'searchTextField'),
            ('property', 'UIDatePicker', 'maximumDate'),
            ('value', 'UIUserInterfaceStyle', 'UIUserInterfaceStyleDark'),
            ('class-method', 'NSUserDefaults', 'standardUserDefaults'),
            ('method', 'UITextViewDelegate',
             'textView:shouldInteractWithURL:inRange:interaction:'),
            ('constant', '-', 'NSLinkAttributeName')}, used)

    def test_the_list_holds_nothing_else(self):
        self.assertEqual(set(listed()) - {use[:3] for use in self.finder.places}, set(),
                         'write it again: tools/refresh_platform_names.py')


class Mistakes(unittest.TestCase):
    """What is planted in a copy of the stand-in's headers is found where a source uses it."""

    def found(self, header, before, after, source):
        with tempfile.TemporaryDirectory() as folder:
            standin = os.path.join(folder, 'standin')
            shutil.copytree(platform_names.STANDIN, standin)
            with open(os.path.join(standin, header), 'r+', encoding='utf-8') as file:
                text = file.read()
                self.assertRegex(text, before)
                file.seek(0)
                file.write(re.sub(before, after, text, count=1))
                file.truncate()
            path = os.path.join(folder, 'planted.mm')
            with open(path, 'w', encoding='utf-8') as file:
                file.write('#import <UIKit/UIKit.h>\n' + source)
            finder = platform_names.Finder(OBJC_HEADERS, standin)
            finder.read(path)
            return [problem.split(': ', 1)[1] for problem in problems(finder, listed())]

    def test_nothing_planted_is_fine(self):
        self.assertEqual(self.found(
            'UIKit/UIView.h', '@interface', '@interface',
            'void go(UIView* view) { view.layer.cornerRadius = 8; }'), [])

    def test_a_wrong_selector(self):
        self.assertEqual(self.found(
            'UIKit/UIViewController.h', r'presentViewController:\(', 'presentController:(',
            'void go(UIViewController* c) { [c presentController:c animated:YES completion:nil]; }'
        ), ['the platform has no method UIViewController presentController:animated:completion:'])

    def test_a_wrong_property(self):
        self.assertEqual(self.found(
            'UIKit/UIView.h', 'cornerRadius', 'cornersRadius',
            'void go(UIView* view) { view.layer.cornersRadius = 8; }'),
            ['the platform has no property CALayer cornersRadius'])

    def test_a_wrong_number(self):
        self.assertEqual(self.found(
            'UIKit/UIViewController.h', 'UIAlertControllerStyleAlert,',
            'UIAlertControllerStyleAlert = 2,',
            'UIAlertControllerStyle style() { return UIAlertControllerStyleAlert; }'),
            ['UIAlertControllerStyleAlert is 2 here and 1 on the platform'])

    def test_a_wrong_superclass(self):
        self.assertEqual(self.found(
            'UIKit/UIView.h', '@interface UILabel : UIView', '@interface UILabel : UIResponder',
            'Class type() { return [UILabel class]; }'),
            ['UILabel is UIResponder here and UIView on the platform'])

    def test_a_wrong_first_version(self):
        source = 'void go(UIViewController* c) { c.modalInPresentation = YES; }'
        for mark, marked in (('API_AVAILABLE(ios(12.0))', '12.0'), ('', '-')):
            self.assertEqual(self.found(
                'UIKit/UIViewController.h',
                r'modalInPresentation\s+API_AVAILABLE\(ios\(13.0\)\)', f'modalInPresentation {mark}',
                source), [f'modalInPresentation is marked {marked} and there from 13.0 on'])

    def test_a_name_behind_a_template(self):
        self.assertEqual(self.found(
            'UIKit/UIView.h', '@interface', '@interface',
            'template <class View>\nvoid go(View* view) { view.layer.cornerRadius = 8; }'),
            ['a template leaves open whose member this is'])


if __name__ == '__main__':
    python_test.main()
