"""The check of the includes finds what it is for, and lets the adapters be."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parents[2] / "tools" / "check_includes.py"


class CheckIncludes(unittest.TestCase):
    def run_on(self, name, text):
        with tempfile.TemporaryDirectory() as root:
            path = pathlib.Path(root) / "qv_commons" / name
            path.parent.mkdir(parents=True)
            path.write_text(text)
            run = subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True)
            return run.returncode, run.stdout + run.stderr

    def test_takes_the_standard_library_and_its_own(self):
        self.assertEqual(self.run_on("a.cpp", '#include <string>\n#include "qv_commons/b.h"\n')[0], 0)

    def test_finds_anything_else(self):
        for line in ("#include <QString>", "#include <filesystem>", '#include "b.h"',
                     "#  include <sqlite3.h>", "#import <Foundation/Foundation.h>", "#include <time.h>"):
            code, output = self.run_on("support/a.h", "#pragma once\n" + line + "\n")
            self.assertEqual(code, 1, line)
            self.assertIn("qv_commons/support/a.h:2:", output)

    def test_checks_the_memory_adapter_and_no_other(self):
        self.assertEqual(self.run_on("platform/memory/a.cpp", "#include <QString>\n")[0], 1)
        code, output = self.run_on("platform/desktop/a.cpp", "#include <QString>\n")
        self.assertEqual((code, output), (1, "no files to check\n"))


if __name__ == "__main__":
    unittest.main()
