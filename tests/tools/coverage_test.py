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

    def test_reads_the_counts_under_every_name_of_a_file(self):
        def told(name, runs, branches):
            return {"filename": str(name), "branches": branches,
                    "segments": [[1, 1, runs, True, True, False], [2, 2, 0, False, False, False]]}
        files = [told(FILE, 0, [[1, 5, 1, 9, 0, 2, 0, 0, 4]]),
                 told(FILE.parent / "../support" / FILE.name, 7, [[1, 5, 1, 9, 3, 0, 0, 0, 4]]),
                 told("/usr/include/string", 1, [])]
        self.assertEqual(coverage.counts_of(files), {
            FILE: ({1: 7, 2: 7}, {(1, 5, 1, 9, True): 3, (1, 5, 1, 9, False): 2})})

    def test_takes_the_branch_of_a_template_once(self):
        made_twice = [[3, 5, 3, 9, 4, 0, 0, 0, 4], [3, 5, 3, 9, 0, 6, 0, 0, 4], [3, 13, 3, 17, 1, 0, 0, 0, 4]]
        (_, branches), = coverage.counts_of([{"filename": str(FILE), "segments": [],
                                              "branches": made_twice}]).values()
        self.assertEqual(branches, {(3, 5, 3, 9, True): 4, (3, 5, 3, 9, False): 6,
                                    (3, 13, 3, 17, True): 1, (3, 13, 3, 17, False): 0})

    def test_counts_lines_as_reports_do(self):
        segments = [[2, 10, 3, True, True, False],    # a function from line 2
                    [3, 9, 0, True, True, False],     # in whose line 3 a block never ran
                    [3, 20, 3, True, False, False],
                    [4, 1, 0, False, True, False],    # left out by the preprocessor
                    [6, 1, 3, True, False, False],
                    [7, 1, 0, True, True, True],      # a gap between statements
                    [8, 2, 0, False, False, False]]
        self.assertEqual(coverage.lines_of(segments), {2: 3, 3: 3, 7: 3, 8: 0})
        self.assertEqual(coverage.lines_of([]), {})


if __name__ == "__main__":
    unittest.main()
