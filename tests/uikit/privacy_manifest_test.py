#!/usr/bin/python3
"""The privacy manifest says what the library does: it reads and writes the host app's own user
defaults (reason CA92.1), collects nothing and tracks nobody."""

import os
import plistlib
import unittest

import python_test
from xib_document import BUNDLE


class PrivacyManifest(unittest.TestCase):
    def test_user_defaults_are_all_that_it_declares(self):
        with open(os.path.join(BUNDLE, 'PrivacyInfo.xcprivacy'), 'rb') as file:
            manifest = plistlib.load(file, fmt=plistlib.FMT_XML)
        self.assertEqual(manifest, {
            'NSPrivacyTracking': False,
            'NSPrivacyTrackingDomains': [],
            'NSPrivacyCollectedDataTypes': [],
            'NSPrivacyAccessedAPITypes': [{
                'NSPrivacyAccessedAPIType': 'NSPrivacyAccessedAPICategoryUserDefaults',
                'NSPrivacyAccessedAPITypeReasons': ['CA92.1'],
            }],
        })


if __name__ == '__main__':
    python_test.main()
