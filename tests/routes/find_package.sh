#!/usr/bin/env bash
# The README's two projects, whole: find_package from a prefix, by programs outside of it.
source "$(dirname "$0")/lib.sh"
prefix=-DCMAKE_PREFIX_PATH=$SHARED/prefix
cp -r "$SOURCE/examples/notes" "$SOURCE/examples/notes_test" .
quietly cmake -S notes_test -B test "$prefix"
quietly cmake --build test
quietly ctest --test-dir test --no-tests=error

# The app runs until somebody ends it.
quietly cmake -S notes -B app "$prefix"
quietly cmake --build app
result=0
XDG_DATA_HOME=$folder/data timeout 3 app/notes 2>log || result=$?
[ $result = 124 ] || { cat log; fail "the app ended by itself, with $result"; }

cp "$routes/program/main.cpp" notes/main.cpp
quietly cmake --build app
expect_gate app/notes
