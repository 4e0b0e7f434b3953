# The stages of a long run, and the summary at its end: what ran with how many cases in how many
# minutes, what was left out and why. To be sourced.
#
#     plan format dev tidy         # all that there is, in this order
#     stage dev                    # `dev` runs until the next stage begins
#     cases=$((cases + 12))        # what it passed
#     leave_out tidy "clang-tidy is not here"
#     note_skipped dev Files.AreReadByRoot
#
# The summary is printed however the run ends. Where the variable CI is set, a run that left something
# out fails.

stages_planned=()
stages_lines=()     # of those that ran
stages_left_out=()
stages_skipped=()   # cases, which may have their reasons
stages_known=" "    # the names of both
stages_running=
stages_began=0
cases=0

plan() {
  stages_planned=("$@")
  trap 'stages_end $?' EXIT
}

stages_close() {  # stages_close RESULT
  if [ -z "$stages_running" ]; then return; fi
  local seconds=$((SECONDS - stages_began))
  stages_lines+=("$(printf '  %-12s %6s cases  %5s min  %s' "$stages_running" \
    "$([ "$cases" -gt 0 ] && echo "$cases" || echo -)" \
    "$((seconds / 60)).$((seconds % 60 * 10 / 60))" "$1")")
  stages_running=
}

stage() {
  stages_close passed
  stages_running=$1 stages_began=$SECONDS cases=0
  stages_known+="$1 "
  printf '\n== %s (%ss)\n' "$1" "$SECONDS"
}

# leave_out STAGE[: PART] WHY
leave_out() {
  stages_left_out+=("  $1: $2")
  stages_known+="${1%%:*} "
}

# note_skipped STAGE CASE
note_skipped() { stages_skipped+=("  $1: $2"); }

# Whether the program is there, and where MAJOR is given, in that version; says in the summary that STAGE
# is left out where not: needs STAGE PROGRAM [MAJOR]
needs() {
  if ! command -v "$2" >/dev/null; then
    leave_out "$1" "$2 is not here"
    return 1
  fi
  # What some programs find differs from version to version.
  if [ -n "${3:-}" ] && ! "$2" --version | grep -q "version $3\\."; then
    leave_out "$1" "$2 is not of version $3"
    return 1
  fi
}

stages_end() {  # stages_end EXIT_CODE
  local code=$1 name
  if [ "$code" -eq 0 ]; then stages_close passed; else stages_close FAILED; fi
  for name in "${stages_planned[@]}"; do
    if [[ $stages_known != *" $name "* ]]; then leave_out "$name" "not reached"; fi
  done
  printf '\n== summary (%ss)\n' "$SECONDS"
  if [ ${#stages_lines[@]} -gt 0 ]; then printf '%s\n' "${stages_lines[@]}"; fi
  if [ ${#stages_skipped[@]} -gt 0 ]; then
    printf 'cases that skipped themselves:\n'
    printf '%s\n' "${stages_skipped[@]}"
  fi
  if [ ${#stages_left_out[@]} -gt 0 ]; then
    printf 'left out:\n'
    printf '%s\n' "${stages_left_out[@]}"
    if [ "$code" -eq 0 ] && [ -n "${CI:-}" ]; then
      echo "failed: in CI nothing may be left out"
      exit 1
    fi
  fi
  if [ "$code" -eq 0 ]; then echo passed; else echo "failed with code $code"; fi
  exit "$code"
}

# How many cases a run of CTest passed, by its log: those of GoogleTest one by one, every other test as one.
passed_cases() {  # passed_cases LOG
  awk '/^[0-9]+\/[0-9]+ Test: / { ours = 0 }
       /^\[       OK \]/ { ++ours; ++sum }
       /^Test Passed\./ { if (!ours) ++sum }
       END { print sum + 0 }' "$1"
}

# The names of the cases that skipped themselves, for reasons that they tell.
skipped_cases() {  # skipped_cases LOG
  sed -nE 's/^\[  SKIPPED \] ([^ ]+) \([0-9]+ ms\)$/\1/p' "$1" | sort -u
}
