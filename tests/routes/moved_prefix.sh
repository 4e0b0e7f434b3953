#!/usr/bin/env bash
# A prefix that was moved to a folder whose name has spaces and other letters; the program with its
# layouts stands in it, and they are taken from there.
source "$(dirname "$0")/lib.sh"
prefix="$folder/Größe und Maß — 中文"
cp -r "$SHARED/prefix" "$prefix"
take_program
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
find_package(qv_commons REQUIRED COMPONENTS desktop)
find_package(Qt6 REQUIRED COMPONENTS Widgets)
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::desktop Qt6::Widgets)
install(TARGETS notes)
file(WRITE ${CMAKE_BINARY_DIR}/bundle "${qv_commons_RESOURCE_BUNDLE}")
END
quietly cmake -B build -DCMAKE_PREFIX_PATH="$prefix"
quietly cmake --build build
[ "$(<build/bundle)" = "$prefix/share/qv_commons/QV_Commons_iOS.bundle" ] || fail "$(<build/bundle)"
quietly cmake --install build --prefix "$prefix"
expect_gate "$prefix/bin/notes"

# That those layouts are taken shows where they are damaged.
truncate -s 2000 "$prefix/share/qv_commons/QV_Commons_iOS.bundle/QV_AgeGateViewController.ui"
expect_failure "the layout $prefix/share/qv_commons/QV_Commons_iOS.bundle/QV_AgeGateViewController.ui" \
  "$prefix/bin/notes" painted.png data
