#!/usr/bin/env bash
# Builds with counters, runs the core's tests and reports how much of the core and the memory adapter
# they ran; fails below the floor: tools/coverage.sh [FLOOR, default 95]
set -euo pipefail
cd "$(dirname "$0")/.."
floor=${1:-95}
build=build/coverage
mkdir -p $build
cmake --preset coverage >$build.log
cmake --build --preset coverage >>$build.log
find $build -name '*.gcda' -delete
ctest --preset coverage -L 'core|conformance' -j "$(nproc)" --no-tests=error >$build.log
lcov --quiet --capture --directory $build --no-external --base-directory . -o $build/all.info 2>/dev/null
lcov --quiet --extract $build/all.info "$PWD/qv_commons/*" -o $build/core.info 2>/dev/null
lcov --list $build/core.info
percent=$(lcov --summary $build/core.info 2>&1 | sed -n 's/.*lines\.*: \([0-9]*\).*/\1/p')
echo "lines run: $percent %, floor $floor %"
[ "$percent" -ge "$floor" ]
