#!/usr/bin/env bash
# Sets up, builds and passes every test. ./test.sh --quick leaves out all but the dev preset's tests.
#
# QV_LONG_TESTS=1 turns the random tests up from their everyday size, QV_FUZZ_SECONDS=N the fuzzing.
set -euo pipefail
cd "$(dirname "$0")"
source tools/packages.sh

step() { printf '\n== %s (%ss)\n' "$*" "$SECONDS"; }
have() { command -v "$1" >/dev/null || { echo "left out: $1 is not here"; return 1; }; }
# What these find differs from version to version.
of_version_14() { "$1" --version | grep -q 'version 14\.' || { echo "left out: $1 is not of version 14"; return 1; }; }
build() { cmake --preset "$1" >"build/$1.log" 2>&1 && cmake --build --preset "$1" >>"build/$1.log" 2>&1 ||
  { tail -n 60 "build/$1.log"; exit 1; }; }
run_tests() { ctest --preset "$1" -j "$(nproc)" --no-tests=error "${@:2}"; }

# What reads sources and layouts, or builds on its own, gives the same answer in every preset.
static_checks='^routes\.|uikit\.(ios|xib|platform_names|public_headers|privacy|resource)'

mkdir -p build
install_packages "${core_packages[@]}" "${desktop_packages[@]}" "${tour_packages[@]}" \
  "${test_packages[@]}" "${bench_packages[@]}" "${ios_packages[@]}"
unpack_packages "${unpacked_packages[@]}"

step "format"
if have clang-format && of_version_14 clang-format; then tools/format.sh --check; fi

step "dev: everything, by g++"
build dev
run_tests dev

if [ "${1:-}" = --quick ]; then exit; fi

if have clang++; then
  step "asan: addresses and undefined behaviour, by clang++"
  build asan
  run_tests asan -E "$static_checks"

  step "tsan: threads"
  build tsan
  run_tests tsan -L 'core|conformance'

  step "fuzz: the targets on their corpora, then for a while on their own"
  build fuzz
  run_tests fuzz
  for target in build/fuzz/fuzz/*_fuzz; do
    name=$(basename "$target" _fuzz)
    mkdir -p "build/fuzz/found/$name"
    "$target" -max_total_time="${QV_FUZZ_SECONDS:-5}" -verbosity=0 "build/fuzz/found/$name" "fuzz/corpus/$name"
    echo "$name: nothing found in ${QV_FUZZ_SECONDS:-5} seconds"
  done
fi

step "the pages of the public interface"
if have doxygen; then tools/api_pages.sh; fi

step "tidy"
if have clang-tidy && of_version_14 clang-tidy; then tools/tidy.sh; fi

step "coverage of the core"
if have lcov; then tools/coverage.sh; fi
