#!/usr/bin/env bash
# The library twice in one build is told at once, whichever came first.
source "$(dirname "$0")/lib.sh"
twice() {
  { echo 'cmake_minimum_required(VERSION 3.25)'
    echo 'project(notes LANGUAGES CXX)'
    printf '%s\n' "$@"; } >CMakeLists.txt
  rm -rf build
  cmake -B build -DCMAKE_PREFIX_PATH="$SHARED/prefix" -DQV_COMMONS_DESKTOP=OFF
}
add() { echo "add_subdirectory($SOURCE $1)"; }
find='find_package(qv_commons REQUIRED COMPONENTS memory)'
expect_failure "QV Commons is in this build already." twice "$(add one)" "$(add two)"
expect_failure "QV Commons is in this build already." twice "$find" "$(add one)"
expect_failure "QV Commons is in this build already, as a folder." twice "$(add one)" "$find"
quietly twice "$find" "$find"
