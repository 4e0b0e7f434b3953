"""Holds the interface that Swift's compiler wrote down to the one expected.

    compare_interface.py FOLDER EXPECTED
"""

import glob
import json
import sys


def seen(folder):
    """Declarations by their names, marks of threads left out: the cases hold those."""
    names = {}
    for path in glob.glob(folder + '/*.symbols.json'):
        with open(path, encoding='utf-8') as file:
            for symbol in json.load(file)['symbols']:
                text = ''.join(part['spelling'] for part in symbol['declarationFragments'])
                for mark in ('@MainActor ', 'nonisolated '):
                    text = text.replace(mark, '')
                names['.'.join(symbol['pathComponents'])] = text
    return names


def expected(path):
    names = {}
    with open(path, encoding='utf-8') as file:
        for line in file:
            if line.startswith('#'):
                continue
            owner, _, _, name, declaration = line.rstrip('\n').split('|')
            if owner == 'QV_SupportHelperDelegate':
                names[owner] = f'protocol {owner} : NSObjectProtocol'
            elif owner.startswith('QV_'):
                names[owner] = f'class {owner}'
            if declaration != '-':
                names[f'{owner}.{name}'] = declaration
    return names


def main():
    have, want = seen(sys.argv[1]), expected(sys.argv[2])
    different = [name for name in sorted(have | want) if have.get(name) != want.get(name)]
    for name in different:
        print(f'{name}\n  seen      {have.get(name)}\n  expected  {want.get(name)}')
    print(f'{len(have)} declarations seen, {len(want)} expected, {len(different)} different')
    return bool(different)


sys.exit(main())
