"""The report's medians and ratios, on a run with round figures."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import report


def measurement(name, family, **figures):
    return {"run_type": "iteration", "run_name": name, "family_index": family, **figures}


RESULTS = {"benchmarks": [
    measurement("read/second/QV Commons", 3, items_per_second=1e6),
    measurement("write/first/QV Commons", 0, items_per_second=2.5e8),
    measurement("write/first/QV Commons", 0, items_per_second=1e8),
    measurement("write/first/QV Commons", 0, items_per_second=5e8),
    measurement("write/first/slow", 1, items_per_second=1e7),
    measurement("write/first/slower", 2, items_per_second=2.5e6),
    measurement("write/first/limit: a copy", 4, items_per_second=5e8),
    measurement("show/screen/QV Commons/iterations:3", 5, real_time=1500.0, time_unit="us"),
    {"run_type": "aggregate", "run_name": "write/first/QV Commons", "family_index": 0, "real_time": 9e9},
]}


class Report(unittest.TestCase):
    def test_gives_medians_and_ratios_in_the_order_of_registration(self):
        self.assertEqual(list(report.rows(report.medians(RESULTS))), [
            ("write", "first", "4 ns", "2 times a copy (2 ns)", "slow 25 · slower 100"),
            ("read", "second", "1 µs", "", ""),
            ("show", "screen", "1.5 ms", "", ""),
        ])

    def test_leaves_out_contests_without_the_library(self):
        peers = [one for one in RESULTS["benchmarks"] if one["run_name"] != "read/second/QV Commons"]
        peers.append(measurement("read/second/slow", 4, items_per_second=1e6))
        works = [row[0] for row in report.rows(report.medians({"benchmarks": peers}))]
        self.assertEqual(works, ["write", "show"])

    def test_says_so_if_nothing_was_timed(self):
        for text in ("", json.dumps({"benchmarks": [measurement("read/second/slow", 0, items_per_second=1e6)]})):
            with tempfile.TemporaryDirectory() as build:
                pathlib.Path(build, "results.json").write_text(text)
                done = subprocess.run([sys.executable, report.__file__, build], capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stdout), (1, ""))
            self.assertTrue(done.stderr.startswith("No contest with QV Commons in it was timed."), done.stderr)

    def test_rounds_to_three_digits(self):
        self.assertEqual([report.duration(time) for time in (1.234, 999.4, 1e3, 12345, 9.876e6, 2e9)],
                         ["1.23 ns", "999 ns", "1 µs", "12.3 µs", "9.88 ms", "2 s"])


unittest.main()
