#!/usr/bin/env bash
# Formats every source of the project; with --check, only says which ones are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."
mode=(-i)
if [ "${1:-}" = --check ]; then mode=(--dry-run --Werror); fi
git ls-files -z '*.h' '*.cpp' '*.m' '*.mm' | xargs -0 clang-format "${mode[@]}"
