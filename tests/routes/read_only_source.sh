#!/usr/bin/env bash
# An ordinary user configures a build of sources that cannot be written.
source "$(dirname "$0")/lib.sh"
mkdir source build
tar -c -C "$SOURCE" --exclude=./build --exclude=./out --exclude=./.git . | tar -x -C source
chmod -R a-w source
as_user=()
if [ "$(id -u)" = 0 ]; then
  as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups env -u CMAKE_CXX_COMPILER_LAUNCHER
    -u CMAKE_OBJCXX_COMPILER_LAUNCHER HOME="$folder/build")
  chmod a+rx "$folder"
  chown 65534 build
fi
if "${as_user[@]}" touch source/written 2>/dev/null; then fail "the sources can be written"; fi
quietly "${as_user[@]}" cmake -S source -B build -DQV_COMMONS_TESTS=OFF
