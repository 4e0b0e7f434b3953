#!/usr/bin/env python3
"""Checks that no file outside the adapters includes anything but the C++ standard library and
qv_commons/. Prints each line that does; exits with 1 where there is one.

    tools/check_includes.py [ROOT]
"""
import pathlib
import re
import sys

STANDARD = set("""
algorithm any array atomic barrier bit bitset cctype cerrno cfenv cfloat charconv chrono cinttypes
climits clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal
cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution
forward_list fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator
latch limits list locale map memory mutex new numbers numeric optional ostream queue random ranges
ratio regex scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept
streambuf string string_view syncstream system_error thread tuple type_traits typeindex typeinfo
unordered_map unordered_set utility valarray variant vector version
""".split())
ADAPTERS = ("desktop", "uikit")
INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"]')


def complaint(kind, name):
    if kind == '"':
        return None if name.startswith("qv_commons/") else "is not of qv_commons/"
    # filesystem, format and the like are left out of the list: the oldest system in use lacks them.
    return None if name in STANDARD else "is not of the standard library of every system in use"


def files_outside_adapters(root):
    adapters = [root / "qv_commons" / "platform" / name for name in ADAPTERS]
    for path in sorted((root / "qv_commons").rglob("*")):
        in_adapter = any(adapter in path.parents for adapter in adapters)
        if path.suffix in {".h", ".cpp", ".mm", ".m"} and not in_adapter:
            yield path


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    checked = found = 0
    for path in files_outside_adapters(root):
        checked += 1
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            why = complaint(*match.groups()) if match else None
            if why:
                found += 1
                print(f"{path.relative_to(root)}:{number}: {match.group(2)} {why}")
    if checked == 0:
        sys.exit("no files to check")
    print(f"{checked} files checked, {found} includes complained of")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
