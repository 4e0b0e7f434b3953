#!/usr/bin/env bash
# FetchContent, here from a folder; the memory adapter, where nothing of the desktop is wanted.
source "$(dirname "$0")/lib.sh"
take_memory_program
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
include(FetchContent)
FetchContent_Declare(qv_commons SOURCE_DIR $ENV{SOURCE})
FetchContent_MakeAvailable(qv_commons)
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::memory)
END
export SOURCE
quietly cmake -B build -DQV_COMMONS_DESKTOP=OFF $unity
quietly cmake --build build -j "$(nproc)"
expect_output build/notes
