#!/usr/bin/env bash
# pkg-config in the place of CMake, with the static libraries of a prefix.
source "$(dirname "$0")/lib.sh"
export PKG_CONFIG_PATH=$SHARED/prefix/lib/pkgconfig
[ "$(pkg-config --modversion qv_commons)" = 1.0.0 ] || fail "another version"
take_memory_program
quietly "${CXX:-g++}" -std=c++20 main.cpp -o memory $(pkg-config --cflags --libs qv_commons_memory)
expect_output ./memory
take_program
quietly "${CXX:-g++}" -std=c++20 -fPIC main.cpp -o notes $(pkg-config --cflags --libs qv_commons_desktop)
expect_gate ./notes
