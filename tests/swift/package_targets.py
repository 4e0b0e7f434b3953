#!/usr/bin/python3
"""Holds what the package manager finds in Package.swift, as on a Mac, to what CMake builds: the sources of
each target, and the resources of the one that has some.

    swift package describe --type json | tests/swift/package_targets.py
"""

import json
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../uikit'))
from packaging_test import listed_by_cmake  # noqa: E402
from xib_document import BUNDLE  # noqa: E402


def resources_of_the_bundle():
    """All but the desktop's layouts, and the list of properties that the package manager makes itself."""
    found = [os.path.relpath(os.path.join(folder, name), BUNDLE)
             for folder, _, names in os.walk(BUNDLE) for name in names]
    return sorted(name for name in found if not name.endswith(('.ui', 'Info.plist')))


def main():
    found = {target['name']: target for target in json.load(sys.stdin)['targets']}
    wrong = []
    for name, folder in (('QVCommonsCore', 'qv_commons'), ('QVCommonsMemory', 'qv_commons/platform/memory'),
                         ('QV_Commons_iOS', 'qv_commons/platform/uikit')):
        sources = {os.path.normpath(os.path.join(found[name]['path'], source)) for source in found[name]['sources']}
        if sources != listed_by_cmake(folder):
            wrong.append(f'{name}: {sources ^ listed_by_cmake(folder)}')
        if found[name].get('resources'):
            wrong.append(f'{name} has resources: {found[name]["resources"][0]}')
    resources = sorted(each['path'].split('/swift/resources/')[1] for each in found['iOS']['resources'])
    if resources != resources_of_the_bundle():
        wrong.append(f'iOS: {set(resources) ^ set(resources_of_the_bundle())}')
    print('\n'.join(wrong), end='')
    return bool(wrong)


if __name__ == '__main__':
    sys.exit(main())
