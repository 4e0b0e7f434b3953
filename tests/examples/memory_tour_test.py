"""The tour on the memory adapter: its transcript, its help, its answer to bad arguments."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop()


def run(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True)


class MemoryTour(unittest.TestCase):
    def test_leaves_a_transcript(self):
        with tempfile.TemporaryDirectory() as scratch:
            done = run("--memory", "--tour", scratch + "/out")
            self.assertEqual(done.returncode, 0)
            transcript = pathlib.Path(scratch, "out", "transcript.txt").read_text()
        self.assertEqual(transcript, done.stdout)
        self.assertIn("IAP: Yes pro_monthly, remove_ads\nUser: 42\n", transcript)
        self.assertIn("the host is told: the composer is gone\n", transcript)

    def test_says_how_it_is_used(self):
        self.assertEqual(run("--help").returncode, 0)
        self.assertIn("usage", run("--help").stdout)
        self.assertEqual(run("--colour").returncode, 2)
        self.assertIn("--colour", run("--colour").stderr)

    def test_says_why_it_cannot_write(self):
        done = run("--tour", "/proc/nowhere")
        self.assertEqual(done.returncode, 1)
        self.assertIn("/proc/nowhere", done.stderr)


if __name__ == "__main__":
    unittest.main()
