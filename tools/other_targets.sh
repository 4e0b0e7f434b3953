#!/usr/bin/env bash
# Builds for compilers and systems other than the everyday ones, as far as Debian's packages go: warnings
# by g++ and clang, 32 bits, arm64 (its core tests run), WebAssembly, and macOS to objects, configured
# by CMake itself with an empty folder for an SDK. iOS is a test, uikit.ios_compile_test.
#
#     tools/other_targets.sh [TARGET...]     by default all of: warnings i686 armhf arm64 wasm32 macos
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

# What the presets and the plain build of tests/routes leave out: -O0, -O2 and -O3 are theirs, and clang
# at -O1. In a few large pieces, as that takes a fraction of the time.
warnings() {
  local unity=-DCMAKE_UNITY_BUILD=ON
  for level in -O1 "-O2 -flto"; do
    build "g++ $level" -DCMAKE_CXX_COMPILER=g++ "-DCMAKE_CXX_FLAGS_RELEASE=$level" -DQV_COMMONS_EXAMPLES=ON $unity
  done
  if have clang++-19; then build clang++-19 -DCMAKE_CXX_COMPILER=clang++-19 $unity; fi
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
  quietly ctest --test-dir "$out/arm64" -L 'core|conformance' -LE oracle -j "$(nproc)" --no-tests=error \
    --output-on-failure
  echo "arm64: $(grep 'tests passed' "$out/log")"
}

wasm32() {
  have em++ || return 0
  build wasm32 -DCMAKE_TOOLCHAIN_FILE=/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake \
    -DQV_COMMONS_DESKTOP=OFF
}

# Debian's C++ library and musl's C headers in the place of a Mac's, to objects and archives.
macos() {
  have clang++-19 llvm-ar || return 0
  local sdk=$out/macos-sdk/MacOSX.platform/Developer/SDKs/MacOSX.sdk
  mkdir -p "$sdk/usr/lib" "$sdk/System/Library/Frameworks"
  build macos -DCMAKE_SYSTEM_NAME=Darwin -DCMAKE_OSX_SYSROOT="$sdk" -DCMAKE_OSX_DEPLOYMENT_TARGET=11.0 \
    -DCMAKE_OSX_ARCHITECTURES=arm64 -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY \
    -DCMAKE_AR="$(command -v llvm-ar)" -DCMAKE_RANLIB="$(command -v llvm-ranlib)" \
    -DCMAKE_INSTALL_NAME_TOOL=/bin/true -DCMAKE_CXX_COMPILER="$(command -v clang++-19)" \
    -DCMAKE_CXX_COMPILER_TARGET=arm64-apple-macos11.0 -DCMAKE_CXX_COMPILER_WORKS=1 \
    "-DCMAKE_CXX_FLAGS=-nostdinc -nostdinc++ -isystem $PWD/tools/ios_sysroot \
-isystem /usr/lib/llvm-19/include/c++/v1 -isystem $(clang-19 -print-resource-dir)/include \
-isystem $(echo /usr/include/*-linux-musl) -D_GNU_SOURCE"
}

declare -A packages=(
  [warnings]="clang-19"
  [i686]="g++-i686-linux-gnu"
  [armhf]="g++-arm-linux-gnueabihf"
  [arm64]="googletest g++-aarch64-linux-gnu qemu-user"
  [wasm32]="emscripten"
  [macos]="clang-19 libc++-19-dev llvm musl-dev")
if [ $# -eq 0 ]; then set -- warnings i686 armhf arm64 wasm32 macos; fi
for target in "$@"; do
  install_packages "${core_packages[@]}" ${packages[$target]}
  "$target"
done
