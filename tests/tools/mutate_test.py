"""mutate changes operators, constants, conditions and statements, and nothing that only looks like them."""
import sys
import unittest

import tool

sys.path.insert(0, str(tool.TOOLS))
from mutation import changes  # noqa: E402 (the folder is known only now)


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


if __name__ == "__main__":
    unittest.main()
