#!/usr/bin/python3
"""The layouts for iOS (.xib) and for the desktop (.ui) say the same, outlet by outlet."""

import os
import unittest
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser

import python_test
from xib_document import BUNDLE, SCREENS, Document, text_of


class PlainText(HTMLParser):
    """The characters of a rich text."""

    def __init__(self, html):
        super().__init__()
        self.text = ''
        self.feed(html)
        self.close()

    def handle_data(self, data):
        self.text += data


def texts_of_xib(document):
    """The texts, and a date picker's accessibility label, by outlet."""
    texts = {}
    for outlet in document.owner.findall('connections/outlet'):
        item = document.items[outlet.get('destination')]
        if item.kind in ('label', 'textView', 'button'):
            texts[outlet.get('property')] = text_of(item)
        if item.kind == 'datePicker':
            texts[outlet.get('property')] = item.element.find('accessibility').get('label')
    return texts


def texts_of_ui(root):
    """Likewise, by widget name; rich text without its marks."""
    texts = {}
    for widget in root.iter('widget'):
        for name in ('text', 'html', 'plainText', 'accessibleName'):
            text = widget.find(f"property[@name='{name}']/string")
            if text is not None:
                rich = name == 'html' or text.text.startswith('<')
                texts[widget.get('name')] = PlainText(text.text).text if rich else text.text
                break
    return texts


class XibTexts(unittest.TestCase):
    def test_both_layouts_of_a_screen_say_the_same(self):
        for screen in SCREENS:
            with self.subTest(screen):
                root = ElementTree.parse(os.path.join(BUNDLE, screen + '.ui')).getroot()
                self.assertEqual(texts_of_xib(Document.load(screen)), texts_of_ui(root))

    def test_the_texts(self):
        self.assertEqual(texts_of_xib(Document.load('QV_AgeGateViewController')), {
            'header': 'What’s your date of birth?',
            'subtitle': 'Only used to check your age, never kept.',
            'datePicker': 'Date of birth',
            'confirmBtn': 'Confirm',
            'tos': 'Privacy Policy & Terms of Service',
        })
        self.assertEqual(texts_of_xib(Document.load('QV_AgeGateRefusedViewController')), {
            'header': 'We’re sorry, [APPNAME] isn’t available to you',
            'contact': 'If you think this is an error, please contact us for support.',
            'tos': 'Privacy Policy & Terms of Service',
        })

    def test_rich_text_is_read_as_it_is_seen(self):
        root = ElementTree.fromstring(
            '<ui><widget class="LinkTextView" name="tos"><property name="html"><string>'
            '&lt;p&gt;&lt;b&gt;Privacy&lt;/b&gt; &amp;amp; Terms&lt;/p&gt;'
            '</string></property></widget></ui>')
        self.assertEqual(texts_of_ui(root), {'tos': 'Privacy & Terms'})


if __name__ == '__main__':
    python_test.main()
