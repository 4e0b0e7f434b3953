"""The README's programs are the compiled examples, its pictures are there, its commands are real."""
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop()).resolve()
README = (ROOT / "README.md").read_text(encoding="utf-8")


class Readme(unittest.TestCase):
    def test_shows_the_compiled_examples(self):
        shown = re.findall(r"```(?:cpp|cmake)\n(.*?)```", README, re.S)
        files = ["quickstart/main.cpp", "notes/CMakeLists.txt", "notes/main.cpp",
                 "notes_test/CMakeLists.txt", "notes_test/main.cpp"]
        self.assertEqual(
            shown, [(ROOT / "examples" / file).read_text(encoding="utf-8") for file in files])

    def test_links_to_files_that_are_there(self):
        text = re.sub(r"```.*?```", "", README, flags=re.S)
        links = re.findall(r"\]\(([^)#:]+)\)", text)
        self.assertTrue(links)
        self.assertEqual([link for link in links if not (ROOT / link).exists()], [])

    def test_names_scripts_that_can_be_run(self):
        scripts = set(re.findall(r"\./([\w/.-]+\.sh)", README))
        self.assertIn("run.sh", scripts)
        self.assertIn("test.sh", scripts)
        for script in scripts:
            self.assertTrue((ROOT / script).stat().st_mode & 0o111, script)


if __name__ == "__main__":
    unittest.main()
