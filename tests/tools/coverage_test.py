"""coverage counts what ran of each part, and excuses a line of its list once."""
import unittest

import tool

coverage = tool.load("coverage")
FILE = coverage.ROOT / "qv_commons/support/decimal_text.cpp"
NAME = str(FILE.relative_to(coverage.ROOT))
TEXTS = FILE.read_text().splitlines()


class Judgement(unittest.TestCase):
    def test_counts_lines_and_branches_by_part(self):
        tallies, missing, _ = coverage.judge({FILE: ({1: 5, 2: 0}, {(1, "0.0"): 3, (1, "0.1"): 0})}, set())
        self.assertEqual(tallies["core"].percents(), (50, 50))
        self.assertEqual([text.split(": ")[:2] for _, text in missing],
                         [[f"{NAME}:2", "line not reached"], [f"{NAME}:1", "branch not reached"]])

    def test_knows_the_parts(self):
        for path, part in (("support/url.cpp", "core"), ("platform/platform.cpp", "core"),
                           ("platform/memory/utf16.cpp", "memory"), ("platform/uikit/text.mm", "uikit")):
            self.assertEqual(coverage.part_of(coverage.ROOT / "qv_commons" / path), part)

    def test_tells_which_lines_an_entry_excuses(self):
        ends = [number for number, text in enumerate(TEXTS, 1) if text.strip() == "}"][:2]
        entry = (NAME, "}")
        for lines in (ends[:1], ends, []):
            tallies, _, uses = coverage.judge({FILE: ({1: 1, **{line: 0 for line in lines}}, {})}, {entry})
            self.assertEqual(uses, {entry: set(lines)})
            self.assertEqual(tallies["core"].percents()[0], 100)

    def test_reads_the_counts_of_every_program(self):
        records = [f"SF:{FILE}", "DA:1,0", "BRDA:1,0,0,-", "end_of_record", f"SF:{FILE}", "DA:1,7", "BRDA:1,0,0,2",
                   "SF:/usr/include/string", "DA:1,1"]
        self.assertEqual(coverage.counts_of(records), {FILE: ({1: 7}, {(1, "0.0"): 2})})


if __name__ == "__main__":
    unittest.main()
