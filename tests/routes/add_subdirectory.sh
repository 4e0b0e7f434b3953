#!/usr/bin/env bash
# The library as a folder of the program's own project; nothing but the libraries is built along.
source "$(dirname "$0")/lib.sh"
take_program
export SOURCE
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
add_subdirectory($ENV{SOURCE} qv_commons)
find_package(Qt6 REQUIRED COMPONENTS Widgets)
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::desktop Qt6::Widgets)
END
quietly cmake -B build $unity
quietly cmake --build build -j "$(nproc)"
expect_gate build/notes
along=$(find build -name '*_test*' -o -name '*bench*' -o -name '*fuzz*' -o -name '*_host')
[ -z "$along" ] || fail "built along: $along"
! grep -E '^(GTest|benchmark)[A-Za-z0-9]*_DIR:' build/CMakeCache.txt || fail "looked for, in vain"
