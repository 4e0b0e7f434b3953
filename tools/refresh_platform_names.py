#!/usr/bin/python3
"""Writes tests/uikit/platform_names.txt: the names of the platform that the adapter uses, as the
npm package @nativescript/types-ios (Apache-2.0) declares them, which is generated from the
platform's own headers.

    tools/refresh_platform_names.py OBJC_HEADERS [TYPES_PACKAGE]

OBJC_HEADERS is the build's folder of patched Objective-C headers (objc_compat). npm fetches the
package into a temporary folder, unless TYPES_PACKAGE is where it is already. A name that the package lacks, or declares
otherwise, is reported and left out. For protocols it gives no versions.
"""

import os
import re
import subprocess
import sys
import tempfile

import platform_names
from platform_names import Use

PACKAGE = '@nativescript/types-ios'
LIST = os.path.join(platform_names.ROOT, 'tests/uikit/platform_names.txt')
MODULES = ('CoreGraphics', 'Foundation', 'MessageUI', 'ObjectiveC', 'QuartzCore', 'UIKit')
HEADING = '''# The platform's names that the iOS adapter and its example use, as in {package}
# {version} (Apache-2.0), which is generated from the platform's own headers.
# Written by tools/refresh_platform_names.py.
# kind	owner	name	arguments, value or superclass	first system version
'''

# What the package leaves out: variadic methods, inline functions, and a method that would have the name of another one
# there.
LEFT_OUT = {
    Use('class-method', 'NSString', 'stringWithFormat:', '1', '-'),
    Use('class-method', 'NSException', 'raise:format:', '2', '-'),
    Use('function', '-', 'NSMakeRange', '-', '-'),
    Use('method', 'UIResponderStandardEditActions', 'copy:', '1', '-'),
}


class Declarations:
    """The package's declarations: members by owner, enums by name, and all else that is global."""

    def __init__(self, package):
        self.owners, self.enums, self.globals, self.since = {}, {}, set(), {}
        for module in MODULES:
            folder = os.path.join(package, 'lib/ios/objc-x86_64')
            with open(os.path.join(folder, f'objc!{module}.d.ts'), encoding='utf-8') as file:
                self._read(file)

    def _read(self, lines):
        members = values = None
        since = '-'
        for line in map(str.rstrip, lines):
            if found := re.search(r'\* @since ([\d.]+)', line):
                since = found[1]
                continue
            if line.lstrip().startswith(('*', '/')):
                continue
            if found := re.match(r'(?:declare class|interface) (\w+)(?:<[^{]*?>)?(.*)\{', line):
                owner = self.owners.setdefault(found[1], {'above': [], 'members': {}})
                owner['above'] += re.findall(r'\b[A-Z]\w+', re.sub(r'<[^<>]*>', '', found[2]))
                members, values = owner['members'], None
                self.since.setdefault(found[1], since)
            elif found := re.match(r'declare const enum (\w+)', line):
                members, values = None, self.enums.setdefault(found[1], {})
                self.since.setdefault(found[1], since)
            elif found := re.match(r'declare (?:var|function|const) (\w+)', line):
                self.globals.add(found[1])
                self.since[found[1]] = since
            elif line.startswith('}'):
                members = values = None
            elif values is not None and (found := re.match(r'\t(\w+) = (-?\d+)', line)):
                values[found[1]] = found[2], since
            elif members is not None and (found := re.match(
                    r'\t(static )?(?:readonly )?(\w+)\??(?:<[^(]*>)?(\(.*)?', line)):
                members.setdefault(found[2], []).append(
                    (bool(found[1]), _arguments(found[3]), since))
            if line:
                since = '-'

    def above(self, owner):
        """A class or protocol and everything that it inherits from, itself first."""
        found, waiting = [], [owner]
        while waiting:
            name = waiting.pop(0)
            if name in self.owners and name not in found:
                found.append(name)
                waiting += self.owners[name]['above']
        return found

    def member(self, owner, name, static, arguments):
        """The first version that has a member, or None."""
        for each in self.above(owner):
            for is_static, count, since in self.owners[each]['members'].get(name, ()):
                if is_static == static and count == arguments:
                    return max(since, self.since[each], key=version)
        return None

    def look_up(self, use):
        """`use` as the package has it, or None."""
        if use in LEFT_OUT:
            return use
        since = {
            'method': self._method, 'class-method': self._method, 'property': self._property,
            'class-property': self._property, 'value': self._value, 'class': self._class,
        }.get(use.kind, self._global)(use)
        return None if since is None else use._replace(
            since=since, number='-' if use.name in self.globals else use.number)

    def _method(self, use):
        """As itself, or as the getter or setter of a property."""
        static, parts = use.kind == 'class-method', use.name.split(':')
        joined = parts[0] + ''.join(part[:1].upper() + part[1:] for part in parts[1:])
        names = [(joined, int(use.number))]
        if use.number == '0':
            names.append((use.name, None))
            if found := re.match(r'is([A-Z])(.*)$', use.name):
                names.append((found[1].lower() + found[2], None))
        if found := re.match(r'set([A-Z])(.*):$', use.name):
            names += [(found[1].lower() + found[2], None), (found[1] + found[2], None)]
        return self._first(use, static, names)

    def _property(self, use):
        """As a property, or as a method without arguments."""
        return self._first(use, use.kind == 'class-property', [(use.name, None), (use.name, 0)])

    def _first(self, use, static, names):
        # The package tells the protocol from the class of the same name.
        owners = ['NSObjectProtocol', 'NSObject'] if use.owner == 'NSObject' else [use.owner]
        found = (self.member(owner, name, static, count)
                 for owner in owners for name, count in names)
        return next((since for since in found if since is not None), None)

    def _value(self, use):
        """By its number; a constant outside of the package's enums has none there."""
        for enum, values in self.enums.items():
            for short, (value, since) in values.items():
                prefix = use.name[:-len(short)] if use.name.endswith(short) else None
                if prefix is not None and enum.startswith(prefix) and value == use.number:
                    return max(since, self.since[enum], key=version)
        return self._global(use)

    def _class(self, use):
        known = use.name in self.owners and (
            use.number == '-' or use.number in self.above(use.name))
        return self.since[use.name] if known else None

    def _global(self, use):
        named = {'enum': self.enums, 'protocol': self.owners}.get(use.kind, self.globals)
        return self.since[use.name] if use.name in named else None


def version(text):
    return tuple(int(part) for part in text.split('.')) if text != '-' else (0,)


def _arguments(signature):
    """How many parameters "(a: T, b: (c: U) => V): W" has; None where it is no method."""
    if signature is None:
        return None
    depth = count = 0
    for character in signature:
        depth += (character in '([{<') - (character in ')]}')
        if character == '>' and before != '=':
            depth -= 1
        if depth == 0:
            break
        count += character == ',' and depth == 1
        before = character
    return count + 1 if signature[1] != ')' else 0


def fetch(folder):
    subprocess.run(['npm', 'install', '--no-save', '--ignore-scripts', '--silent',
                    '--prefix', folder, PACKAGE], check=True)
    return os.path.join(folder, 'node_modules', PACKAGE)


def refresh(objc_headers, package):
    declarations = Declarations(package)
    with open(os.path.join(package, 'package.json'), encoding='utf-8') as file:
        released = re.search(r'"version": "([^"]+)"', file.read())[1]
    finder = platform_names.Finder(objc_headers)
    for source in platform_names.sources():
        finder.read(source)
    known = {use: declarations.look_up(use) for use in finder.places}
    with open(LIST, 'w', encoding='utf-8') as file:
        file.write(HEADING.format(package=PACKAGE, version=released))
        file.writelines('\t'.join(use) + '\n' for use in sorted(filter(None, known.values())))
    for use in sorted(use for use, found in known.items() if found is None):
        print(f'{finder.places[use]}: unknown: {" ".join(use)}', file=sys.stderr)
    return int(None in known.values())


def main():
    objc_headers, *package = sys.argv[1:]
    if package:
        return refresh(objc_headers, package[0])
    with tempfile.TemporaryDirectory() as folder:
        return refresh(objc_headers, fetch(folder))


if __name__ == '__main__':
    sys.exit(main())
