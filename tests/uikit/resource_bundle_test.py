#!/usr/bin/python3
"""What the resource bundle says of itself: an identifier, which the store asks of every bundle in an
app, and the library's version."""

import os
import plistlib
import re
import unittest

import python_test
from xib_document import BUNDLE, LANGUAGES, SCREENS

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '../..')


def project_version():
    with open(os.path.join(ROOT, 'CMakeLists.txt'), encoding='utf-8') as file:
        return re.search(r'project\(qv_commons VERSION ([\d.]+)', file.read())[1]


class ResourceBundle(unittest.TestCase):
    def test_its_information(self):
        with open(os.path.join(BUNDLE, 'Info.plist'), 'rb') as file:
            info = plistlib.load(file, fmt=plistlib.FMT_XML)
        self.assertRegex(info.pop('CFBundleIdentifier'), r'^[A-Za-z0-9.-]+$')
        self.assertEqual(info, {
            'CFBundleDevelopmentRegion': 'en',
            'CFBundleInfoDictionaryVersion': '6.0',
            'CFBundleName': 'QV_Commons_iOS',
            'CFBundlePackageType': 'BNDL',
            'CFBundleShortVersionString': project_version(),
            'CFBundleVersion': '1',
        })

    def test_its_files(self):
        self.assertEqual(sorted(os.listdir(BUNDLE)), sorted(
            ['Info.plist', 'PrivacyInfo.xcprivacy', 'Base.lproj'] +
            [screen + '.ui' for screen in SCREENS] +
            [language + '.lproj' for language in LANGUAGES]))
        for language in LANGUAGES:
            self.assertEqual(sorted(os.listdir(os.path.join(BUNDLE, language + '.lproj'))),
                             sorted(screen + '.strings' for screen in SCREENS))
        self.assertEqual(sorted(os.listdir(os.path.join(BUNDLE, 'Base.lproj'))),
                         sorted(screen + '.xib' for screen in SCREENS))


if __name__ == '__main__':
    python_test.main()
