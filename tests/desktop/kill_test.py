#!/usr/bin/env python3
"""Kills a host app at random moments around the confirm of a date of birth, and starts it again.

Nobody who is under age may be let through by it, and whoever has seen the refusal stays refused.
Usage: kill_test.py PROGRAM [RUNS [SEED]]
"""
import collections
import os
import random
import subprocess
import sys
import tempfile
import time

PROGRAM = sys.argv[1]
UNDER_AGE = "2020"
OLD_ENOUGH = "1980"
LONGEST_MILLISECONDS = 60


def begin(folder, year):
    process = subprocess.Popen([PROGRAM, folder, year], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, text=True)
    if process.stdout.readline() != "ready\n":
        process.kill()
        sys.exit("the age gate did not come up")
    return process


def confirm(process):
    process.stdin.write("\n")
    process.stdin.flush()


def outcome(folder):
    return subprocess.run([PROGRAM, folder], stdout=subprocess.PIPE, text=True, check=True,
                          timeout=60).stdout.strip()


def kill(process):
    """What the process had said after "ready" when it was killed."""
    process.kill()
    said = process.stdout.read().split()
    process.wait()
    return said


def one_run(generator, processes):
    """The outcome of the next start, and whether a refusal had been seen before the kill."""
    with tempfile.TemporaryDirectory() as folder:
        started = [begin(folder, UNDER_AGE) for _ in range(processes)]
        for process in started:
            confirm(process)
        time.sleep(generator.uniform(0, LONGEST_MILLISECONDS) / 1000)
        said = [kill(process) for process in started]
        return outcome(folder), any("told" in words for words in said)


def allowed_stays_allowed():
    with tempfile.TemporaryDirectory() as folder:
        process = begin(folder, OLD_ENOUGH)
        confirm(process)
        was_told = process.stdout.readline() == "told\n"
        kill(process)
        return was_told and outcome(folder) == "allowed" and outcome(folder) == "allowed"


def main():
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int.from_bytes(os.urandom(4), "big")
    generator = random.Random(seed)
    os.environ.setdefault("XDG_RUNTIME_DIR", tempfile.gettempdir())
    if not allowed_stays_allowed():
        sys.exit("a user who is old enough was not let through at the next start")
    counts = collections.Counter()
    let_through = lost = 0
    for run in range(runs):
        processes = 4 if run % 20 == 19 else 1
        result, seen = one_run(generator, processes)
        counts[result, "told" if seen else "not told"] += 1
        let_through += result == "allowed"
        lost += seen and result != "refused"
    for (result, seen), number in sorted(counts.items()):
        print(f"{number:5} runs: killed when {seen}, {result} at the next start")
    print(f"seed {seed}: {runs} kills, {let_through} let through, {lost} confirmed flags lost")
    sys.exit(1 if let_through or lost else 0)


if __name__ == "__main__":
    main()
