"""The desktop tour: its pictures, the message that really was delivered, its transcript."""
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

    def test_says_how_it_is_used(self):
        self.assertEqual(run("--help").returncode, 0)
        for option in ("--bundle", "--tour", "--data", "--help"):
            self.assertIn(option, run("--help").stdout)
        wrong = run("--colour")
        self.assertEqual(wrong.returncode, 2)
        self.assertIn("colour", wrong.stderr)
        self.assertEqual(run("surplus").returncode, 2)


if __name__ == "__main__":
    if not shutil.which("msmtp"):
        sys.exit("msmtp is needed to run this test")
    unittest.main()
