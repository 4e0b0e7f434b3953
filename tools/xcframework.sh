#!/usr/bin/env bash
# On a Mac with Xcode: QV_Commons_iOS.xcframework for devices and the simulator, to be dragged into a
# project. Static frameworks with the headers, the module map, and the resource bundle inside, its
# layouts compiled. Not run where this was written, which is not a Mac.
#
#     tools/xcframework.sh [OUT] [MAKER_HOST]       by default build/xcframework and www.example.com
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:-build/xcframework}
host=${2:-www.example.com}
resources=qv_commons/resources/QV_Commons_iOS.bundle
oldest=${IPHONEOS_DEPLOYMENT_TARGET:-12.0}  # Xcode 14 is the last that takes 11.0
if ! command -v xcodebuild >/dev/null; then
  echo "xcframework: needs a Mac with Xcode" >&2
  exit 1
fi
rm -rf "$out"

# framework SDK ARCHITECTURES
framework() {
  local sdk=$1 build=$out/$1 made=$out/$1/QV_Commons_iOS.framework
  cmake -S . -B "$build/cmake" -G Xcode -DCMAKE_SYSTEM_NAME=iOS -DCMAKE_OSX_SYSROOT="$sdk" \
    -DCMAKE_OSX_ARCHITECTURES="$2" -DCMAKE_OSX_DEPLOYMENT_TARGET="$oldest" -DQV_COMMONS_MAKER_HOST="$host" \
    -DQV_COMMONS_DESKTOP=OFF -DQV_COMMONS_TESTS=OFF -DQV_COMMONS_BENCH=OFF -DQV_COMMONS_FUZZ=OFF \
    -DQV_COMMONS_EXAMPLES=OFF -DQV_COMMONS_INSTALL=OFF
  cmake --build "$build/cmake" --config Release --target qv_commons_uikit
  mkdir -p "$made"/{Headers,Modules,QV_Commons_iOS.bundle}
  find "$build/cmake" -name 'libqv_commons*.a' -path '*Release*' ! -name '*memory*' -print0 |
    xargs -0 libtool -static -o "$made/QV_Commons_iOS"
  cp qv_commons/platform/uikit/include/QV_Commons_iOS/*.h "$made/Headers"
  cat >"$made/Modules/module.modulemap" <<'MAP'
framework module QV_Commons_iOS {
  umbrella header "QV_Commons_iOS.h"
  export *
  module * { export * }
}
MAP
  cp -R "$resources/PrivacyInfo.xcprivacy" "$resources/Info.plist" "$resources"/*.lproj "$made/QV_Commons_iOS.bundle"
  for layout in "$made"/QV_Commons_iOS.bundle/Base.lproj/*.xib; do
    xcrun ibtool --compile "${layout%.xib}.nib" "$layout"
    rm "$layout"
  done
  cat >"$made/Info.plist" <<PLIST
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>CFBundleIdentifier</key>
    <string>qv-commons.ios</string>
    <key>CFBundleName</key>
    <string>QV_Commons_iOS</string>
    <key>CFBundlePackageType</key>
    <string>FMWK</string>
    <key>CFBundleShortVersionString</key>
    <string>$(sed -n 's/.*project(qv_commons VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)</string>
    <key>MinimumOSVersion</key>
    <string>$oldest</string>
</dict>
</plist>
PLIST
}

framework iphoneos arm64
framework iphonesimulator "arm64;x86_64"
xcodebuild -create-xcframework -framework "$out/iphoneos/QV_Commons_iOS.framework" \
  -framework "$out/iphonesimulator/QV_Commons_iOS.framework" -output "$out/QV_Commons_iOS.xcframework"
echo "Copy QV_Commons_iOS.bundle out of the framework into the app: a static framework's code is in the app."
