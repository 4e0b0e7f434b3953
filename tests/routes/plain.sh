#!/usr/bin/env bash
# The two lines of any CMake project, and an installation. The tests and benchmarks are left out, which
# take minutes; with QV_LONG_TESTS=1 they are built, too. No warning may show.
source "$(dirname "$0")/lib.sh"
without=(-DQV_COMMONS_TESTS=OFF -DQV_COMMONS_BENCH=OFF)
if [ "${QV_LONG_TESTS:-}" ]; then without=(); fi

rm -rf "$SHARED/static" "$SHARED/prefix"
quietly cmake -S "$SOURCE" -B "$SHARED/static" -DCMAKE_BUILD_TYPE=Release "${without[@]}"
grep "builds: core, memory adapter, desktop adapter (Qt 6" log || fail "no summary"
CMAKE_BUILD_PARALLEL_LEVEL=$(nproc) quietly cmake --build "$SHARED/static"
! grep "warning:" log || fail "warnings"
quietly cmake --install "$SHARED/static" --prefix "$SHARED/prefix"
output=$("$SHARED/static/examples/quickstart/quickstart")
[[ $output == *"IAP: Yes pro_monthly" ]] || fail "printed: $output"
