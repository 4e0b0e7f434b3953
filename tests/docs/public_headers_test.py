"""The public headers include nothing but each other and the standard library, and name no type of
what the adapters are made of; desktop_platform.h, which takes windows, has three of Qt's by name."""
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADERS = pathlib.Path(sys.argv.pop()).read_text(encoding="utf-8").split()
FOREIGN = re.compile(r"\b(Q[A-Z][a-z]\w*|icu|U_\w+|sqlite3\w*|[Gg][Mm]ime\w*|plist_\w+)\b")
WINDOWS = {"QStackedWidget", "QTabWidget", "QWidget"}


def code_of(header):
    text = (ROOT / header).read_text(encoding="utf-8")
    return re.sub(r"//.*", "", text)


class PublicHeaders(unittest.TestCase):
    def test_there_are_some_of_each_library(self):
        for header in ("qv_commons/qv_commons.h", "qv_commons/time/time_helper.h",
                       "qv_commons/platform/memory/memory_platform.h"):
            self.assertIn(header, HEADERS)

    def test_they_include_each_other_and_the_standard_library_alone(self):
        for header in HEADERS:
            for name in re.findall(r'#include ["<]([^">]+)[">]', code_of(header)):
                public = name in HEADERS or re.fullmatch(r"[a-z_0-9]+", name)
                self.assertTrue(public, f"{header} includes {name}")

    def test_they_name_no_type_of_others(self):
        for header in HEADERS:
            allowed = WINDOWS if header.endswith("/desktop_platform.h") else set()
            self.assertEqual(set(FOREIGN.findall(code_of(header))) - allowed, set(), header)


if __name__ == "__main__":
    unittest.main()
