#!/usr/bin/python3
"""The ways in which an app takes the library in, Package.swift and the podspec, name files that are
there, all of them, and the project's version. Neither is built here: that needs a Mac."""

import glob
import os
import re
import shutil
import subprocess
import unittest

import python_test
from xib_document import BUNDLE, LANGUAGES, SCREENS

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../..'))


def read(path):
    with open(os.path.join(ROOT, path), encoding='utf-8') as file:
        return file.read()


def listed_by_cmake(folder):
    """What the folder's library takes, by patterns such as age_gate/*.cpp."""
    taken = re.search(r'qv_take_sources\(\w+([^)]*)\)', read(f'{folder}/CMakeLists.txt'))[1]
    sources = matched([f'{folder}/{pattern}' for pattern in taken.split()])
    assert sources, taken
    return sources


def braces(pattern):
    """A pattern with {a,b}, as glob patterns without."""
    found = re.search(r'\{([^}]*)\}', pattern)
    if not found:
        return [pattern]
    return [expanded for each in found[1].split(',')
            for expanded in braces(pattern[:found.start()] + each + pattern[found.end():])]


def matched(patterns):
    return {path for pattern in patterns for each in braces(pattern)
            for path in glob.glob(each, root_dir=ROOT)}


def resources():
    """What of the bundle's files an app for iOS takes in."""
    return {'PrivacyInfo.xcprivacy', *(f'Base.lproj/{screen}.xib' for screen in SCREENS),
            *(f'{language}.lproj/{screen}.strings' for language in LANGUAGES for screen in SCREENS)}


class SwiftPackage(unittest.TestCase):
    manifest = read('Package.swift')

    def test_it_compiles_what_cmake_compiles(self):
        core = re.search(r'name: "QVCommonsCore".*?sources: \[(.*?)\]', self.manifest, re.S)[1]
        found = set()
        for path in re.findall('"([^"]+)"', core):
            found |= matched([path if path.endswith('.cpp') else path + '/*.cpp'])
        self.assertEqual(found, listed_by_cmake('qv_commons'))

    def test_what_it_names_is_there(self):
        for path in re.findall(r'(?:path|publicHeadersPath): "([^"]+)"', self.manifest):
            if path != 'include':
                self.assertTrue(os.path.isdir(os.path.join(ROOT, path)), path)
        self.assertTrue(os.path.isfile(os.path.join(ROOT, 'swift/core/include/qv_commons/qv_commons.h')))

    def test_its_resources_are_the_bundles(self):
        languages = re.search(r'let languages = \[(.*?)\]', self.manifest, re.S)[1]
        self.assertEqual(re.findall('"([^"]+)"', languages), list(LANGUAGES))
        self.assertIn('(["Base"] + languages).map { .process("\\($0).lproj") }', self.manifest)
        self.assertIn('defaultLocalization: "en"', self.manifest)
        self.assertEqual(re.findall(r'\.copy\("([^"]+)"\)', self.manifest), ['PrivacyInfo.xcprivacy'])
        for name in resources():
            self.assertTrue(os.path.samefile(os.path.join(ROOT, 'swift/resources', name),
                                             os.path.join(BUNDLE, name)))
        folder = os.path.join(ROOT, 'swift/resources')
        self.assertEqual(set(glob.glob('*.lproj/*', root_dir=folder)) | {'PrivacyInfo.xcprivacy'}, resources())

    def test_the_bundle_has_the_name_that_the_library_asks_for(self):
        package = re.search(r'Package\(\s*name: "([^"]+)"', self.manifest)[1]
        target = re.search(r'name: "([^"]+)",\s*path: "swift/resources"', self.manifest)[1]
        self.assertEqual(f'{package}_{target}.bundle', os.path.basename(BUNDLE))

    def test_it_uses_no_unsafe_flags(self):
        self.assertNotIn('unsafeFlags', self.manifest)


class Podspec(unittest.TestCase):
    spec = read('QV_Commons_iOS.podspec')

    def test_its_version(self):
        project = re.search(r'project\(qv_commons VERSION ([\d.]+)', read('CMakeLists.txt'))[1]
        self.assertIn(f"spec.version = '{project}'", self.spec)

    def test_it_compiles_what_cmake_compiles(self):
        patterns = re.search(r'spec\.source_files = (.*?)\n\s*spec\.', self.spec, re.S)[1]
        found = {path for path in matched(re.findall("'([^']+)'", patterns))
                 if path.endswith(('.cpp', '.mm'))}
        self.assertEqual(found, listed_by_cmake('qv_commons') | listed_by_cmake('qv_commons/platform/uikit'))

    def test_its_bundle(self):
        name, patterns = re.search(r"'(\w+)' => \[(.*?)\]", self.spec, re.S).groups()
        self.assertEqual(f'{name}.bundle', os.path.basename(BUNDLE))
        self.assertEqual({os.path.relpath(os.path.join(ROOT, path), BUNDLE)
                          for path in matched(re.findall("'([^']+)'", patterns))}, resources())

    @unittest.skipUnless(shutil.which('ruby'), 'needs ruby')
    def test_it_is_ruby(self):
        result = subprocess.run(['ruby', '-wc', os.path.join(ROOT, 'QV_Commons_iOS.podspec')],
                                capture_output=True, text=True, check=False)
        self.assertEqual((result.returncode, result.stdout.strip()), (0, 'Syntax OK'), result.stderr)


class Xcframework(unittest.TestCase):
    def test_it_is_a_shell_script_that_says_what_it_needs(self):
        script = os.path.join(ROOT, 'tools/xcframework.sh')
        self.assertEqual(subprocess.run(['bash', '-n', script], check=False).returncode, 0)
        if not shutil.which('xcodebuild'):
            result = subprocess.run([script], capture_output=True, text=True, check=False)
            self.assertEqual((result.returncode, result.stderr),
                             (1, 'xcframework: needs a Mac with Xcode\n'))


if __name__ == '__main__':
    python_test.main()
