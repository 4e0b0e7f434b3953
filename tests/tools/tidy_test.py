"""tidy finds in a folder's unit what clang-tidy finds in the sources one by one, and names the place."""
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import tool

CLEAN = """#include <string>

namespace demo {

std::string greeting() {
  return "hello";
}

}  // namespace demo
"""
PLANTED = """#include <string>
#include <vector>

namespace demo {

using std::vector;

std::string first(const std::string& text) {
  const std::string copy = text;
  if (copy.size() == 0) return nullptr == nullptr ? "" : copy;
  return text;
}

}  // namespace demo
"""


class Tidy(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        root = pathlib.Path(self.folder.name)
        self.tidy = tool.load("tidy")
        self.tidy.ROOT, self.tidy.BUILD, self.tidy.UNITS = root, root / "build/dev", root / "build/tidy"
        self.tidy.BUILD.mkdir(parents=True)
        self.tidy.UNITS.mkdir()
        shutil.copy(tool.TOOLS.parent / ".clang-tidy", root)
        self.root = root

    def check(self, **sources):
        paths = []
        for name, text in sources.items():
            path = self.root / "library" / (name + ".cpp")
            path.parent.mkdir(exist_ok=True)
            path.write_text(text)
            paths.append(path)
        (self.tidy.BUILD / "compile_commands.json").write_text(json.dumps(
            [{"file": str(p), "command": f"g++ -std=c++20 -o {p.stem}.o -c {p}"} for p in paths]))
        built = self.tidy.commands()
        units = self.tidy.groups(paths, built)
        self.assertEqual(len(units), 1)
        return self.tidy.check(units[0], built[paths[0]], 0)

    def test_is_content_with_clean_sources(self):
        text, code = self.check(a=CLEAN, b=CLEAN.replace("greeting", "farewell"))
        self.assertEqual((text, code), ("", 0))

    def test_finds_a_planted_defect_in_the_second_source_and_says_where(self):
        text, code = self.check(a=CLEAN, b=PLANTED)
        self.assertEqual(code, 1)
        self.assertIn("library/b.cpp:6:", text)
        self.assertIn("misc-unused-using-decls", text)
        self.assertIn("library/b.cpp:9:", text)
        self.assertIn("performance-unnecessary-copy-initialization", text)
        self.assertIn("library/b.cpp:10:", text)
        self.assertIn("readability-container-size-empty", text)
        self.assertNotIn("library/a.cpp", text)

    def test_finds_a_header_that_one_source_includes_twice(self):
        twice = CLEAN.replace("#include <string>\n", "#include <string>\n#include <string>\n")
        text, code = self.check(a=CLEAN, b=twice.replace("greeting", "farewell"))
        self.assertEqual(code, 1)
        self.assertIn("library/b.cpp:2:", text)
        self.assertIn("readability-duplicate-include", text)

    def test_fails_where_names_collide(self):
        text, code = self.check(a=CLEAN, b=CLEAN)
        self.assertEqual(code, 1)
        self.assertIn("library/b.cpp:5:", text)
        self.assertIn("redefinition of 'greeting'", text)


if __name__ == "__main__":
    if shutil.which("clang-tidy") is None or "version 14." not in subprocess.run(
            ["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout:
        print("Skipped: needs clang-tidy 14")
        sys.exit(77)
    unittest.main()
