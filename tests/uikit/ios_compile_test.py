#!/usr/bin/python3
"""The core, the adapter and the example compile for arm64-apple-ios11.0 as CMake configures them, and
what a device of that version lacks is turned down: by the newest C++ library, and by that of the last
tools that made apps for iOS 11. QV_OBJC_HEADERS names the build's mended Objective-C headers."""

import glob
import os
import re
import struct
import subprocess
import tempfile
import unittest

import python_test

python_test.needs(programs={'clang++-19': 'clang-19', 'ninja': 'ninja-build', 'llvm-ar': 'llvm'},
                  files={'/usr/lib/llvm-19/include/c++/v1/__config_site': 'libc++-19-dev',
                         '/usr/include/GNUstep/Foundation/Foundation.h': 'libgnustep-base-dev',
                         f'/usr/include/{os.uname().machine}-linux-musl': 'musl-dev'})

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '../..')
PLANTED = 'tests/uikit/planted/'

# libc++ 19 no longer marks what is older than the oldest system that it is made for.
OLDER = os.path.join(ROOT, 'build/unpacked/libc++-15-dev/usr/lib/llvm-15/include/c++/v1')

MACH_O_64, ARM64, OBJECT_FILE = 0xfeedfacf, 0x0100000c, 1
LC_VERSION_MIN_IPHONEOS, LC_BUILD_VERSION, PLATFORM_IOS = 0x25, 0x32, 2


def compile_sources(out, *sources):
    return subprocess.run(
        [os.path.join(ROOT, 'tools/ios_check.py'), out, os.environ['QV_OBJC_HEADERS'],
         *sources], capture_output=True, text=True, check=False)


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
    def test_everything_becomes_mach_o_for_ios_11(self):
        with tempfile.TemporaryDirectory() as out:
            result = compile_sources(out)
            self.assertEqual((result.returncode, result.stderr), (0, ''))
            objects = {os.path.basename(path): path
                       for path in glob.glob(out + '/build/**/*.o', recursive=True)}
            for name in ('support_helper.cpp.o', 'QV_SupportHelper.mm.o', 'examples_ios_host_main.m.o'):
                self.assertIn(name, objects)
            for path in objects.values():
                self.assertEqual(target(path), ('iOS', 11, 0), path)

    @unittest.skipUnless(os.path.isdir(OLDER), 'needs libc++-15-dev, unpacked by tools/packages.sh')
    def test_nothing_needs_a_cpp_library_newer_than_ios_11(self):
        with tempfile.TemporaryDirectory() as out:
            older = ('--compiler', 'clang++-14', '--libcxx', OLDER)
            result = compile_sources(out, *older, '--syntax-only')
            self.assertEqual((result.returncode, result.stderr), (0, ''))
            for source, name in (('optional_value.cpp', 'value'), ('any_cast.cpp', 'any_cast<int>'),
                                 ('variant_get.cpp', 'get<int, int, bool>'), ('visit.cpp', 'visit<')):
                with self.subTest(source):
                    result = compile_sources(out, *older, PLANTED + source)
                    self.assertEqual(result.returncode, 1)
                    self.assertRegex(result.stderr, f"'{name}.*' is unavailable: introduced in iOS 12.0")

    def test_newer_parts_of_the_cpp_library_are_turned_down(self):
        for source, report in (
                ('filesystem.cpp', "'exists' is unavailable: introduced in iOS 13.0"),
                ('floating_to_chars.cpp', "'to_chars' is unavailable: introduced in iOS 16."),
                ('format.cpp', "'to_chars' is unavailable: introduced in iOS 16.")):
            with self.subTest(source), tempfile.TemporaryDirectory() as out:
                result = compile_sources(out, PLANTED + source, 'qv_commons/support/base64.cpp')
                self.assertEqual(result.returncode, 1)
                self.assertIn(report, ' '.join(re.findall('error: (.*)', result.stderr)))

    def test_newer_parts_of_the_platform_need_a_version_test(self):
        with tempfile.TemporaryDirectory() as out:
            self.assertEqual(compile_sources(out, PLANTED + 'guarded.mm').returncode, 0)
            result = compile_sources(out, PLANTED + 'unguarded.mm')
            self.assertEqual(result.returncode, 1)
            self.assertIn("'setModalInPresentation:' is only available on iOS 13.0 or newer",
                          result.stderr)


if __name__ == '__main__':
    python_test.main()
