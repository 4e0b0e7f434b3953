#!/usr/bin/python3
"""Builds the core and the adapter for arm64-apple-ios11.0 by CMake's own configuration for iOS, and
compiles the example's Objective-C with the same flags, without Xcode and its SDK:

    tools/ios_check.py OUT OBJC_HEADERS [SOURCE...]
        [--compiler clang++-19] [--libcxx FOLDER] [--syntax-only]

The SDK is an empty folder of the right name; in its place are libc++ with its availability marks
switched on (FOLDER, or the compiler's own), musl's C headers, gnustep-base's Foundation and the
tests' stand-in headers of UIKit and MessageUI. OBJC_HEADERS is where the build keeps the mended
Objective-C headers (objc_compat). Anything that is newer than 11.0 and not behind a version test is
an error. With sources, those alone are compiled. Objects and archives are left in OUT/build; with
--syntax-only there are none.
"""

import argparse
import glob
import json
import os
import shlex
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), '..'))
TARGET = 'arm64-apple-ios11.0'
FRAMEWORKS = ('Foundation', 'UIKit', 'MessageUI')


def make_sdk(out):
    sdk = os.path.join(out, 'Platforms/iPhoneOS.platform/Developer/SDKs/iPhoneOS.sdk')
    os.makedirs(os.path.join(sdk, 'usr/lib'), exist_ok=True)
    for framework in FRAMEWORKS:
        os.makedirs(os.path.join(sdk, f'System/Library/Frameworks/{framework}.framework'), exist_ok=True)
    return sdk


def switch_marks_on(libcxx, out):
    """libc++ for Debian is configured without marks, as it is part of no system; the device's is."""
    with open(os.path.join(libcxx, '__config_site'), encoding='utf-8') as file:
        lines = file.readlines()
    kept = [line for line in lines if '_LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS' not in line]
    if kept == lines:
        sys.exit("ios_check: libc++'s availability marks can't be switched on")
    folder = os.path.join(out, 'config')
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, '__config_site'), 'w', encoding='utf-8') as file:
        file.writelines(kept)
    return folder


def flags(arguments):
    """What stands in for the SDK. In this order: libc++ wraps C headers, which it finds after its
    own."""
    resources = subprocess.run([arguments.compiler, '-print-resource-dir'], capture_output=True,
                               text=True, check=True).stdout.strip()
    libcxx = arguments.libcxx or os.path.join(resources, '../../../include/c++/v1')
    folders = (switch_marks_on(libcxx, arguments.out), os.path.join(ROOT, 'tools/ios_sysroot'),
               os.path.realpath(libcxx), os.path.join(resources, 'include'),
               *glob.glob('/usr/include/*-linux-musl'), arguments.objc_headers,
               os.path.join(ROOT, 'tests/uikit_standin'),
               os.path.join(arguments.objc_headers, 'GNUstep'))
    return ['-nostdinc', '-nostdinc++', '-stdlib=libc++', *(f'-isystem{folder}' for folder in folders),
            '-D_GNU_SOURCE', '-DGNUSTEP', '-DGNUSTEP_BASE_LIBRARY=1', '-DGNU_RUNTIME=1',
            '-D_NATIVE_OBJC_EXCEPTIONS', '-Wunguarded-availability', '-Wno-nullability-extension',
            '-Wno-nullability-completeness']


def configure(arguments, build):
    extra = ' '.join(flags(arguments))
    settings = {
        'CMAKE_SYSTEM_NAME': 'iOS', 'CMAKE_OSX_ARCHITECTURES': 'arm64',
        'CMAKE_OSX_DEPLOYMENT_TARGET': '11.0', 'CMAKE_OSX_SYSROOT': make_sdk(arguments.out),
        'CMAKE_TRY_COMPILE_TARGET_TYPE': 'STATIC_LIBRARY',
        'CMAKE_AR': shutil.which('llvm-ar'), 'CMAKE_RANLIB': shutil.which('llvm-ranlib'),
        'CMAKE_INSTALL_NAME_TOOL': '/bin/true', 'CMAKE_EXPORT_COMPILE_COMMANDS': 'ON',
        'QV_COMMONS_WARNINGS_AS_ERRORS': 'ON', 'QV_COMMONS_DESKTOP': 'OFF', 'QV_COMMONS_TESTS': 'OFF', 'QV_COMMONS_BENCH': 'OFF',
        'QV_COMMONS_FUZZ': 'OFF', 'QV_COMMONS_EXAMPLES': 'OFF'}
    for language in ('CXX', 'OBJCXX'):
        settings |= {f'CMAKE_{language}_COMPILER': shutil.which(arguments.compiler),
                     f'CMAKE_{language}_COMPILER_TARGET': TARGET,
                     f'CMAKE_{language}_COMPILER_WORKS': '1', f'CMAKE_{language}_FLAGS': extra}
    run(['cmake', '-S', ROOT, '-B', build, '-G', 'Ninja',
         *(f'-D{name}={value}' for name, value in settings.items())])


def run(command, **more):
    result = subprocess.run(command, capture_output=True, text=True, check=False, **more)
    if result.returncode:
        sys.stderr.write(result.stdout + result.stderr)
        sys.exit(1)


def compile_commands(build):
    with open(os.path.join(build, 'compile_commands.json'), encoding='utf-8') as file:
        return json.load(file)


def check_syntax(entry):
    """Of one of CMake's commands: its errors."""
    result = subprocess.run([*shlex.split(entry['command']), '-fsyntax-only'], cwd=entry['directory'],
                            capture_output=True, text=True, check=False)
    return result.stderr


def compile_alone(build, source):
    """With the flags that CMake gives the core's sources, or, for Objective-C, the adapter's."""
    kind = '.cpp' if source.endswith('.cpp') else '.mm'
    like = next(entry for entry in compile_commands(build) if entry['file'].endswith(kind))
    command = shlex.split(like['command'])
    command[command.index('-o') + 1] = os.path.join(build, source.replace('/', '_') + '.o')
    command[command.index('-c') + 1] = os.path.join(ROOT, source)
    if source.endswith('.m'):
        command = ['-std=gnu11' if part.startswith('-std=') else part for part in command]
        command[command.index('-x') + 1] = 'objective-c'
        for_cpp = '-nostdinc++', '-stdlib=libc++', '-fvisibility-inlines-hidden'
        command = [part for part in command if part not in for_cpp]
    run(command, cwd=like['directory'])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('out', type=os.path.realpath)
    parser.add_argument('objc_headers', type=os.path.realpath)
    parser.add_argument('sources', nargs='*')
    parser.add_argument('--compiler', default='clang++-19')
    parser.add_argument('--libcxx')
    parser.add_argument('--syntax-only', action='store_true')
    arguments = parser.parse_intermixed_args()
    build = os.path.join(arguments.out, 'build')
    configure(arguments, build)
    if arguments.syntax_only and not arguments.sources:
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            sys.exit(''.join(pool.map(check_syntax, compile_commands(build))) or 0)
    if not arguments.sources:
        run(['cmake', '--build', build])
    for source in arguments.sources or sorted(glob.glob('examples/ios_host/*.m', root_dir=ROOT)):
        compile_alone(build, source)


main()
