"""Links what was compiled for the device, without its SDK: against stub libraries that export the
names of platform_names.txt, those of libc++ 15, and the names of the run-time and the C library below.
A name that none of them has is an error of the linker's."""

import os
import re
import subprocess

HERE = os.path.dirname(os.path.abspath(__file__))
UNPACKED = os.path.join(HERE, '../../build/unpacked')
LIBCXX = [os.path.join(UNPACKED, f'{package}-15/usr/lib/llvm-15/lib/{name}.so.1.0')
          for package, name in (('libc++1', 'libc++'), ('libc++abi1', 'libc++abi'))]

RUNTIME = """
_objc_alloc objc_alloc objc_allocWithZone objc_alloc_init objc_autorelease objc_autoreleasePoolPop
objc_autoreleasePoolPush objc_autoreleaseReturnValue objc_copyWeak objc_destroyWeak
objc_enumerationMutation objc_getAssociatedObject objc_initWeak objc_loadWeak objc_loadWeakRetained
objc_moveWeak objc_msgSend objc_msgSendSuper2 objc_opt_class objc_opt_isKindOfClass objc_opt_self
objc_release objc_retain objc_retainAutorelease objc_retainAutoreleaseReturnValue
objc_retainAutoreleasedReturnValue objc_retainBlock objc_setAssociatedObject objc_setProperty_atomic
objc_setProperty_nonatomic objc_setProperty_nonatomic_copy objc_storeStrong objc_storeWeak
_objc_empty_cache __objc_personality_v0 _Block_copy _Block_release _Block_object_assign _Block_object_dispose
_NSConcreteGlobalBlock _NSConcreteStackBlock __CFConstantStringClassReference __NSDictionary0__
NSClassFromString NSStringFromClass NSStringFromSelector
""".split()
C_LIBRARY = """
_Unwind_Resume __cxa_atexit __stack_chk_fail __stack_chk_guard __isPlatformVersionAtLeast abort atoi
bzero fflush fprintf fputc fwrite memchr memcmp memcpy memmove memset snprintf strcmp strlen strtod
""".split()
# By the names that the headers in the SDK's place give them; none of the device's.
IN_PLACE_OF_THE_SDK = ['stderr', 'stdout', '_NSRangeExceptionRaise']

# What no symbol of the public classes' own refers to.
WITHOUT_REFERENCE = {'_OBJC_CLASS_$_QV_Installation', '_OBJC_CLASS_$_QV_AgeGateViewController',
                     '_OBJC_CLASS_$_QV_AgeGateRefusedViewController',
                     '-[UISearchBar(QV_SearchBar) qv_searchTextField_all_iOS_versions]'}


def platform_names():
    """Classes, and other names."""
    with open(os.path.join(HERE, 'platform_names.txt'), encoding='utf-8') as file:
        rows = [line.split('\t') for line in file if not line.startswith('#')]
    classes = {row[2] for row in rows if row[0] == 'class'}
    classes |= {row[1] for row in rows if row[0].startswith('class-')}
    return sorted(classes), [row[2] for row in rows if row[0] in ('constant', 'function')]


def exports(library):
    listing = subprocess.run(['llvm-nm', '-D', '--defined-only', '--format=just-symbols', library],
                             capture_output=True, text=True, check=True).stdout
    return [name.split('@')[0] for name in listing.split()]


def write_stub(path, symbols, classes=()):
    quoted = ', '.join(['dyld_stub_binder', *(f"'_{name}'" for name in sorted(set(symbols)))])
    with open(path, 'w', encoding='utf-8') as file:
        file.write(f'--- !tapi-tbd\ntbd-version: 4\ntargets: [ arm64-ios ]\n'
                   f"install-name: '/usr/lib/{os.path.basename(path)}'\nexports:\n"
                   f'  - targets: [ arm64-ios ]\n    symbols: [ {quoted} ]\n'
                   f'    objc-classes: [ {", ".join(classes)} ]\n...\n')


def make_stubs(folder):
    classes, names = platform_names()
    stubs = [os.path.join(folder, name) for name in ('platform.tbd', 'cxx.tbd')]
    write_stub(stubs[0], names + RUNTIME + C_LIBRARY + IN_PLACE_OF_THE_SDK, classes)
    core_foundation = os.path.join(folder, 'CoreFoundation.framework')
    os.makedirs(core_foundation, exist_ok=True)
    write_stub(os.path.join(core_foundation, 'CoreFoundation.tbd'), ['CFBundleGetVersionNumber'])
    write_stub(stubs[1], [name for library in LIBCXX for name in exports(library)])
    return stubs


class Linker:
    """Over what tools/ios_check.py left in `out`."""

    def __init__(self, out):
        self._out, self._build = out, os.path.join(out, 'build')
        self._stubs = make_stubs(out)
        self.archives = [os.path.join(self._build, 'qv_commons', name) for name in
                         ('platform/uikit/libqv_commons_uikit.a', 'libqv_commons.a')]

    def example(self):
        return [os.path.join(self._build, name) for name in sorted(os.listdir(self._build))
                if re.fullmatch(r'examples_ios_host_.*\.o', name)]

    def link(self, name, *inputs):
        """With the library: what the linker says, and the path of what it made."""
        return self.link_all(name, '11.0', *inputs, *self.archives)

    def link_all(self, name, system, *inputs):
        path = os.path.join(self._build, name)
        result = subprocess.run(
            ['ld64.lld-19', '-arch', 'arm64', '-platform_version', 'ios', system, system, '-F',
             self._out, '-o', path, *inputs, *self._stubs], capture_output=True, text=True, check=False)
        return result.stderr, path


def names(path, *flags):
    return set(subprocess.run(['llvm-nm', '--format=just-symbols', '--defined-only', *flags, path],
                              capture_output=True, text=True, check=True).stdout.split('\n'))
