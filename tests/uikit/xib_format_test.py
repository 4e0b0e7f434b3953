#!/usr/bin/python3
"""The layouts, and the example's launch screen, hold nothing but what Interface Builder writes itself, in its
order (interface_builder.txt), so that it opens them and writes them back alike."""

import glob
import os
import re
import unittest
import xml.etree.ElementTree as ElementTree

import python_test
from xib_document import BUNDLE

HERE = os.path.dirname(os.path.abspath(__file__))
FILES = sorted(glob.glob(BUNDLE + '/**/*.xib', recursive=True)) + [
    os.path.join(HERE, '../../examples/ios_host/Launch.storyboard')]
KINDS = {
    'NUMBER': r'-?\d+(\.\d+)?', 'TEXT': r'.+', 'ID': r'-?[A-Za-z0-9]+(-[A-Za-z0-9]+)*', 'NAME': r'[A-Za-z]\w*',
    'SELECTOR': r'[A-Za-z]\w*:*', 'PATH': r'[A-Za-z]\w*(\.[A-Za-z]\w*)*', 'MODE': 'scaleToFill|redraw|left|center',
    'ANCHOR': 'leading|trailing|top|bottom|width|height|centerX|centerY|firstBaseline|lastBaseline',
    'SIZE_CLASS': 'default|heightClass=(compact|regular)(-widthClass=(compact|regular))?|widthClass=(compact|regular)',
}
OLDEST = 11, 0
PLUG_INS = {'20037': '20020', '21225': '21207', '21507': '21505'}  # each release of the tool has its own


def listed():
    """By element: (attribute, values, optional) and (child, key, how many), both in order."""
    elements = {}
    with open(os.path.join(HERE, 'interface_builder.txt'), encoding='utf-8') as file:
        for line in file:
            if line.startswith('#'):
                continue
            name, attributes, children = re.fullmatch(r'(\w+) = (.*)>(.*)\n', line).groups()
            elements[name] = ([re.fullmatch(r'(\w+):(\S+?)(\??)', each).groups() for each in attributes.split()],
                              [re.fullmatch(r'([\w|]+):?(\w*)([?*]?)', each).groups() for each in children.split()])
    return elements


def attribute_problems(element, known):
    expected = [name for name, _, _ in known]
    found = list(element.keys())
    yield from (f'{element.tag} has no attribute {name}' for name in found if name not in expected)
    if [name for name in expected if name in found] != [name for name in found if name in expected]:
        yield f'the attributes of {element.tag} come as {found}'
    for name, values, optional in known:
        value = element.get(name)
        if value is None and not optional:
            yield f'{element.tag} lacks {name}'
        elif value is not None and not re.fullmatch(KINDS.get(values, values.replace('.', r'\.')), value, re.S):
            yield f'{element.tag} has {name} = {value}'


def child_problems(element, known):
    waiting = list(element)
    for tags, key, number in known:
        taken = 0
        while waiting and waiting[0].tag in tags.split('|') and key in ('', waiting[0].get('key')):
            waiting.pop(0)
            taken += 1
            if number != '*':
                break
        if not taken and not number:
            yield f'{element.tag} lacks {tags} {key}'
    yield from (f'{element.tag} has {child.tag} {child.get("key", "")} out of place' for child in waiting[:1])


def document_problems(root):
    major, minor = OLDEST
    version = root.find('dependencies/deployment').get('version')
    if version != str(major * 256 + minor * 16):
        yield f'deployment is {version}'
    if PLUG_INS.get(root.get('toolsVersion')) != root.find('dependencies/plugIn').get('version'):
        yield 'the plug-in is of another release'
    needed = {'Safe area layout guides': ".//viewLayoutGuide[@key='safeArea']",
              'System colors in document resources': 'resources/systemColor'}
    named = [each.get('name') for each in root.findall('dependencies/capability')]
    yield from (f'{name} is not among the dependencies' for name, path in needed.items()
                if root.find(path) is not None and name not in named)
    if named != sorted(named):
        yield f'the dependencies come as {named}'


def problems(text):
    root, elements = ElementTree.fromstring(text), listed()
    found = [f'{element.tag} is no element' for element in root.iter() if element.tag not in elements]
    if found:
        return found
    for element in root.iter():
        attributes, children = elements[element.tag]
        found += [*attribute_problems(element, attributes), *child_problems(element, children)]
        if (element.text or '').strip() or (element.tail or '').strip():
            found.append(f'{element.tag} has text')
    return found + list(document_problems(root))


def read(path):
    with open(path, encoding='utf-8') as file:
        return file.read()


class XibFormat(unittest.TestCase):
    def test_nothing_is_invented(self):
        self.assertEqual(len(FILES), 3)
        for path in FILES:
            with self.subTest(os.path.basename(path)):
                self.assertEqual(problems(read(path)), [])

    def test_every_line_of_the_list_is_of_use(self):
        used = {element.tag for path in FILES for element in ElementTree.parse(path).iter()}
        self.assertEqual(used, set(listed()))

    def test_lines_are_indented_and_ended_as_by_the_tool(self):
        for path in FILES:
            lines = read(path).split('\n')
            self.assertEqual((lines[0], lines[-2], lines[-1]),
                             ('<?xml version="1.0" encoding="UTF-8"?>', '</document>', ''))
            for line in lines:
                self.assertRegex(line, r'^(    )*(<.*>)?$')

    def test_planted_mistakes_are_found(self):
        gate = next(read(path) for path in FILES if path.endswith('QV_AgeGateViewController.xib'))
        for before, after, report in (
                ('<nil key="highlightedColor"/>', '<none key="highlightedColor"/>', 'none is no element'),
                ('numberOfLines="0"', 'maxLines="0"', 'label has no attribute maxLines'),
                ('style="wheels"', 'style="drum"', 'datePicker has style = drum'),
                ('version="2816"', 'version="11.0"', 'deployment is 11.0'),
                ('editable="NO" text=', 'text=', None),
                (' adjustsFontSizeToFit="NO"', '', 'label lacks adjustsFontSizeToFit'),
                ('scrollEnabled="NO" editable="NO"', 'editable="NO" scrollEnabled="NO"', 'the attributes of textView come as'),
                (' contentMode="left"', '', 'label lacks contentMode'),
                ('secondAttribute="top"', 'secondAttribute="upper"', 'constraint has secondAttribute = upper'),
                ('key="heightClass=compact" constant', 'key="heightClass=small" constant', 'variation has key = heightClass=small'),
                ('<viewLayoutGuide key="contentLayoutGuide" id="content"/>', '', 'scrollView lacks viewLayoutGuide contentLayoutGuide'),
                ('<state key="normal" title="Confirm"/>', '<state key="normal" title="Confirm"/><state key="normal" title="Confirm"/>',
                 'button has state normal out of place'),
                ('id="confirm"', 'id="the confirm"', 'button has id = the confirm'),
                ('<capability name="Safe area layout guides" minToolsVersion="9.0"/>', '', 'Safe area layout guides is not among'),
                ('version="21505"', 'version="21507"', 'the plug-in is of another release'),
                ('<subviews>', '<subviews>a', 'subviews has text')):
            with self.subTest(after):
                self.assertIn(before, gate)
                found = problems(gate.replace(before, after, 1))
                self.assertTrue(any(report in each for each in found) if report else not found, found)


if __name__ == '__main__':
    python_test.main()
