#!/usr/bin/env bash
# Qt missing: the library builds without the desktop adapter and says so; find_package is an error
# only where the adapter is asked for. Unknown components are named.
source "$(dirname "$0")/lib.sh"
hidden=(-DCMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON)
quietly cmake -S "$SOURCE" -B library "${hidden[@]}" -DQV_COMMONS_TESTS=OFF
grep -F "left out: desktop adapter, for want of Qt6Widgets (qt6-base-dev)" log || fail "not said"
expect_failure "The desktop adapter needs what was not found: Qt6Widgets (qt6-base-dev)" \
  cmake -S "$SOURCE" -B asked "${hidden[@]}" -DQV_COMMONS_DESKTOP=ON

take_memory_program
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
find_package(qv_commons REQUIRED COMPONENTS ${wanted})
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::memory)
END
prefix=-DCMAKE_PREFIX_PATH=$SHARED/prefix
quietly cmake -B build "$prefix" "${hidden[@]}"
grep -F "qv_commons::desktop is left out, for want of Qt6Widgets (qt6-base-dev)" log || fail "not said"
quietly cmake --build build
expect_output build/notes
expect_failure "qv_commons::desktop is left out, for want of Qt6Widgets (qt6-base-dev)" \
  cmake -B desktop "$prefix" "${hidden[@]}" -Dwanted=desktop
quietly cmake -B memory "$prefix" -Dwanted=memory
! grep Qt6 memory/CMakeCache.txt || fail "looked for Qt"
expect_failure "qv_commons::screens is not among what is installed here." \
  cmake -B screens "$prefix" -Dwanted=screens
