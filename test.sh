#!/usr/bin/env bash
# Sets up, builds and passes every test, and says at its end what ran. ./test.sh --quick leaves out all
# but the dev preset's tests. With CI=1 a stage that has to be left out is a failure.
#
# QV_LONG_TESTS=1 turns the random tests up from their everyday size, QV_FUZZ_SECONDS=N the fuzzing.
set -euo pipefail
cd "$(dirname "$0")"
source tools/packages.sh
source tools/stages.sh

plan format dev asan coverage fuzz tsan pages tidy

build() {
  cmake --preset "$1" >"build/$1.log" 2>&1 && cmake --build --preset "$1" >>"build/$1.log" 2>&1 ||
    { tail -n 60 "build/$1.log"; exit 1; }
  while IFS= read -r line; do leave_out "$1" "$line"; done < <(sed -n 's/^-- *left out: //p' "build/$1.log")
}
run_tests() {
  ctest --preset "$1" -j "$(nproc)" --no-tests=error "${@:2}"
  local log=build/$1/Testing/Temporary/LastTest.log
  cases=$((cases + $(passed_cases "$log")))
  while IFS= read -r name; do note_skipped "$1" "$name"; done < <(skipped_cases "$log")
}
fuzz_target() {
  local name
  name=$(basename "$1" _fuzz)
  mkdir -p "build/asan/found/$name"
  if [ "$name" = layout ]; then export LSAN_OPTIONS=detect_leaks=0; fi  # see fuzz/CMakeLists.txt
  LLVM_PROFILE_FILE=/dev/null "$1" -max_total_time="${QV_FUZZ_SECONDS:-5}" -verbosity=0 \
    -artifact_prefix=build/asan/found/ "build/asan/found/$name" "fuzz/corpus/$name" &&
    echo "$name: nothing found in ${QV_FUZZ_SECONDS:-5} seconds"
}
export -f fuzz_target

# What reads sources and layouts, or builds on its own, gives the same answer in every preset.
static_checks='^routes\.|uikit\.(ios|xib|platform_names|public_headers|privacy|resource)'

mkdir -p build
install_packages "${core_packages[@]}" "${desktop_packages[@]}" "${tour_packages[@]}" \
  "${test_packages[@]}" "${bench_packages[@]}" "${ios_packages[@]}"
unpack_packages "${unpacked_packages[@]}"

if needs format clang-format 14; then
  stage format
  tools/format.sh --check
fi

stage dev  # everything, by g++
build dev
run_tests dev

if [ "${1:-}" = --quick ]; then
  for name in asan coverage fuzz tsan pages tidy; do leave_out $name "by --quick"; done
  exit
fi

if needs asan clang++ && needs tsan clang++ && needs fuzz clang++; then
  stage asan  # addresses and undefined behaviour, by clang++, the fuzz targets on their corpora
  build asan
  rm -rf build/asan/profiles
  run_tests asan -E "$static_checks"

  if needs coverage llvm-cov; then
    stage coverage
    tools/coverage --no-build
  fi

  stage fuzz  # for a while on their own
  targets=(build/asan/fuzz/*_fuzz)
  printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I {} bash -c 'fuzz_target {}'
  cases=${#targets[@]}

  stage tsan  # what starts threads
  build tsan
  run_tests tsan -L threads
fi

if needs pages doxygen; then
  stage pages
  tools/api_pages.sh
fi

if needs tidy clang-tidy 14; then
  stage tidy
  tools/tidy
fi
