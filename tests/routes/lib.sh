# What the routes share. Each is a script of what a newcomer types, run in an empty folder outside of
# the tree, and ends with the painted age gate or with a program's output. To be sourced.
#
#   SOURCE  the library's sources          (by hand: this tree)
#   SHARED  where the routes keep what they share, the built libraries (by hand: build/routes)
#   GATE    the program of program/main.cpp as the tree's own build makes it: what it paints is what
#           every route must paint
set -euo pipefail
routes=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
SOURCE=${SOURCE:-$(cd "$routes/../.." && pwd)}
SHARED=${SHARED:-$SOURCE/build/routes}
GATE=${GATE:-$SOURCE/build/dev/tests/routes/gate}
export QT_QPA_PLATFORM=offscreen
mkdir -p "$SHARED"

folder=$(mktemp -d)
trap 'chmod -R u+w "$folder"; rm -rf "$folder"' EXIT
cd "$folder"
export CCACHE_BASEDIR=$folder CCACHE_NOHASHDIR=1  # where that is in use: the folder's name changes

fail() { echo "$*" >&2; exit 1; }

# Runs a command, whose output is shown only where it fails.
quietly() { "$@" >"$folder/log" 2>&1 || { cat "$folder/log"; fail "failed: $*"; }; }

# Passes where a command fails and says, across line ends, what is expected of it.
expect_failure() {
  local expected=$1
  shift
  if "$@" >"$folder/log" 2>&1; then fail "passed, though it should not: $*"; fi
  grep -qF "$expected" <<<"$(tr -s '\n ' ' ' <"$folder/log")" || { cat "$folder/log"; fail "not said: $expected"; }
}

# For builds of the whole library beyond the plain one: its sources in a few large pieces, as some
# projects build, which takes a fraction of the time.
unity=-DCMAKE_UNITY_BUILD=ON

# The program with this library's age gate, and the same for the memory adapter.
take_program() { cp "$routes/program/main.cpp" .; }
take_memory_program() { cp "$routes/program/memory.cpp" main.cpp; }

expect_gate() {
  "$GATE" expected.png data-of-expected
  "$@" painted.png data-of-painted
  cmp expected.png painted.png || fail "the gate isn't painted as by the tree's own build"
}

expect_output() { [ "$("$@")" = "2.4.1(317)" ] || fail "printed: $("$@")"; }
