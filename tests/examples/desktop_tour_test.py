"""The desktop tour: its pictures, the message that really was delivered, its transcript."""
import datetime
import email
import email.policy
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop()
BODY = """Reason for contacting support:








App ID: notesapp
Device: iPhone os:  14.4 size: 375.0x812.0 locale: en-GB
App version: 2.4.1(317)
IAP: Yes pro_monthly, remove_ads
User: 42"""


def run(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, timeout=200)


def starts(transcript):
    """How each start of the app ended."""
    return [line.removeprefix("age gate: ") for line in transcript.splitlines()
            if line.startswith("age gate: ")]


def body_of(path):
    message = email.message_from_bytes(path.read_bytes(), policy=email.policy.SMTP)
    return message.get_body().get_payload(decode=True).decode().replace("\r\n", "\n")


class DesktopTour(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.out = pathlib.Path(cls.scratch.name, "out")
        cls.done = run("--tour", str(cls.out))

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def test_ends_well(self):
        self.assertEqual(self.done.returncode, 0, self.done.stdout + self.done.stderr)
        self.assertNotIn("FAILED", self.done.stdout)

    def test_delivers_the_message(self):
        message = email.message_from_bytes((self.out / "support-mail.eml").read_bytes(),
                                           policy=email.policy.SMTP)
        self.assertEqual(message["To"], "support@example.com")
        self.assertEqual(message["Subject"], "Help with Notes")
        self.assertEqual(body_of(self.out / "support-mail.eml"), BODY)
        [receipt] = message.iter_attachments()
        self.assertEqual(receipt.get_filename(), "Receipt-Data.txt")
        self.assertIn(b"Content-Type: Text/XML", (self.out / "support-mail.eml").read_bytes())
        self.assertEqual(receipt.get_payload(decode=True),
                         b"QSBzYW1wbGUgcmVjZWlwdDogYnl0ZXMgdGhhdCB0aGUgc3RvcmUgd291bGQgaGF2ZSBzaWduZWQu"
                         b"Cg==")

    def test_leaves_a_picture_of_every_screen(self):
        named = [line.removeprefix("picture: ") for line in
                 (self.out / "transcript.txt").read_text().splitlines()
                 if line.startswith("picture: ")]
        self.assertLessEqual({"home.png", "composer.png", "composer-sending.png",
                              "composer-failed.png", "alert.png"}, set(named))
        for name in named:
            self.assertEqual((self.out / name).read_bytes()[:4], b"\x89PNG", name)

    def test_keeps_a_draft_where_it_is_told_to(self):
        drafts = list((self.out / "data" / "drafts").iterdir())
        self.assertEqual([body_of(draft) for draft in drafts], [BODY] * len(drafts))
        self.assertTrue(drafts)
        self.assertEqual({draft.stat().st_mode & 0o777 for draft in drafts}, {0o600})

    def test_reads_the_bundle_it_is_given(self):
        with tempfile.TemporaryDirectory() as bundle:
            info = {"CFBundleIdentifier": "com.example.other", "CFBundleVersion": 12,
                    "CFBundleShortVersionString": "3.0"}
            pathlib.Path(bundle, "Info.plist").write_bytes(
                plistlib.dumps(info, fmt=plistlib.FMT_BINARY))
            out = pathlib.Path(bundle, "out")
            self.assertEqual(run("--bundle", bundle, "--tour", str(out), "--data",
                                 bundle + "/data").returncode, 0)
            body = body_of(out / "support-mail.eml")
            self.assertIn("\nApp ID: com.example.other\n", body)
            self.assertIn("\nApp version: 3.0()\n", body)
            self.assertNotIn(b"Receipt-Data.txt", (out / "support-mail.eml").read_bytes())
            self.assertTrue(list(pathlib.Path(bundle, "data", "drafts").iterdir()))

    def test_visits_every_page(self):
        self.assertIn("opened: itms-apps://apps.apple.com/app/id123456789?mt=8&action=write-review\n",
                      self.done.stdout)
        self.assertIn("\n3725 seconds, or 63 minutes, or 0 days\nas a clock: 1:02:05\n"
                      "in digits: 10205\n", self.done.stdout)
        self.assertIn("\nOn top: the page “First”.\n", self.done.stdout)
        self.assertIn("\nThe field holds “birthday”.\n", self.done.stdout)

    def test_lives_both_lives_light_and_dark(self):
        transcript = (self.out / "transcript.txt").read_text()
        self.assertEqual(starts(transcript),
                         2 * ["asked", "allowed", "allowed", "asked", "refused", "refused"]
                         + 2 * ["asked", "refused"])
        for look in ("light", "dark"):
            for state in ("age-gate", "age-gate-picked", "allowed", "refused", "refused-again"):
                self.assertTrue((self.out / f"{state}-{look}.png").exists(), state)

    def test_shows_the_screens_in_other_languages(self):
        for language in ("ja", "ar"):
            for state in ("age-gate", "refused"):
                self.assertNotEqual((self.out / f"{state}-light-{language}.png").read_bytes(),
                                    (self.out / f"{state}-light.png").read_bytes(), state)

    def test_speaks_the_language_it_is_given(self):
        with tempfile.TemporaryDirectory() as out:
            done = run("--tour", out, "--birth-date", "2020-01-01", "--language", "de")
            self.assertEqual(done.returncode, 0, done.stdout)
            self.assertTrue(pathlib.Path(out, "refused-light-de.png").exists())

    def test_confirms_the_date_it_is_given(self):
        today = datetime.date.today()
        year_ago = today.replace(year=today.year - 1, day=min(today.day, 28))
        for date, minimum, outcome in (("1980-02-29", 18, "allowed"), (year_ago, 1, "allowed"),
                                       (year_ago, 2, "refused"), ("2500-01-01", 0, "allowed"),
                                       ("2500-01-01", 1, "refused")):
            with tempfile.TemporaryDirectory() as out:
                done = run("--tour", out, "--birth-date", str(date), "--minimum-age", str(minimum))
                self.assertEqual(done.returncode, 0, done.stdout)
                self.assertEqual(starts(pathlib.Path(out, "transcript.txt").read_text()),
                                 ["asked", outcome, outcome], (date, minimum))

    def test_says_where_the_wheels_do_not_reach_and_goes_to_their_end(self):
        for date, minimum, outcome in (("1700-05-05", 100, "allowed"), ("2500-05-05", 1, "refused")):
            with tempfile.TemporaryDirectory() as out:
                said = run("--tour", out, "--birth-date", date, "--minimum-age", str(minimum)).stdout
                self.assertIn(f", the wheels do not reach {date}\n", said)
                self.assertEqual(starts(said), ["asked", outcome, outcome], date)

    def test_keeps_a_refusal_in_the_data_folder_it_is_given(self):
        with tempfile.TemporaryDirectory() as scratch:
            arguments = ("--tour", scratch + "/out", "--data", scratch + "/data", "--birth-date")
            self.assertEqual(starts(run(*arguments, "2020-01-01").stdout),
                             ["asked", "refused", "refused"])
            self.assertEqual(starts(run(*arguments, "1980-01-01").stdout), 3 * ["refused"])

    def test_refuses_what_it_cannot_read(self):
        for arguments in (("--birth-date", "1980-02-30"), ("--birth-date", "yesterday"),
                          ("--minimum-age", "many"), ("--appearance", "blue"),
                          ("--system-version", "twelve"), ("--system-version", "1.2.3.4"),
                          ("--language", "klingon")):
            done = run(*arguments)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertIn(arguments[1], done.stderr)

    def test_says_how_it_is_used(self):
        self.assertEqual(run("--help").returncode, 0)
        for option in ("--bundle", "--tour", "--data", "--help", "--birth-date", "--minimum-age",
                       "--appearance", "--system-version", "--language"):
            self.assertIn(option, run("--help").stdout)
        wrong = run("--colour")
        self.assertEqual(wrong.returncode, 2)
        self.assertIn("colour", wrong.stderr)
        self.assertEqual(run("surplus").returncode, 2)


if __name__ == "__main__":
    if not shutil.which("msmtp"):
        sys.exit("msmtp is needed to run this test")
    unittest.main()
