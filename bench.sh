#!/usr/bin/env bash
# Times the library beside its peers and beside the limit of what is possible, all in one run, and
# writes the table of docs/performance.md. With a regular expression, only the contests whose names
# match, and nothing is written: ./bench.sh base64
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
source "$root/tools/packages.sh"
install_packages "${core_packages[@]}" "${desktop_packages[@]}" "${bench_packages[@]}"

build=$root/build/bench
mkdir -p "$build"
quietly() { "$@" >"$build/build.log" 2>&1 || { tail -n 60 "$build/build.log"; exit 1; }; }
quietly cmake -S "$root" --preset release -B "$build" -DQV_COMMONS_TESTS=OFF \
  -DQV_COMMONS_EXAMPLES=OFF -DQV_COMMONS_FUZZ=OFF -DQV_COMMONS_UIKIT=OFF
quietly cmake --build "$build" --target qv_commons_bench

# The contenders take turns in random order, so that what else the machine does hits them all.
echo "Timing; this takes some minutes."
QT_QPA_PLATFORM=offscreen "$build/bench/qv_commons_bench" --benchmark_filter="${1:-.}" \
  --benchmark_enable_random_interleaving=true --benchmark_repetitions=11 \
  --benchmark_min_time=0.05 --benchmark_out="$build/results.json" --benchmark_out_format=json \
  >"$build/run.log" 2>&1 || { tail -n 20 "$build/run.log"; exit 1; }

if [ $# -gt 0 ]; then
  exec python3 "$root/bench/report.py" "$build"
fi
exec python3 "$root/bench/report.py" "$build" "$root/docs/performance.md"
