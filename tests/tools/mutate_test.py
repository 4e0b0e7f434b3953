"""mutate changes operators, constants, conditions and statements, and nothing that only looks like them."""
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from unittest import mock

import tool

sys.path.insert(0, str(tool.TOOLS))
from mutation import changes, programs  # noqa: E402 (the folder is known only now)


def changed(source):
    return [change.applied(source) for change in changes.changes_of(source)]


class Changes(unittest.TestCase):
    def test_are_made_one_at_a_time(self):
        self.assertEqual(changed("return a < b && !c;"),
                         ["return a <= b && !c;", "return a < b || !c;", "return a < b && c;"])

    def test_are_made_to_constants(self):
        self.assertIn("return (7 + 1);", changed("return 7;"))
        self.assertIn('return "";', changed('return "text";'))
        self.assertIn("return false;", changed("return true;"))

    def test_are_made_to_conditions(self):
        self.assertIn("if (true) return;", changed("if (a.b()) return;"))
        self.assertIn("if (false) return;", changed("if (a.b()) return;"))

    def test_take_statements_out(self):
        self.assertIn("{ ; g(); }", changed("{ f(a); g(); }"))
        self.assertIn("{ if (a) ; }", changed("{ if (a) return; }"))

    def test_leave_comments_templates_and_directives(self):
        self.assertEqual(changed("// a < b\n#if 1\nstd::vector<int> x; /* 7 */\n"), [])


class Times(unittest.TestCase):
    def run_until(self, end):
        mutate = tool.load("mutate")
        source = tool.TOOLS.parent / "qv_commons/time/time_helper.cpp"
        with mock.patch.object(mutate, "verdict", return_value="noticed"):
            return dict(mutate.run(mock.Mock(), [(source, None)] * 3, end)["core"])

    def test_a_run_ends_in_time(self):
        self.assertEqual(self.run_until(time.monotonic() - 1), {"left out": 3})
        self.assertEqual(self.run_until(time.monotonic() + 1000), {"noticed": 3})


def runs_of(marker):
    """How many processes have that text in their command."""
    found = 0
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            found += marker.encode() in (process / "cmdline").read_bytes()
        except OSError:
            pass
    return found


# Two hang: one of them in a session of its own, as the programs do that a test starts.
HANGS = "setsid sh -c 'sleep 1000; : {0}' & echo started >'{1}'; sleep 1000; : {0}"


class Runs(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = pathlib.Path(self.folder.name) / "hangs"
        self.marker = f"mark-of-{os.getpid()}-{self.id()}"
        self.started = pathlib.Path(self.folder.name) / "started"

    def command(self):
        return ["sh", "-c", HANGS.format(self.marker, self.started)]

    def waits_for(self, condition):
        end = time.monotonic() + 20
        while not condition() and time.monotonic() < end:
            time.sleep(0.01)
        return condition()

    def test_pass_and_fail_with_what_they_say(self):
        program = programs.Program(self.path, [], [], {"SAYS": "so"})
        self.assertEqual(programs.run(program, ["sh", "-c", "echo $SAYS"], self.path, 20), (True, "so\n"))
        self.assertEqual(programs.run(program, ["sh", "-c", "exit 1"], self.path, 20), (False, ""))

    def test_that_hang_end_with_all_that_they_started(self):
        program = programs.Program(self.path, [], [], {})
        passed, _ = programs.run(program, self.command(), self.path, 3)
        self.assertFalse(passed)
        self.assertTrue(self.started.exists())
        self.assertTrue(self.waits_for(lambda: runs_of(self.marker) == 0))

    def test_end_with_mutate_itself(self):
        code = ("import signal, sys; sys.path.insert(0, sys.argv[1]); from mutation import programs; "
                "signal.signal(signal.SIGTERM, programs.end_with_all); import pathlib; "
                "programs.run(programs.Program(pathlib.Path('x'), [], [], {}), sys.argv[2:], 'x', 1000)")
        mutate = subprocess.Popen([sys.executable, "-B", "-c", code, str(tool.TOOLS), *self.command()])
        self.assertTrue(self.waits_for(self.started.exists))
        self.assertGreaterEqual(runs_of(self.marker), 3)
        mutate.send_signal(signal.SIGTERM)
        self.assertEqual(mutate.wait(20), 1)
        self.assertTrue(self.waits_for(lambda: runs_of(self.marker) == 0))


if __name__ == "__main__":
    unittest.main()
