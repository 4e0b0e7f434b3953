"""The summary of a long run tells what ran, what was left out and why, however the run ends."""
import os
import pathlib
import subprocess
import tempfile
import unittest

STAGES = pathlib.Path(__file__).resolve().parents[2] / "tools" / "stages.sh"
LOG = """1/4 Test: core.one
[       OK ] A.B (0 ms)
Test Passed.
2/4 Test: desktop.whole
[       OK ] A.B (0 ms)
[       OK ] A.C (1 ms)
[  SKIPPED ] A.D (1 ms)
[       OK ] A.E (0 ms)
[  SKIPPED ] 1 test, listed below:
[  SKIPPED ] A.D
Test Passed.
3/4 Test: docs.script
Test Passed.
4/4 Test: docs.broken
Test Failed.
"""


def run(script, **environment):
    """The exit code and the summary's lines, with one space where there are several."""
    result = subprocess.run(
        ["bash", "-c", f"set -euo pipefail; source {STAGES}\n{script}"], capture_output=True, text=True,
        check=False, env={"PATH": os.environ["PATH"], **environment})
    summary = result.stdout.partition("== summary")[2].splitlines()[1:]
    return result.returncode, [" ".join(line.split()) for line in summary]


class Summary(unittest.TestCase):
    def test_lists_the_stages_with_their_cases_and_minutes(self):
        self.assertEqual(run("plan one two; stage one; cases=12; SECONDS=90; stage two; SECONDS=96"),
                         (0, ["one 12 cases 1.5 min passed", "two - cases 0.1 min passed", "passed"]))

    def test_tells_what_was_left_out_and_why(self):
        code, lines = run("plan one two; stage one; leave_out two 'no compiler'; leave_out 'one: a part' gone")
        self.assertEqual(code, 0)
        self.assertEqual(lines[1:], ["left out:", "two: no compiler", "one: a part: gone", "passed"])

    def test_fails_in_ci_where_something_was_left_out(self):
        code, lines = run("plan one two; stage one; leave_out two 'no compiler'", CI="1")
        self.assertEqual(code, 1)
        self.assertEqual(lines[-1], "failed: in CI nothing may be left out")
        self.assertEqual(run("plan one; stage one", CI="1")[0], 0)

    def test_names_the_cases_that_skipped_themselves_and_is_content_with_them(self):
        code, lines = run("plan one; stage one; note_skipped one A.D", CI="1")
        self.assertEqual((code, lines[1:]), (0, ["cases that skipped themselves:", "one: A.D", "passed"]))

    def test_is_printed_where_a_stage_fails(self):
        code, lines = run("plan one two three; stage one; stage two; cases=3; false; stage three")
        self.assertEqual(code, 1)
        self.assertEqual(lines, ["one - cases 0.0 min passed", "two 3 cases 0.0 min FAILED", "left out:",
                                 "three: not reached", "failed with code 1"])

    def test_names_a_planned_stage_that_nobody_ran(self):
        code, lines = run("plan one two; stage one", CI="1")
        self.assertEqual(code, 1)
        self.assertIn("two: not reached", lines)

    def test_looks_for_programs_and_their_versions(self):
        self.assertEqual(run("plan a; if needs a bash; then stage a; fi")[1][-1], "passed")
        self.assertIn("a: no-such-program is not here", run("plan a; needs a no-such-program || true")[1])
        self.assertIn("a: bash is not of version 1", run("plan a; needs a bash 1 || true")[1])


class Cases(unittest.TestCase):
    def test_are_counted_one_by_one_and_the_skipped_named(self):
        with tempfile.NamedTemporaryFile("w", suffix=".log") as log:
            log.write(LOG)
            log.flush()
            result = subprocess.run(["bash", "-c", f"source {STAGES}; passed_cases {log.name}; skipped_cases {log.name}"],
                                    capture_output=True, text=True, check=True)
        self.assertEqual(result.stdout, "5\nA.D\n")


if __name__ == "__main__":
    unittest.main()
