#!/usr/bin/env bash
# Swift's own package manager over Package.swift: it builds and tests the logic and the memory adapter;
# the program that README.md begins with is made in a package that takes them in; and of what a Mac builds
# besides, it finds every source and resource.
#
#     tests/swift/package_check.sh TOOLCHAIN OUT       OUT is kept, so that a second run builds what has changed
#
# Ends with 77 where this user can't mount folders, without which it does not run.
set -euo pipefail
toolchain=$1 out=$2
in_root() { "$toolchain/in_root" "$@"; }
if ! in_root swiftc --version >/dev/null 2>&1; then
  echo "swift: the package is left out, this user can't mount folders here"
  exit 77
fi
fail() { echo "swift: $*"; exit 1; }

# Two archives of Swift's are not in Debian's package; they are made of its sources.
libraries=$toolchain/tree/usr/libexec/swift/lib/swift/linux
make_archive() {
  [ ! -e "$libraries/libswift$1.a" ] || return 0
  in_root swiftc -c -wmo -O -parse-as-library -suppress-warnings -cxx-interoperability-mode=default \
    -module-name "$1" -o "$out/$1.o" "${@:2}"
  in_root llvm-ar crs "$out/$1.a" "$out/$1.o"
  mv "$out/$1.a" "$libraries/libswift$1.a"
}
mkdir -p "$out"
overlay=$(find "$toolchain/source" -path '*/stdlib/public/Cxx')
make_archive Cxx "$overlay"/*.swift
make_archive CxxStdlib "$overlay"/std/*.swift

# mirror FROM TO [TAR_OPTION...]: a copy in which what has not changed keeps its place, so that it isn't built again.
mirror() {
  local from=$1 to=$2 file
  mkdir -p "$to"
  tar -c -C "$from" "${@:3}" . | tar -x -C "$to" --keep-newer-files --warning=no-ignore-newer
  find "$to" -path "$to/.build" -prune -o \( -type f -o -type l \) -printf '%P\n' | while read -r file; do
    [ -e "$from/$file" ] || rm "$to/$file"
  done
}
package=$out/QV_Commons host=$out/cxx_host
mirror . "$package" --exclude=./build --exclude=./out --exclude=./.git --exclude=./.build
in_root swift-build --package-path "$package" >"$out/build.log" 2>&1 || { cat "$out/build.log"; fail "swift build fails"; }
in_root swift-test --package-path "$package" >"$out/test.log" 2>&1 || { cat "$out/test.log"; fail "swift test fails"; }
tests=$(cat swift/tests/*.swift | grep -c 'func test')
grep -q "Executed $tests tests, with 0 failures" "$out/test.log" || { cat "$out/test.log"; fail "not $tests tests"; }

# What a Mac builds besides.
mkdir -p "$out/mac"
ln -sfn ../QV_Commons/{qv_commons,swift} "$out/mac"
sed 's/^#if os(macOS)$/#if true/' Package.swift >"$out/mac/Package.swift"
in_root swift-package --package-path "$out/mac" describe --type json >"$out/mac.json" 2>"$out/mac.log" ||
  { cat "$out/mac.log"; fail "Package.swift is refused"; }
[ ! -s "$out/mac.log" ] || { cat "$out/mac.log"; fail "Package.swift is warned of"; }
tests/swift/package_targets.py <"$out/mac.json" || fail "the package is not what CMake builds"

mirror tests/swift/cxx_host "$host"
mkdir -p "$host/Sources/cxx_host"
cp -p examples/quickstart/main.cpp "$host/Sources/cxx_host"
in_root swift-build --package-path "$host" >"$out/host.log" 2>&1 || { cat "$out/host.log"; fail "a package of C++ is not built"; }
[[ $(in_root "$host/.build/debug/cxx_host") == *"IAP: Yes pro_monthly" ]] || fail "the package of C++ does not work"
echo "swift: swift build and swift test pass ($tests tests), and a package of C++ that takes the library in works"
