#!/usr/bin/env bash
# Shared libraries, of whose insides nothing shows, and pkg-config in the place of CMake.
source "$(dirname "$0")/lib.sh"
build=$SHARED/shared
quietly cmake --preset library -S "$SOURCE" -B "$build" -DBUILD_SHARED_LIBS=ON $unity
quietly cmake --build "$build"
rm -rf "$SHARED/shared-prefix"
quietly cmake --install "$build" --prefix "$SHARED/shared-prefix"
lib=$SHARED/shared-prefix/lib

for name in qv_commons qv_commons_memory qv_commons_desktop; do
  grep -q "SONAME *lib$name.so.1$" <<<"$(objdump -p "$lib/lib$name.so")" || fail "lib$name.so has no SONAME"
done
shown=$(nm -DC --defined-only "$lib"/libqv_commons*.so)
grep -q " T qv_commons::QV_TimeHelper::secondsToDays(" <<<"$shown" || fail "a public function is hidden"
! grep -E "fillInAppName|findLayout|WheelDatePicker" <<<"$shown" || fail "shown, though not public"

export PKG_CONFIG_PATH=$lib/pkgconfig LD_LIBRARY_PATH=$lib
take_memory_program
quietly "${CXX:-g++}" -std=c++20 main.cpp -o memory $(pkg-config --cflags --libs qv_commons_memory)
expect_output ./memory
take_program
quietly "${CXX:-g++}" -std=c++20 -fPIC main.cpp -o notes $(pkg-config --cflags --libs qv_commons_desktop Qt6Widgets)
expect_gate ./notes
