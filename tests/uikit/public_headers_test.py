"""Reads the public headers as a compiler does: what Swift sees of them, and what they refuse."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), '../..'))
HEADERS = os.path.join(ROOT, 'qv_commons/platform/uikit/include/QV_Commons_iOS')
FLAGS = ['-fsyntax-only', '-fobjc-arc', '-fobjc-runtime=gnustep-1.6', '-fblocks', '-fobjc-exceptions',
         '-DGNUSTEP', '-DGNUSTEP_BASE_LIBRARY=1', '-DGNU_RUNTIME=1', '-D_NATIVE_OBJC_EXCEPTIONS',
         '-I' + os.path.dirname(HEADERS), '-I' + os.path.join(ROOT, 'tests/uikit_standin'),
         '-isystem', os.environ['QV_OBJC_HEADERS'],
         '-isystem', os.environ['QV_OBJC_HEADERS'] + '/GNUstep',
         '-Wall', '-Wextra', '-Wnullability-completeness', '-Wswift-name-attribute', '-Werror']
# Names that Swift makes of the platform's declaration, or of a property's name, by itself.
INHERITED = {'mailComposeController:didFinishWithResult:error:', 'shared',
             'qv_searchTextField_all_iOS_versions'}

failures = []


def check(condition, text):
    if not condition:
        failures.append(text)


def clang(source, *more, language='objective-c', flags=FLAGS):
    with tempfile.NamedTemporaryFile('w', suffix='.m') as file:
        file.write(source)
        file.flush()
        return subprocess.run([os.environ['QV_CLANG'], '-x', language, *flags, *more, file.name],
                              capture_output=True, text=True, check=False)


def operations():
    with open(os.path.join(ROOT, 'tests/uikit/public_interface.txt'), encoding='utf-8') as file:
        return [line.split('|')[:4] for line in file if not line.startswith('#')]


def swift_names(tree):
    """(owner, selector) -> Swift name, from the methods of clang's syntax tree."""
    names, owner, selector = {}, None, None
    for line in tree.splitlines():
        if found := re.search(r'Obj(?:C|CC)(?:Interface|Protocol)Decl .* (\w+)$', line):
            owner = found[1]
        elif found := re.search(r"ObjCMethodDecl .* [+-] (\S+) '", line):
            selector = found[1]
        elif found := re.search(r'SwiftNameAttr .* "(.*)"', line):
            names[owner, selector] = found[1]
    return names


def in_a_framework(headers):
    """What the compiler says of the headers where they are a framework's."""
    with tempfile.TemporaryDirectory() as folder:
        framework = os.path.join(folder, 'QV_Commons_iOS.framework')
        shutil.copytree(headers, os.path.join(framework, 'Headers'))
        flags = [flag for flag in FLAGS if flag != '-I' + os.path.dirname(HEADERS)]
        return clang('#import <QV_Commons_iOS/QV_Commons_iOS.h>\n', '-F' + folder,
                     '-Wquoted-include-in-framework-header', flags=flags).stderr


def check_framework():
    check(not in_a_framework(HEADERS), f'as a framework: {in_a_framework(HEADERS)}')
    with tempfile.TemporaryDirectory() as folder:
        planted = os.path.join(folder, 'Headers')
        shutil.copytree(HEADERS, planted)
        with open(os.path.join(planted, 'QV_Links.h'), 'a', encoding='utf-8') as file:
            file.write('#import "QV_Defines.h"\n')
        check('double-quoted include' in in_a_framework(planted), 'a quoted include is not told')


def main():
    umbrella = '#import <QV_Commons_iOS/QV_Commons_iOS.h>\n'
    for language in ('objective-c', 'objective-c++'):
        result = clang(umbrella, language=language)
        check(result.returncode == 0, f'the headers do not compile as {language}:\n{result.stderr}')

    tree = clang(umbrella, '-Xclang', '-ast-dump').stdout
    names = swift_names(tree)
    for owner, _, selector, swift_name in operations():
        if selector not in INHERITED:
            found = names.pop((owner, selector), None)
            check(found == swift_name, f'{owner} {selector}: {found} for {swift_name}')
    check(not names, f'Swift names that nobody expects: {names}')

    with open(os.path.join(HEADERS, 'QV_Commons_iOS.h'), encoding='utf-8') as file:
        imported = set(re.findall(r'^#import <QV_Commons_iOS/(.*)>', file.read(), re.M))
    others = {name for name in os.listdir(HEADERS) if name.endswith('.h')}
    check(imported == others - {'QV_Commons_iOS.h', 'QV_Defines.h'},
          f'the umbrella header is not the whole: {imported ^ others}')
    for name in others:  # each stands alone
        result = clang(f'#import <QV_Commons_iOS/{name}>\n')
        check(result.returncode == 0, f'{name} does not compile alone:\n{result.stderr}')

    check_framework()
    with tempfile.TemporaryDirectory() as cache:
        result = clang('@import QV_Commons_iOS;\nvoid f(void) { (void)[QV_Links privacyPolicy]; }\n',
                       '-fmodules', '-fmodules-cache-path=' + cache,
                       '-fmodule-map-file=' + os.path.join(HEADERS, '../module.modulemap'))
        check(result.returncode == 0, f'the module does not compile:\n{result.stderr}')

    for expression in ('[[QV_AgeGateColorTheme alloc] init]', '[QV_AgeGateColorTheme new]'):
        result = clang(umbrella + f'void f(void) {{ (void){expression}; }}\n')
        check(result.returncode != 0 and 'is unavailable' in result.stderr,
              f'{expression} is not refused')
    result = clang(umbrella + 'void f(void) { (void)[QV_AgeGateColorTheme defaultTheme]; }\n')
    check(result.returncode == 0, 'defaultTheme is refused')

    print('\n'.join(failures) or f'{len(operations())} operations, {len(others)} headers')
    return bool(failures)


sys.exit(main())
