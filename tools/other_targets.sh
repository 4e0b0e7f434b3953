#!/usr/bin/env bash
# Builds for compilers and systems other than the everyday ones, as far as Debian's packages go:
# warnings by g++ and clang at every level, 32 bits, arm64 (its core tests run), WebAssembly, and
# macOS and iOS to objects, configured by CMake itself with an empty folder for an SDK.
#
#     tools/other_targets.sh [TARGET...]     by default all of: warnings i686 armhf arm64 wasm32 macos ios
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/packages.sh
out=$PWD/build/other
mkdir -p "$out"

quietly() { "$@" >"$out/log" 2>&1 || { tail -n 40 "$out/log"; echo "failed: $*"; exit 1; }; }
have() {
  for program in "$@"; do
    command -v "$program" >/dev/null || { echo "$target: left out, $program is not here"; return 1; }
  done
}

# Builds the libraries in $out/$name: build NAME [CMAKE_OPTION...]
build() {
  quietly cmake --preset library -B "$out/$1" -DQV_COMMONS_WARNINGS_AS_ERRORS=ON "${@:2}"
  quietly cmake --build "$out/$1"
  echo "$1: built without a warning"
}

# The same for a system on which there is no desktop adapter: cross NAME PROCESSOR COMPILER [CMAKE_OPTION...]
cross() {
  build "$1" -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR="$2" -DCMAKE_CXX_COMPILER="$3" \
    -DQV_COMMONS_DESKTOP=OFF -DQV_COMMONS_EXAMPLES=ON "${@:4}"
}

warnings() {
  for level in -O0 -O1 -O3 "-O2 -flto"; do
    build "g++ $level" -DCMAKE_CXX_COMPILER=g++ "-DCMAKE_CXX_FLAGS_RELEASE=$level" -DQV_COMMONS_EXAMPLES=ON
  done
  for compiler in clang++ clang++-19; do
    if have $compiler; then build "$compiler" -DCMAKE_CXX_COMPILER=$compiler; fi
  done
}

i686() { if have i686-linux-gnu-g++; then cross i686 i686 i686-linux-gnu-g++; fi; }
armhf() { if have arm-linux-gnueabihf-g++; then cross armhf arm arm-linux-gnueabihf-g++; fi; }

arm64() {
  have aarch64-linux-gnu-g++ qemu-aarch64 || return 0
  local compiler=(-DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=aarch64
    -DCMAKE_CXX_COMPILER=aarch64-linux-gnu-g++ -DCMAKE_C_COMPILER=aarch64-linux-gnu-gcc)
  quietly cmake -S /usr/src/googletest -B "$out/googletest" -G Ninja "${compiler[@]}"
  quietly cmake --build "$out/googletest"
  quietly cmake --install "$out/googletest" --prefix "$out/googletest/prefix"
  cross arm64 aarch64 aarch64-linux-gnu-g++ -DQV_COMMONS_TESTS=ON -DQV_COMMONS_UIKIT=OFF \
    -DGTest_DIR="$out/googletest/prefix/lib/cmake/GTest" \
    "-DCMAKE_CROSSCOMPILING_EMULATOR=qemu-aarch64;-L;/usr/aarch64-linux-gnu"
  ctest --test-dir "$out/arm64" -L 'core|conformance' -E oracle -j "$(nproc)" --no-tests=error | tail -n 3
}

wasm32() {
  have em++ || return 0
  build wasm32 -DCMAKE_TOOLCHAIN_FILE=/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake \
    -DQV_COMMONS_DESKTOP=OFF
}

# Debian's C++ library and musl's C headers in the place of a Mac's, to objects and archives:
# apple NAME SYSTEM PLATFORM TRIPLE [FLAG...]
apple() {
  have clang++-19 llvm-ar || return 0
  local sdk=$out/$1-sdk/$3.platform/Developer/SDKs/$3.sdk language
  local libcxx=/usr/lib/llvm-19/include/c++/v1
  mkdir -p "$sdk/usr/lib" "$sdk"/System/Library/Frameworks/{Foundation,UIKit,MessageUI}.framework
  local flags="-nostdinc -nostdinc++ -isystem $PWD/tools/ios_sysroot -isystem $libcxx
    -isystem $(clang-19 -print-resource-dir)/include -isystem $(echo /usr/include/*-linux-musl)
    -D_GNU_SOURCE ${*:5}"
  local options=()
  for language in CXX OBJCXX; do
    options+=("-DCMAKE_${language}_COMPILER=$(command -v clang++-19)" "-DCMAKE_${language}_COMPILER_TARGET=$4"
      "-DCMAKE_${language}_COMPILER_WORKS=1" "-DCMAKE_${language}_FLAGS=${flags//$'\n'/ }")
  done
  build "$1" -DCMAKE_SYSTEM_NAME="$2" -DCMAKE_OSX_SYSROOT="$sdk" -DCMAKE_OSX_DEPLOYMENT_TARGET=11.0 \
    -DCMAKE_OSX_ARCHITECTURES=arm64 -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY \
    -DCMAKE_AR="$(command -v llvm-ar)" -DCMAKE_RANLIB="$(command -v llvm-ranlib)" \
    -DCMAKE_INSTALL_NAME_TOOL=/bin/true "${options[@]}"
}

macos() { apple macos Darwin MacOSX arm64-apple-macos11.0; }

# Over the Objective-C headers that the dev build has patched, and the stand-in of UIKit.
ios() {
  local headers=$PWD/build/dev/objc_compat
  [ -d "$headers" ] || { echo "ios: left out, the dev preset's build of the iOS adapter is not here"; return 0; }
  apple ios iOS iPhoneOS arm64-apple-ios11.0 -isystem "$headers" \
    -isystem "$PWD/tests/uikit_standin" -isystem "$headers/GNUstep" -DGNUSTEP \
    -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 -D_NATIVE_OBJC_EXCEPTIONS -Wno-nullability-extension \
    -Wno-nullability-completeness
}

install_packages "${core_packages[@]}" "${other_packages[@]}"
if [ $# -eq 0 ]; then set -- warnings i686 armhf arm64 wasm32 macos ios; fi
for target in "$@"; do
  "$target"
done
