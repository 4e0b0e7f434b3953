#!/usr/bin/python3
"""The core, the adapter and the example compile for arm64-apple-ios11.0 as CMake configures them, and
link; what a device of that version lacks is turned down: by the newest C++ library, and by that of the
last tools that made apps for iOS 11. QV_OBJC_HEADERS names the build's patched Objective-C headers.

What was compiled stays in build/ios, so that a second run compiles what has changed."""

import glob
import os
import re
import struct
import subprocess
import unittest

import ios_link
import python_test

python_test.needs(programs={'clang++-19': 'clang-19', 'ninja': 'ninja-build', 'llvm-ar': 'llvm'},
                  files={'/usr/lib/llvm-19/include/c++/v1/__config_site': 'libc++-19-dev',
                         os.environ['QV_OBJC_HEADERS'] + '/GNUstep/Foundation/Foundation.h': 'libgnustep-base-dev',
                         f'/usr/include/{os.uname().machine}-linux-musl': 'musl-dev'})

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../..'))
PLANTED = 'tests/uikit/planted/'
OUT = os.path.join(ROOT, 'build/ios')

# libc++ 19 no longer marks what is older than the oldest system that it is made for.
OLDER = os.path.join(ios_link.UNPACKED, 'libc++-15-dev/usr/lib/llvm-15/include/c++/v1')
UNPACKED = all(map(os.path.exists, [OLDER, *ios_link.LIBCXX]))
NEEDS_UNPACKED = 'needs libc++ 15, which test.sh unpacks into build/unpacked'

MACH_O_64, ARM64, OBJECT_FILE = 0xfeedfacf, 0x0100000c, 1
LC_VERSION_MIN_IPHONEOS, LC_BUILD_VERSION, PLATFORM_IOS = 0x25, 0x32, 2

with open(os.path.join(ROOT, 'tests/uikit/public_interface.txt'), encoding='utf-8') as interface:
    PUBLIC_CLASSES = sorted({line.split('|')[0] for line in interface if line.startswith('QV_')} -
                            {'QV_SupportHelperDelegate'})


def compile_sources(out, *arguments):
    return subprocess.run(
        [os.path.join(ROOT, 'tools/ios_check.py'), out, os.environ['QV_OBJC_HEADERS'], *arguments],
        capture_output=True, text=True, check=False)


def target(path):
    """The system and version that an object is made for, say ('iOS', 11, 0), or None."""
    with open(path, 'rb') as file:
        data = file.read()
    magic, cpu, _, kind, commands = struct.unpack_from('<5I', data)
    if (magic, cpu, kind) != (MACH_O_64, ARM64, OBJECT_FILE):
        return None
    at = 32
    for _ in range(commands):
        command, size = struct.unpack_from('<2I', data, at)
        if command == LC_VERSION_MIN_IPHONEOS:
            version, = struct.unpack_from('<I', data, at + 8)
            return 'iOS', version >> 16, version >> 8 & 255
        if command == LC_BUILD_VERSION:
            platform, version = struct.unpack_from('<2I', data, at + 8)
            if platform == PLATFORM_IOS:
                return 'iOS', version >> 16, version >> 8 & 255
        at += size
    return None


class IosCompile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.built = compile_sources(OUT)

    def test_everything_becomes_mach_o_for_ios_11(self):
        self.assertEqual((self.built.returncode, self.built.stderr), (0, ''))
        objects = {os.path.basename(path): path
                   for path in glob.glob(OUT + '/build/**/*.o', recursive=True)}
        for name in ('support_helper.cpp.o', 'QV_SupportHelper.mm.o', 'examples_ios_host_main.m.o'):
            self.assertIn(name, objects)
        for path in objects.values():
            self.assertEqual(target(path), ('iOS', 11, 0), path)

    def test_newer_parts_of_the_cpp_library_are_turned_down(self):
        for source, report in (
                ('filesystem.cpp', "'exists' is unavailable: introduced in iOS 13.0"),
                ('floating_to_chars.cpp', "'to_chars' is unavailable: introduced in iOS 16."),
                ('format.cpp', "'to_chars' is unavailable: introduced in iOS 16.")):
            with self.subTest(source):
                result = compile_sources(OUT, PLANTED + source)
                self.assertEqual(result.returncode, 1)
                self.assertIn(report, ' '.join(re.findall('error: (.*)', result.stderr)))

    def test_newer_parts_of_the_platform_need_a_version_test(self):
        self.assertEqual(compile_sources(OUT, PLANTED + 'guarded.mm').returncode, 0)
        result = compile_sources(OUT, PLANTED + 'unguarded.mm')
        self.assertEqual(result.returncode, 1)
        self.assertIn("'setModalInPresentation:' is only available on iOS 13.0 or newer",
                      result.stderr)


@unittest.skipUnless(UNPACKED, NEEDS_UNPACKED)
class OlderLibrary(unittest.TestCase):
    def compile_older(self, *arguments):
        return compile_sources(OUT + '15', '--compiler', 'clang++-14', '--libcxx', OLDER, *arguments)

    def test_nothing_of_the_sources_is_newer_than_ios_11(self):
        result = self.compile_older('--syntax-only')
        self.assertEqual((result.returncode, result.stderr), (0, ''))

    def test_what_ios_12_brought_is_turned_down(self):
        for source, name in (('optional_value.cpp', 'value'), ('any_cast.cpp', 'any_cast<int>'),
                             ('variant_get.cpp', 'get<int'), ('visit.cpp', 'visit<')):
            with self.subTest(source):
                result = self.compile_older(PLANTED + source)
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr,
                                 f"'{re.escape(name)}.*' is unavailable: introduced in iOS 12.0")


@unittest.skipUnless(UNPACKED, NEEDS_UNPACKED)
class IosLink(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        python_test.needs(programs={'ld64.lld-19': 'lld-19'})
        compile_sources(OUT)
        cls.linker = ios_link.Linker(OUT)

    def linked(self, name, *inputs):
        said, path = self.linker.link(name, *inputs)
        self.assertEqual(said, '')
        return path

    def test_the_example_links(self):
        for flags in ([], ['-ObjC']):
            path = self.linked('host', *self.linker.example(), *flags)
            self.assertLessEqual(ios_link.WITHOUT_REFERENCE, ios_link.names(path))

    def test_a_name_of_nobody_is_told(self):
        said, _ = self.linker.link('nobody', '-dylib', '-u', '_nobody')
        self.assertIn('undefined symbol: _nobody', said)

    def test_each_class_brings_in_what_it_needs_without_a_flag(self):
        for name in PUBLIC_CLASSES:
            with self.subTest(name):
                path = self.linked('one', '-dylib', '-u', f'_OBJC_CLASS_$_{name}')
                self.assertLessEqual(ios_link.WITHOUT_REFERENCE, ios_link.names(path))

    def test_a_framework_shows_the_public_classes_alone(self):
        path = self.linked('framework', '-dylib', '-ObjC')
        self.assertEqual(ios_link.names(path, '--extern-only') - {''}, {
            f'_OBJC_{kind}_$_{name}' for kind in ('CLASS', 'METACLASS') for name in PUBLIC_CLASSES})


if __name__ == '__main__':
    python_test.main()
