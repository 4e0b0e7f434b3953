#!/usr/bin/python3
"""Links Swift objects for arm64-apple-ios11.0 with what tools/ios_check.py left of the library and the
example, as tests/uikit/ios_link.py does, against one more stub library: the names that Swift's own
sources list as exported by its libraries for this processor.

    tests/swift/link_check.py TOOLCHAIN IOS_OUT OBJECT...     each object alone, with -ObjC and without
    tests/swift/link_check.py TOOLCHAIN IOS_OUT FOLDER        all objects of a package, which has the library
"""

import glob
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../uikit'))
import ios_link  # noqa: E402

# Of UIKit, what the list of its names lacks, as no Objective-C uses it.
UIKIT_CLASSES, UIKIT_NAMES = ['UIFont'], ['UIFontTextStyleBody']
# Of the libraries that Swift's sources don't hold: those over Foundation, and the archives of the tools
# that an older system's programs carry with them.
OVERLAYS = """
$s10Foundation3URLV14absoluteStringSSvg
$s10Foundation3URLV36_unconditionallyBridgeFromObjectiveCyACSo5NSURLCSgFZ
$s10ObjectiveC22_convertObjCBoolToBoolySbAA0cD0VF
$sSS10FoundationE19_bridgeToObjectiveCSo8NSStringCyF
$sSS10FoundationE36_unconditionallyBridgeFromObjectiveCySSSo8NSStringCSgFZ
$sSa10FoundationE19_bridgeToObjectiveCSo7NSArrayCyF
""".split()
CARRIED = [f'_swift_FORCE_LOAD_$_swiftCompatibility{name}'
           for name in ('50', '51', '56', 'Concurrency', 'DynamicReplacements')]
# Objects name the libraries that they come with by a file of the tools; the stub is in their place.
NAMED = ['-ignore_auto_link', '-framework', 'CoreFoundation']


def swift_names(toolchain):
    found = set()
    for path in glob.glob(toolchain + '/source/*/swift/test/abi/Inputs/macOS/arm64/*/baseline'):
        with open(path, encoding='utf-8') as file:
            found |= {line.strip()[1:] for line in file if line.startswith('_')}
    assert len(found) > 10000, 'the lists of exported names are not there'
    return found


def check_package(linker, folder, stub):
    objects = glob.glob(folder + '/**/*.o', recursive=True)
    said, path = linker.link_all('package', '12.0', '-dylib', *objects, stub, *NAMED)
    if said or not ios_link.WITHOUT_REFERENCE <= ios_link.names(path):
        yield f'the package: {said or "classes are left out"}'


def check_objects(linker, objects, stub):
    for item in objects:
        for flags in ([], ['-ObjC']):
            said, path = linker.link('swift_host', item, *linker.example(), stub, *NAMED, *flags)
            if said or not ios_link.WITHOUT_REFERENCE <= ios_link.names(path):
                yield f'{item} {flags}: {said or "classes are left out"}'
    said, _ = linker.link('swift_host', objects[0], *linker.example(), *NAMED)
    if 'undefined symbol: _$s' not in said:
        yield "without Swift's libraries nothing is missed"
    print(f'swift: {len(objects)} objects tried with the example, with -ObjC and without')


def main():
    toolchain, out, *inputs = sys.argv[1:]
    linker = ios_link.Linker(out)
    stub = os.path.join(out, 'swift.tbd')
    ios_link.write_stub(stub, [*swift_names(toolchain), *OVERLAYS, *CARRIED, *UIKIT_NAMES], UIKIT_CLASSES)
    if os.path.isdir(inputs[0]):
        failures = list(check_package(linker, inputs[0], stub))
    else:
        failures = list(check_objects(linker, inputs, stub))
    print('\n'.join(failures), end='')
    return bool(failures)


if __name__ == '__main__':
    sys.exit(main())
