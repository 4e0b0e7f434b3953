#!/usr/bin/env bash
# Swift's own compiler over the public headers: the interface that Swift sees is the one expected,
# the example, the apps of README.md and docs/ios.md and every accepted case compile in Swift 5 and 6, every
# refused case is turned down for its reason. For Linux, where the interface of the platform is the
# mock in tests/swift, and, to Mach-O, for arm64-apple-ios11.0, for which the example and the apps are
# linked with the library, too. Then its package manager over Package.swift (tests/swift/package_check.sh, device_package_check.sh).
#
#     tools/swift_check.sh [OUT]        by default build/swift/out
#
# The compiler is Debian 13's, fetched once into build/swift/toolchain (770 MB). Elsewhere than on
# Debian on x86-64 nothing is checked, and a line says so; nothing is linked where ./test.sh has not built.
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:-build/swift/out}
toolchain=build/swift/toolchain
if [ "$(uname -m)" != x86_64 ] || ! command -v apt-get dpkg >/dev/null; then
  echo "swift: left out, needs Debian on x86-64"
  exit
fi
tools/get_swift.sh "$toolchain" || { echo "swift: left out, its compiler could not be fetched"; exit; }
rm -rf "$out"
mkdir -p "$out"

tests=tests/swift
headers=qv_commons/platform/uikit/include
failures=0
fail() { echo "swift: $*"; failures=$((failures + 1)); }

# swift TARGET ARGUMENTS...: the compiler with Objective-C on, and the mock for the platform.
swift() {
  local target=$1 where=()
  shift
  case $target in
    linux) where=(-resource-dir "$toolchain/tree/usr/libexec/swift/lib/swift") ;;
    ios) where=(-target arm64-apple-ios11.0 -resource-dir "$toolchain/ios"
      -disable-implicit-string-processing-module-import -disable-legacy-type-info) ;;
  esac
  "$toolchain/swift-frontend" -frontend "$@" "${where[@]}" -parse-as-library -enable-objc-interop \
    -disable-objc-attr-requires-foundation-module -module-cache-path "$out/$target/cache" \
    -Xcc -ffreestanding -I "$out/$target" -I $tests/sdk -I $headers
}

check() {
  local target=$1 version name source
  mkdir -p "$out/$target"
  for name in ObjectiveC Foundation UIKit; do
    swift "$target" -emit-module -module-name $name -o "$out/$target/$name.swiftmodule" $tests/overlay/$name.swift
  done
  for version in 5 6; do
    swift "$target" -c -module-name Host -swift-version $version examples/ios_host/TimesViewController.swift \
      -o "$out/$target/host$version.o" || fail "$target: the example is refused in Swift $version"
    for source in "$out"/apps/*.swift; do
      swift "$target" -c -module-name App -swift-version $version "$source" \
        -o "$out/$target/$(basename "$source" .swift)$version.o" || fail "$target: $source is refused in Swift $version"
    done
    for source in $tests/accepted/*.swift; do
      swift "$target" -emit-sil -module-name Case -swift-version $version "$source" -o "$out/case.sil" ||
        fail "$target: $source is refused in Swift $version"
    done
  done
  for source in $tests/refused/*.swift; do  # each says in its first line why
    if swift "$target" -typecheck -swift-version 6 "$source" 2>"$out/refused"; then
      fail "$target: $source is not refused"
    elif ! grep -qF "$(sed -n '1s,^// refused: ,,p' "$source")" "$out/refused"; then
      fail "$target: $source is refused for another reason: $(grep error: "$out/refused")"
    fi
  done
}

# The apps of the pages, as they stand there.
mkdir "$out/apps"
for page in README docs/ios; do
  app=$out/apps/$(basename $page).swift
  awk '/^```swift/ { inside = 1; next } /^```/ { inside = 0 } inside' $page.md >"$app"
  grep -q startAgeGateProcess "$app" || fail "$page.md has no app"
done

check linux
echo >"$out/empty.swift"
mkdir "$out/interface"
swift linux -emit-module -o "$out/interface/QV_Commons_iOS.swiftmodule" -module-name QV_Commons_iOS \
  -import-underlying-module -emit-symbol-graph -emit-symbol-graph-dir "$out/interface" "$out/empty.swift"
python3 $tests/compare_interface.py "$out/interface" tests/uikit/public_interface.txt || fail "the interface is another"

# An SDK from before these marks were known.
swift linux -typecheck -Xcc -DMOCK_OLD_SDK -swift-version 5 $tests/accepted/any_thread.swift ||
  fail "the headers need the marks of a later SDK"

if [ ! -d "$toolchain/ios" ]; then
  $tests/build_device_library.sh "$toolchain" "$toolchain/ios.new"
  mv "$toolchain/ios.new" "$toolchain/ios"
fi
check ios
# The example's UI test, which only a Mac runs.
swift ios -emit-module -module-name XCTest -o "$out/ios/XCTest.swiftmodule" $tests/overlay/XCTest.swift
for version in 5 6; do
  swift ios -typecheck -swift-version $version examples/ios_host/UITests/*.swift || fail "the UI test is refused in Swift $version"
done
if swift ios -typecheck -application-extension "$out/apps/README.swift" 2>"$out/extension" ||
  ! grep -qF 'unavailable in application extensions for iOS' "$out/extension"; then
  fail "the age gate is not refused in an app extension: $(cat "$out/extension")"
fi
linked=true
if [ -d build/dev/objc_compat ] && [ -d build/unpacked ]; then
  tools/ios_check.py build/ios build/dev/objc_compat
  $tests/link_check.py "$toolchain" build/ios "$out"/ios/{host,README,ios}{5,6}.o || fail "an app does not link"
else
  linked=false
  echo "swift: nothing is linked, as ./test.sh has not built"
fi
packaged=0
$tests/package_check.sh "$toolchain" build/swift/package || packaged=$?
if [ $packaged -eq 0 ] && $linked; then
  $tests/device_package_check.sh "$toolchain" build/swift/package || fail "the app's package"
elif [ $packaged -ne 0 ] && [ $packaged -ne 77 ]; then
  fail "the package"
fi

echo "swift: $(ls $tests/accepted | wc -l) cases accepted and $(ls $tests/refused | wc -l) refused, in Swift 5 and 6, for Linux and iOS: $failures failed"
[ $failures -eq 0 ]
