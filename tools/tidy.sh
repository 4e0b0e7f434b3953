#!/usr/bin/env bash
# Runs clang-tidy over the C++ sources of the library and the examples, as the dev preset builds them: tools/tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
files=("$@")
if [ ${#files[@]} -eq 0 ]; then
  built=$(python3 -c 'import json; print(*(c["file"] for c in json.load(open("build/dev/compile_commands.json"))), sep="\n")')
  mapfile -t files < <(git ls-files 'qv_commons/*.cpp' 'examples/*.cpp' | sed "s|^|$PWD/|" | grep -Fx "$built")
fi
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 2 clang-tidy --quiet -p build/dev
