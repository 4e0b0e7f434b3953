"""The recipes under packaging/ agree with the project: its version, and options that it has."""
import ast
import json
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
VERSION = re.search(r"project\(qv_commons VERSION (\S+)", PROJECT).group(1)
OPTIONS = set(re.findall(r"^(?:option|set)\((QV_COMMONS_\w+)", PROJECT, re.M))


class Packaging(unittest.TestCase):
    def test_vcpkg(self):
        manifest = json.loads((ROOT / "packaging/vcpkg/vcpkg.json").read_text(encoding="utf-8"))
        self.assertEqual(manifest["version"], VERSION)
        portfile = (ROOT / "packaging/vcpkg/portfile.cmake").read_text(encoding="utf-8")
        used = set(re.findall(r"-D(QV_COMMONS_\w+)", portfile))
        self.assertEqual(used - OPTIONS, set())
        self.assertEqual(len(used), 5)

    def test_conan(self):
        recipe = (ROOT / "packaging/conan/conanfile.py").read_text(encoding="utf-8")
        ast.parse(recipe)
        self.assertEqual(re.search(r'version = "(.+)"', recipe).group(1), VERSION)
        used = {"QV_COMMONS_DESKTOP"} | {"QV_COMMONS_" + part for part in ast.literal_eval(
            re.search(r"for part in (\(.+\)):", recipe).group(1))}
        self.assertEqual(used - OPTIONS, set())
        for pattern in re.search(r"for pattern in (\(.+\)):", recipe).group(1).split('"')[1::2]:
            self.assertTrue(list(ROOT.glob(pattern)), pattern)

    def test_the_changelog_has_the_version(self):
        changelog = (ROOT / "CHANGELOG.md").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r"^## (\S+)", changelog, re.M)[0], VERSION)


if __name__ == "__main__":
    unittest.main()
