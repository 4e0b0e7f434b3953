#!/usr/bin/env bash
# An app's package that depends on this one, built for the device by Swift's own package manager: the app of
# README.md, and of Package.swift what it has for iOS. In the SDK's place are the headers of tools/ios_check.py
# for the library, and the mock in tests/swift for the app. Then all of its objects are linked.
#
#     tests/swift/device_package_check.sh TOOLCHAIN OUT      after tests/swift/package_check.sh, with the same OUT
#
# build/ios, build/swift/out/ios and OBJC_HEADERS in build/dev are as tools/swift_check.sh leaves them.
set -euo pipefail
toolchain=$1 out=$2 here=$PWD
packages=$here/$out/device headers=$here/$out/headers

# Below the present folder, which is all that the package manager sees of this machine.
mkdir -p "$headers" "$packages"/{QV_Commons,app/Sources/App}
cp -ruLT /usr/lib/llvm-19/include/c++/v1 "$headers/libcxx"
cp -ruLT "$(echo /usr/include/*-linux-musl)" "$headers/musl"
cp -ruLT build/dev/objc_compat "$headers/objc"
ln -sfn ../../QV_Commons/{qv_commons,swift} "$packages/QV_Commons"
cp -u "$out/mac/Package.swift" "$packages/QV_Commons"
cp -u tests/swift/app/Package.swift "$packages/app"
cp -u build/swift/out/apps/README.swift "$packages/app/Sources/App"

# Asked for, and not used where nothing is archived.
libtool=$toolchain/tree/usr/bin/libtool
if [ ! -e "$libtool" ]; then install -m 755 /dev/null "$libtool"; fi
sdk=$packages/iPhoneOS.platform/Developer/SDKs/iPhoneOS.sdk
mkdir -p "$sdk"

library=(-nostdinc -nostdinc++ -stdlib=libc++ -D_GNU_SOURCE -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1
  -D_NATIVE_OBJC_EXCEPTIONS -Wno-nullability-completeness)
for folder in "$here"/build/ios/config "$here"/tools/ios_sysroot "$headers/libcxx" /usr/libexec/swift/lib/clang/17/include \
  "$headers/musl" "$headers/objc" "$here/tests/uikit_standin" "$headers/objc/GNUstep"; do
  library+=("-isystem$folder")
done
app=(-resource-dir "$here/$toolchain/ios" -I "$here/tests/swift/sdk" -I "$here/build/swift/out/ios" -Xcc -ffreestanding
  -Xfrontend -disable-objc-attr-requires-foundation-module -Xfrontend -disable-legacy-type-info
  -Xfrontend -disable-implicit-string-processing-module-import)
flags=()
for flag in "${library[@]}"; do flags+=(-Xcxx "$flag"); done
for flag in "${app[@]}"; do flags+=(-Xswiftc "$flag"); done
for target in QVCommonsCore App; do
  "$toolchain/in_root" swift-build --package-path "$packages/app" --triple arm64-apple-ios11.0 --sdk "$sdk" "${flags[@]}" \
    --target $target >"$out/device.log" 2>&1 || { cat "$out/device.log"; echo "swift: the app's package is not built"; exit 1; }
done
tests/swift/link_check.py "$toolchain" build/ios "$packages/app/.build/arm64-apple-ios/debug"
echo "swift: an app's package is built for the device, and its objects link"
