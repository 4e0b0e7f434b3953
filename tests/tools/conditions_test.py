"""conditions says what it lacks, and in which environment a program runs."""
import contextlib
import io
import os
import pathlib
import sys
import unittest
from unittest import mock

import tool

conditions = tool.load("conditions")


def outcome(*arguments):
    """What it ends with, and what it says to that."""
    said = io.StringIO()
    with mock.patch.object(sys, "argv", ["conditions", *arguments]), contextlib.redirect_stderr(said):
        try:
            conditions.main()
        except SystemExit as end:
            return f"{end.code} {said.getvalue()}"
    return ""


class Conditions(unittest.TestCase):
    def test_a_name_that_is_none_is_refused(self):
        self.assertIn("no such condition: midnight", outcome("midnight"))

    def test_what_is_missing_is_named(self):
        with mock.patch.object(conditions.shutil, "which", return_value=None):
            self.assertIn("year-2038 is left out: faketime is not here (package faketime)", outcome("year-2038"))

    @unittest.skipUnless(os.getuid() == 0, "only root can become another user")
    def test_a_folder_of_roots_is_named(self):
        with mock.patch.object(conditions, "ROOT", pathlib.Path("/proc/1/root/qv_commons")):
            self.assertIn("an ordinary user can't reach /proc/1/root/qv_commons", outcome("ordinary-user"))

    def test_one_is_drawn_of_those_that_can_be(self):
        said = io.StringIO()
        with mock.patch.object(conditions, "lacking", lambda name: "" if name == "tr_TR" else "not here"), \
                mock.patch.object(conditions.programs, "Build", lambda folder: mock.Mock(known={})), \
                contextlib.redirect_stdout(said):
            outcome("--one", "--seed", "1")
        self.assertIn("tr_TR: 2 times over, seed 1", said.getvalue())

    def test_a_date_stands_before_the_command(self):
        before, changed = conditions.made("leap-day", "/home")
        self.assertEqual(before, ["faketime", "-f", "@2028-02-29 23:59:50"])
        self.assertEqual((changed["TZ"], changed["HOME"]), ("Europe/Berlin", "/home"))

    def test_a_failure_is_told_whatever_ran_after_it(self):
        failure = "a_test.cpp:1: Failure\nExpected: one\n[  FAILED  ] A.Fails (1 ms)"
        told = conditions.told_of(failure + "\nskipped" * 1000)
        self.assertIn("Expected: one", told)
        self.assertLess(len(told), 1000)
        self.assertEqual(conditions.told_of("Segmentation fault"), "Segmentation fault")

    def test_home_is_taken_away(self):
        self.assertEqual(conditions.made("without-home", "/home")[1]["HOME"], None)


if __name__ == "__main__":
    unittest.main()
