#!/usr/bin/env bash
# Sets up, builds and runs the host app; where there is no display, its scripted tour, which leaves
# its files in out/. The arguments go to the host app: see ./run.sh --help. With --memory, the tour
# runs on the memory adapter, which needs no package of the desktop.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
source "$root/tools/packages.sh"

host=desktop_host
for argument in "$@"; do
  if [ "$argument" = --memory ]; then host=memory_host; fi
done

install_packages "${core_packages[@]}"
if [ $host = desktop_host ]; then
  install_packages "${desktop_packages[@]}" "${tour_packages[@]}"
fi

build=$root/build/run
mkdir -p "$build"
quietly() { "$@" >"$build/run.log" 2>&1 || { cat "$build/run.log"; exit 1; }; }
quietly cmake -S "$root" --preset release -B "$build" -DQV_COMMONS_TESTS=OFF \
  -DQV_COMMONS_BENCH=OFF -DQV_COMMONS_FUZZ=OFF
if [ $host = desktop_host ] && ! cmake --build "$build" --target help | grep -q '^desktop_host:'; then
  echo "The packages of the desktop are not there: running the tour on the memory adapter."
  host=memory_host
fi
quietly cmake --build "$build" --target $host

if [ $host = memory_host ]; then
  exec "$build/examples/memory_host/memory_host" "$@"
fi
exec "$build/examples/desktop_host/desktop_host" "$@"
