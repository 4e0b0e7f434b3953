#!/usr/bin/python3
"""Everything that the interface files refer to is there, and each view is made for every reader."""

import os
import unittest

import python_test
from xib_document import BUNDLE, CLASSES, SCREENS, Document, text_of

OUTLETS = {
    'QV_AgeGateViewController': {
        'view': 'UIView', 'bg': 'UIView', 'confirmBtn': 'UIButton', 'datePicker': 'UIDatePicker',
        'tos': 'UITextView', 'header': 'UILabel', 'subtitle': 'UILabel'},
    'QV_AgeGateRefusedViewController': {
        'view': 'UIView', 'bg': 'UIView', 'contact': 'UITextView', 'tos': 'UITextView',
        'header': 'UILabel'},
}
ACTIONS = {
    'QV_AgeGateViewController': {('UIDatePicker', 'valueChanged', 'onDateChanged:'),
                                 ('UIButton', 'touchUpInside', 'onConfirmPressed:')},
    'QV_AgeGateRefusedViewController': set(),
}
LINKS = {'tos': {0: 'Privacy Policy', 17: 'Terms of Service'},
         'contact': {38: 'contact us for support'}}
ATTRIBUTES = {'leading', 'trailing', 'top', 'bottom', 'width', 'height', 'centerX', 'centerY'}
STYLES = {'UICTFontTextStyleTitle1', 'UICTFontTextStyleBody', 'UICTFontTextStyleSubhead',
          'UICTFontTextStyleHeadline'}


def read(screen):
    with open(os.path.join(BUNDLE, 'Base.lproj', screen + '.xib'), encoding='utf-8') as file:
        return file.read()


def connection_problems(document, screen):
    owner = document.owner
    if owner.get('customClass') != screen:
        yield f'owner is {owner.get("customClass")}'
    classes = {id: CLASSES[item.kind] for id, item in document.items.items()}
    found = {outlet.get('property'): classes.get(outlet.get('destination'))
             for outlet in owner.findall('connections/outlet')}
    if found != OUTLETS[screen]:
        yield f'outlets are {found}'
    actions = {(classes[item.id], action.get('eventType'), action.get('selector'))
               for item in document.items.values()
               for action in item.element.findall('connections/action')
               if action.get('destination') == owner.get('id')}
    if actions != ACTIONS[screen]:
        yield f'actions are {actions}'


def reference_problems(document):
    ids = [element.get('id') for element in document.root.iter()
           if element.get('id') and element.tag != 'device']
    yield from (f'id {id} is used twice' for id in set(ids) if ids.count(id) > 1)
    for element in document.root.iter():
        for name in ('destination', 'reference', 'firstItem', 'secondItem'):
            if element.get(name) and element.get(name) not in ids:
                yield f'{name} {element.get(name)} does not exist'
    for item in document.items.values():
        own = {element.get('id') for element in item.element.findall('constraints/constraint')}
        for element in item.element.findall('variation/mask/*'):
            if element.get('reference') not in own:
                yield f'variation of {item.id} names {element.get("reference")}, not its own'
        own = 'QV_LinkTextView' if item.kind == 'textView' else None
        if item.element.get('customClass') != own:
            yield f'{item.id} has the class {item.element.get("customClass")}'


def constraint_problems(document):
    for owner, constraint in document.all_constraints():
        for id, attribute in ((constraint.first, constraint.first_attribute),
                              (constraint.second, constraint.second_attribute)):
            if id is None:
                continue
            if attribute not in ATTRIBUTES:
                yield f'{constraint.id} uses {attribute}'
            item = document.items.get(id)
            while item is not None and item is not owner:
                item = item.parent
            if item is None:
                yield f'{constraint.id} reaches {id}, outside of {owner.id}'
    for item in document.items.values():
        free = item.element.get('translatesAutoresizingMaskIntoConstraints') == 'NO'
        if item.key is None and item.parent is not None and not free:
            yield f'{item.id} is placed by its frame'


def reader_problems(document, screen):
    """Dynamic Type, labels, traits and identifiers; links that can be chosen."""
    identifiers = []
    for item in document.items.values():
        element, text = item.element, item.kind in ('label', 'textView', 'button')
        if not text and item.kind != 'datePicker':
            continue
        accessibility = element.find("accessibility[@key='accessibilityConfiguration']")
        identifiers.append(accessibility.get('identifier') if accessibility is not None else None)
        if text and element.find('fontDescription').get('style') not in STYLES:
            yield f'{item.id} has a font of a fixed size'
        grows = (element.get('adjustsFontForContentSizeCategory') == 'YES' or element.find(
            ".//userDefinedRuntimeAttribute[@keyPath='titleLabel.adjustsFontForContentSizeCategory']"
            "[@value='YES']") is not None)
        if text and not grows:
            yield f'{item.id} does not follow the text size'
        if item.kind == 'label' and element.get('numberOfLines') != '0':
            yield f'{item.id} cuts its text'
        if item.kind == 'textView' and (element.get('editable'), element.get('selectable', 'YES'),
                                        element.get('scrollEnabled')) != ('NO', 'YES', 'NO'):
            yield f'{item.id} keeps its links from being chosen'
        if item.kind == 'datePicker' and accessibility.get('label') != 'Date of birth':
            yield f'{item.id} has no accessibility label'
        if item.kind == 'datePicker' and (element.get('datePickerMode'), element.get('style')) != (
                'date', 'wheels'):
            yield f'{item.id} has no wheels for a date'
        if item.id == 'header' and accessibility.find("accessibilityTraits[@header='YES']") is None:
            yield 'header is no heading to a screen reader'
    prefix = {'QV_AgeGateViewController': 'QV_AgeGate_',
              'QV_AgeGateRefusedViewController': 'QV_AgeGateRefused_'}[screen]
    if len(set(identifiers)) != len(identifiers) or not all(
            identifier and identifier.startswith(prefix) for identifier in identifiers):
        yield f'identifiers are {identifiers}'


def ground_problems(document):
    """The wheels' text follows the device, so what is behind it does, too: a system colour, with a
    value for the systems that lack it."""
    fallbacks = {color.get('name'): color.find('color') for color in
                 document.root.findall('resources/systemColor')}
    for color in document.root.iter('color'):
        if color.get('systemColor') and fallbacks.get(color.get('systemColor')) is None:
            yield f'{color.get("systemColor")} has no value for older systems'
    for item in document.items.values():
        ground = item.element.find("color[@key='backgroundColor']")
        if item.kind == 'datePicker' and (ground is None or not ground.get('systemColor')):
            yield f'{item.id} has no ground that follows the device'


def link_problems(document):
    for outlet in document.owner.findall('connections/outlet'):
        for start, words in LINKS.get(outlet.get('property'), {}).items():
            text = text_of(document.items[outlet.get('destination')])
            units = text.encode('utf-16-le')  # the links count UTF-16 code units
            if units[2 * start:2 * (start + len(words))].decode('utf-16-le') != words:
                yield f'{outlet.get("property")} has no "{words}" at {start}'


def problems(text, screen):
    document = Document(text)
    found = list(reference_problems(document))
    if found:
        return found
    return [*connection_problems(document, screen), *constraint_problems(document),
            *reader_problems(document, screen), *ground_problems(document),
            *link_problems(document)]


class XibReferences(unittest.TestCase):
    def test_everything_resolves(self):
        for screen in SCREENS:
            with self.subTest(screen):
                self.assertEqual(problems(read(screen), screen), [])

    def test_the_header_of_the_refusal_names_the_app(self):
        items = Document.load('QV_AgeGateRefusedViewController').items
        self.assertEqual(text_of(items['header']).count('[APPNAME]'), 1)

    def test_planted_mistakes_are_found(self):
        gate = 'QV_AgeGateViewController'
        for before, after, report in (
                ('destination="panel"', 'destination="pannel"', 'destination pannel does not exist'),
                ('id="confirm-top"', 'id="confirm-height"', 'id confirm-height is used twice'),
                ('secondItem="picker"', 'secondItem="wheel"', 'secondItem wheel does not exist'),
                ('<exclude reference="tall-picker-top"', '<exclude reference="scroll-top"',
                 'variation of panel names scroll-top, not its own'),
                ('customClass="QV_AgeGateViewController"', 'customClass="QV_AgeGate"', 'owner is QV_AgeGate'),
                (' customClass="QV_LinkTextView"', '', 'policies has the class None'),
                ('id="confirm"', 'id="confirm" customClass="Button"', 'confirm has the class Button'),
                ('property="confirmBtn"', 'property="confirmButton"', 'outlets are'),
                ('property="bg" destination="panel"', 'property="bg" destination="header"', 'outlets are'),
                ('"onDateChanged:"', '"onDateChanged"', 'actions are'),
                ('eventType="valueChanged"', 'eventType="editingChanged"', 'actions are'),
                ('secondAttribute="leading"', 'secondAttribute="left"', 'uses left'),
                ('firstItem="header" firstAttribute="top" secondItem="panel"',
                 'firstItem="header" firstAttribute="top" secondItem="safe"',
                 'header-top reaches safe, outside of panel'),
                ('translatesAutoresizingMaskIntoConstraints="NO" id="picker"', 'id="picker"',
                 'picker is placed by its frame'),
                ('style="UICTFontTextStyleBody"', 'type="system" pointSize="17"',
                 'subtitle has a font of a fixed size'),
                ('keyPath="titleLabel.adj', 'keyPath="label.adj', 'confirm does not follow the text size'),
                ('numberOfLines="0"', 'numberOfLines="1"', 'header cuts its text'),
                ('editable="NO"', 'editable="YES"', 'policies keeps its links from being chosen'),
                ('scrollEnabled="NO"', 'scrollEnabled="NO" selectable="NO"',
                 'policies keeps its links from being chosen'),
                ('label="Date of birth"', '', 'picker has no accessibility label'),
                ('datePickerMode="date"', 'datePickerMode="dateAndTime"', 'picker has no wheels for a date'),
                (' style="wheels"', '', 'picker has no wheels for a date'),
                ('<color key="backgroundColor" systemColor="secondarySystemGroupedBackgroundColor"/>', '',
                 'picker has no ground that follows the device'),
                ('<systemColor name="secondarySystemGroupedBackgroundColor">', '<systemColor name="other">',
                 'secondarySystemGroupedBackgroundColor has no value for older systems'),
                ('header="YES"', '', 'header is no heading'),
                ('QV_AgeGate_Subtitle', 'QV_AgeGate_Header', 'identifiers are'),
                ('Privacy Policy &amp;', 'Privacy policy &amp;', 'tos has no "Privacy Policy" at 0'),
                ('Policy &amp; Terms', 'Policy and Terms', 'tos has no "Terms of Service" at 17')):
            with self.subTest(report, after=after):
                self.assertIn(before, read(gate))
                found = problems(read(gate).replace(before, after, 1), gate)
                self.assertTrue(any(report in problem for problem in found), found)


if __name__ == '__main__':
    python_test.main()
