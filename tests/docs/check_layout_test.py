"""tools/check_layout passes the library's own layouts and finds each planted error."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUNDLE = ROOT / "qv_commons/resources/QV_Commons_iOS.bundle"
GATE, REFUSAL = "QV_AgeGateViewController", "QV_AgeGateRefusedViewController"


class CheckLayout(unittest.TestCase):
    def check(self, *paths):
        done = subprocess.run([sys.executable, ROOT / "tools/check_layout", *paths],
                              capture_output=True, text=True, check=False)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout

    def planted(self, file, old, new):
        """What is said of the library's layout with that one change, after the file's name."""
        text = next(BUNDLE.glob(f"**/{file}")).read_text(encoding="utf-8")
        self.assertIn(old, text)
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / file
            path.write_text(text.replace(old, new), encoding="utf-8")
            code, said = self.check(path)
            return code, said.replace(f"{path}: ", "")

    def test_the_librarys_own_layouts_hold(self):
        self.assertEqual(self.check(*sorted(BUNDLE.glob("**/QV_*.*"))), (0, ""))

    def test_a_missing_outlet(self):
        said = (1, "no view is called subtitle, which must be a label\n")
        self.assertEqual(self.planted(GATE + ".ui", 'name="subtitle"', 'name="subheading"'), said)
        self.assertEqual(self.planted(GATE + ".xib", 'property="subtitle"', 'property="sub"')[0], 1)

    def test_an_outlet_of_another_class(self):
        self.assertEqual(
            self.planted(GATE + ".ui", 'class="ScreenButton"', 'class="QLabel"'),
            (1, "confirmBtn is a label, and must be a button\n"))

    def test_a_wrong_action_and_a_missing_one(self):
        said = (1, "confirmBtn triggers onConfirm, and must trigger onConfirmPressed:\n")
        self.assertEqual(self.planted(GATE + ".ui", "onConfirmPressed:", "onConfirm"), said)
        self.assertEqual(self.planted(GATE + ".xib", "onConfirmPressed:", "onConfirm"), said)

    def test_a_text_too_short_for_its_links(self):
        self.assertEqual(
            self.planted(GATE + ".xib", "Terms of Service", "Terms"),
            (1, "the text of tos has 22 UTF-16 units; the terms of service link ends at 33\n"))
        self.assertEqual(
            self.planted(REFUSAL + ".ui", "contact us for support", "contact us"),
            (1, "the text of contact has 49 UTF-16 units; the contact link ends at 60\n"))

    def test_a_link_that_cuts_a_character_in_two(self):
        code, said = self.planted(GATE + ".ui", "Privacy Policy", "Privacy Polic😀")
        self.assertEqual(
            (code, said.splitlines()[0]),
            (1, "the privacy policy link of tos cuts a character in two: “Privacy Polic�”"))

    def test_a_link_on_blanks(self):
        code, said = self.planted(GATE + ".ui", "Privacy Policy", "\u00a0" * 14)
        self.assertEqual((code, said),
                         (1, "the privacy policy link of tos falls on blanks alone\n"))

    def test_a_link_that_cuts_a_word(self):
        self.assertEqual(
            self.planted(REFUSAL + ".xib", "please contact us for support.", "kindly contact us for support."),
            (0, ""))
        self.assertEqual(
            self.planted(REFUSAL + ".xib", "please contact us for support", "please contact us for supports"),
            (1, "the contact link of contact ends within a word: “contact us for support” before “s.”\n"))
        code, said = self.planted(REFUSAL + ".xib", "an error, please", "an unhappy error, please")
        self.assertEqual(code, 1)
        self.assertIn("the contact link of contact begins with a blank: “ please contact us for”\n", said)

    def test_the_padded_translation_of_the_documentation(self):
        guide = (ROOT / "docs/your-own-layouts.md").read_text(encoding="utf-8")
        padded = next(line.strip() for line in guide.splitlines() if line.startswith("    Daten"))
        self.assertEqual((padded[:14], padded[17:33]),
                         ("Datenschutz\u2060\u2060\u2060", "Nutzungsregeln\u2060\u2060"))
        self.assertEqual(self.planted(REFUSAL + ".xib", "Privacy Policy &amp; Terms of Service",
                                      padded.replace("&", "&amp;")), (0, ""))

    def table(self, text, screen=REFUSAL):
        """What is said of that string table, after the file's name."""
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / f"{screen}.strings"
            path.write_bytes(text if isinstance(text, bytes) else text.encode())
            code, said = self.check(path)
            return code, said.replace(f"{path}: ", "").replace(f"{path} ", "")

    def test_a_string_table_with_a_few_of_the_texts(self):
        self.assertEqual(self.table('/* only this */ "header.text" = "[APPNAME] \\"no\\"";\n'), (0, ""))
        self.assertEqual(self.table(""), (0, ""))

    def test_a_string_table_that_is_not_utf_8(self):
        self.assertEqual(self.table('"header.text" = "Désolé, [APPNAME]";'.encode("latin-1")),
                         (2, "isn't UTF-8: byte 18 is 0xe9\n"))

    def test_a_string_table_that_is_cut_off(self):
        self.assertEqual(self.table('"header.text" = "[APPNAME]";\n\n"contact.text" = "Wri'),
                         (2, 'holds in line 3 what isn\'t of the form "key" = "words";\n'))

    def test_a_label_over_its_range(self):
        self.assertEqual(
            self.table('"policies.text" = "Datenschutzrichtlinie & Nutzungsregeln";'),
            (1, "the privacy policy link of tos ends within a word: “Datenschutzric” before "
                "“htlinie & Nutzungsregeln”\n"
                "the terms of service link of tos begins within a word: “inie & Nutzungsr” after “Datenschutzrichtl”\n"
                "the terms of service link of tos ends within a word: “inie & Nutzungsr” before “egeln”\n"))

    def test_a_string_table_too_short_for_its_links(self):
        self.assertEqual(self.table('"contact.text" = "Bitte melden";'),
                         (1, "the text of contact has 12 UTF-16 units; the contact link ends at 60\n"))

    def test_the_apps_name_twice_or_not_at_all(self):
        for header, times in (("[APPNAME], [APPNAME]!", 2), ("No", 0)):
            self.assertEqual(self.table(f'"header.text" = "{header}";'),
                             (1, f"header.text holds [APPNAME] {times} times, and must hold it once\n"))
        self.assertEqual(self.table('"header.text" = "When?";', GATE), (0, ""))

    def test_a_key_that_the_layout_does_not_know(self):
        self.assertEqual(self.table('"hedaer.text" = "When?";', GATE), (1, "hedaer.text is no text of the layout\n"))

    def test_an_empty_text(self):
        self.assertEqual(self.table('"subtitle.text" = " ";', GATE), (1, "subtitle.text is empty\n"))

    def test_what_is_no_layout(self):
        code, said = self.check("README.md", "/nonexistent/" + GATE + ".ui")
        self.assertEqual(code, 2)
        self.assertIn("README.md is no layout of the library's", said)
        self.assertIn("can't be read: ", said)

    def test_a_layout_that_is_cut_off(self):
        code, said = self.planted(GATE + ".ui", "</ui>", "")
        self.assertEqual(code, 2)
        self.assertIn("can't be read: ", said)


if __name__ == "__main__":
    unittest.main()
