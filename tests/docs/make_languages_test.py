"""The tables of the screens' words: what is made of them is checked in as it is made, the layouts' English is theirs,
and each language's links fall on whole labels."""
import html
import importlib.machinery
import importlib.util
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))
TOOL = importlib.machinery.SourceFileLoader("make_languages", str(ROOT / "tools/make_languages"))
make_languages = importlib.util.module_from_spec(importlib.util.spec_from_loader("make_languages", TOOL))
TOOL.exec_module(make_languages)

BUNDLE = ROOT / "qv_commons/resources/QV_Commons_iOS.bundle"
GATE, REFUSAL = "QV_AgeGateViewController", "QV_AgeGateRefusedViewController"
LANGUAGES = {"ar", "de", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt", "ru", "tr", "uk", "zh-Hans",
             "zh-Hant"}
WORD_JOINER = "\u2060"


def table(language):
    return json.loads((ROOT / f"qv_commons/resources/languages/{language}.json").read_text(encoding="utf-8"))


class Tables(unittest.TestCase):
    def test_the_languages(self):
        self.assertEqual(set(make_languages.languages()) - {"en"}, LANGUAGES)

    def test_what_is_made_of_them_is_checked_in(self):
        done = subprocess.run([sys.executable, ROOT / "tools/make_languages", "--check"], capture_output=True,
                              text=True, check=False)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_every_text_is_translated_and_beside_its_english(self):
        english = table("en")
        for language in sorted(LANGUAGES):
            with self.subTest(language):
                translated = table(language)
                self.assertEqual(list(make_languages.problems(translated, english)), [])
                self.assertFalse(translated["readByNativeSpeaker"])
                for name, entry in translated["texts"].items():
                    self.assertTrue(entry["text"])
                    self.assertTrue(entry["note"])
                    if name != "between" and name != "contactAfter":
                        self.assertNotEqual(entry["text"], entry["english"])

    def test_the_links_are_the_labels_and_nothing_else(self):
        for language in sorted(LANGUAGES):
            with self.subTest(language):
                texts = {name: entry["text"] for name, entry in table(language)["texts"].items()}
                gate = make_languages.texts_of(table(language), GATE)
                refusal = make_languages.texts_of(table(language), REFUSAL)
                self.assertEqual(gate["policies.text"], refusal["policies.text"])
                # Of these languages no character is more than one UTF-16 unit.
                policies, contact = refusal["policies.text"], refusal["contact.text"]
                self.assertLess(max(policies + contact), "\U00010000")
                self.assertEqual(len(policies), 33)
                for linked, label in ((policies[:14], "privacy"), (policies[14:17], "between"),
                                      (policies[17:], "terms"), (contact[:38], "contactBefore"),
                                      (contact[38:60], "contactLink"), (contact[60:], "contactAfter")):
                    self.assertEqual(linked.replace(WORD_JOINER, ""), texts[label])


class English(unittest.TestCase):
    """The layouts, by the platforms' own names of the views."""

    def test_the_layouts_for_ios_hold_it(self):
        for screen in (GATE, REFUSAL):
            root = ElementTree.parse(BUNDLE / f"Base.lproj/{screen}.xib").getroot()
            items = {element.get("id"): element for element in root.iter() if element.get("id")}
            found = {}
            for key in make_languages.TEXTS[screen]:
                item, kind = key.split(".")
                found[key] = {"text": lambda item: item.get("text"),
                              "normalTitle": lambda item: item.find("state").get("title"),
                              "accessibilityLabel": lambda item: item.find("accessibility").get("label"),
                              }[kind](items[item])
            self.assertEqual(found, make_languages.texts_of(table("en"), screen))

    def test_the_layouts_for_the_desktop_hold_it(self):
        for screen in (GATE, REFUSAL):
            found = {}
            for widget in ElementTree.parse(BUNDLE / f"{screen}.ui").getroot().iter("widget"):
                texts = {each.get("name"): each.findtext("string") for each in widget.findall("property")}
                if key := texts.get("words"):
                    heard = key.endswith(".accessibilityLabel")
                    shown = texts["accessibleName"] if heard else texts.get("text") or texts["html"]
                    found[key] = html.unescape(re.sub("<[^>]*>", "", shown)) if shown.startswith("<") else shown
            self.assertEqual(found, make_languages.texts_of(table("en"), screen))

    def test_it_is_as_it_was(self):
        self.assertEqual(make_languages.texts_of(table("en"), GATE), {
            "header.text": "What’s your date of birth?",
            "subtitle.text": "Only used to check your age, never kept.",
            "picker.accessibilityLabel": "Date of birth",
            "confirm.normalTitle": "Confirm",
            "policies.text": "Privacy Policy & Terms of Service"})
        self.assertEqual(make_languages.texts_of(table("en"), REFUSAL), {
            "header.text": "We’re sorry, [APPNAME] isn’t available to you",
            "contact.text": "If you think this is an error, please contact us for support.",
            "policies.text": "Privacy Policy & Terms of Service"})


def sentences():
    """What the desktop's code says to its user: the literals of each Sentence and of each call of Words."""
    said = set()
    for source in (ROOT / "qv_commons/platform/desktop").glob("*.cpp"):
        text = source.read_text(encoding="utf-8")
        for literals in re.findall(r'\b(?:words_|Sentence)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)[,)]', text):
            said.add("".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals)).replace("\\n", "\n"))
    return said


def places(text):
    return sorted(re.findall("%[0-9]", text))


class Translations(unittest.TestCase):
    """Of the desktop's own words; that they are what is loaded is a test of the desktop's."""

    FOLDER = ROOT / "qv_commons/platform/desktop/translations"

    def messages(self):
        for path in sorted(self.FOLDER.glob("*.ts")):
            for message in ElementTree.parse(path).getroot().iter("message"):
                yield path.stem, message.findtext("source"), message.find("translation")

    def test_they_are_of_what_the_code_says(self):
        said = sentences()
        self.assertEqual(len(said), 67)
        found = {}
        for language, english, _ in self.messages():
            found.setdefault(language, []).append(english)
        self.assertEqual(set(found), LANGUAGES)
        for language, english in found.items():
            self.assertEqual(sorted(english), sorted(said), language)

    def test_they_are_finished_and_hold_the_same_arguments(self):
        for language, english, translation in self.messages():
            with self.subTest(language, english=english):
                self.assertIsNone(translation.get("type"))  # which is set where one is unfinished
                self.assertTrue(translation.text.strip())
                self.assertEqual(places(translation.text), places(english))
                if (language, english) not in {("fr", "Message"), ("nl", "Stop")}:
                    self.assertNotEqual(translation.text, english)

    def test_each_has_its_file_and_says_who_has_read_it(self):
        self.assertEqual({path.stem for path in self.FOLDER.glob("*.qm")}, LANGUAGES)
        for path in sorted(self.FOLDER.glob("*.ts")):
            text = path.read_text(encoding="utf-8")
            self.assertIn("<!-- Not read by a native speaker. -->", text)
            self.assertEqual(ElementTree.fromstring(text.encode()).get("language"), path.stem.replace("-", "_"))


class BadTables(unittest.TestCase):
    def problems(self, name, text):
        changed = table("de")
        changed["texts"][name]["text"] = text
        return list(make_languages.problems(changed, table("en")))

    def test_a_label_over_its_range(self):
        self.assertEqual(self.problems("privacy", "Datenschutzerklärung")[0],
                         "privacy has 20 UTF-16 units, and at most 14 fit: “Datenschutzerklärung”")

    def test_the_apps_name_twice_or_not_at_all(self):
        said = "header.text holds [APPNAME] {} times, and must hold it once"
        self.assertEqual(self.problems("refusalHeader", "[APPNAME]: [APPNAME]"), [said.format(2)])
        self.assertEqual(self.problems("refusalHeader", "Leider nicht"), [said.format(0)])

    def test_a_link_that_begins_within_a_word(self):
        self.assertIn("the terms of service link of tos begins within a word",
                      self.problems("between", " &x")[0])

    def test_half_of_it(self):
        changed = table("de")
        changed["texts"]["gateSubtitle"]["text"] = changed["texts"]["privacy"]["text"] = ""
        self.assertEqual(list(make_languages.problems(changed, table("en"))), [])
        texts = make_languages.texts_of(changed, GATE)
        self.assertEqual(texts["header.text"], "Wann sind Sie geboren?")
        self.assertEqual(texts["subtitle.text"], "Only used to check your age, never kept.")
        self.assertEqual(texts["policies.text"], "Privacy Policy & Nutzungsregeln\u2060\u2060")

    def test_another_english_beside_it(self):
        changed = table("de")
        changed["texts"]["confirm"]["english"] = "Go on"
        self.assertEqual(list(make_languages.problems(changed, table("en"))),
                         ["confirm doesn't have the English beside it"])
        del changed["texts"]["confirm"]
        self.assertEqual(list(make_languages.problems(changed, table("en"))), ["confirm is missing"])

    def test_one_that_is_not_utf_8(self):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "de.json").write_bytes(b'{"language": "Fran\xe7ais"}')
            with self.assertRaisesRegex(ValueError, "de.json: 'utf-8' codec can't decode byte 0xe7"):
                make_languages.load("de", pathlib.Path(folder))


if __name__ == "__main__":
    unittest.main()
