#!/usr/bin/env bash
# find_package without components, from a prefix, by a program outside of it.
source "$(dirname "$0")/lib.sh"
take_program
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
find_package(qv_commons 1.0 REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Widgets)
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::desktop Qt6::Widgets)
END
quietly cmake -B build -DCMAKE_PREFIX_PATH="$SHARED/prefix"
quietly cmake --build build
expect_gate build/notes
