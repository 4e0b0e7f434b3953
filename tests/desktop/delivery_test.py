"""A support e-mail on its whole way: the composer's Send button, msmtp in the mail program's place,
a mail server on the loopback interface, and back through Python's own e-mail parser.

    delivery_test.py PROGRAM    the built desktop_mail_case
"""
import asyncio
import base64
import contextlib
import email
import email.policy
import email.utils
import os
import random
import re
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

from aiosmtpd.smtp import SMTP

PROGRAM = sys.argv.pop()

INFO = """<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>CFBundleIdentifier</key><string>notesapp</string>
  <key>CFBundleShortVersionString</key><string>2.4.1</string>
  <key>CFBundleVersion</key><string>317</string>
</dict></plist>"""

RECEIPT = bytes(range(256)) * 400


class Server:
    """Takes every message; keeps its envelope."""

    def __init__(self):
        self.envelopes = []

    async def handle_DATA(self, server, session, envelope):
        self.envelopes.append(envelope)
        return "250 OK"


class Refusal(Server):
    async def handle_RCPT(self, server, session, envelope, address, options):
        return "550 nobody here"


@contextlib.contextmanager
def listening(handler):
    """Runs a mail server on a free port of the loopback interface, which it gives."""
    loop = asyncio.new_event_loop()
    thread = threading.Thread(target=loop.run_forever)
    thread.start()

    async def start():
        return await loop.create_server(
            lambda: SMTP(handler, data_size_limit=2**28, loop=loop), "127.0.0.1", 0)

    server = asyncio.run_coroutine_threadsafe(start(), loop).result()
    try:
        yield server.sockets[0].getsockname()[1]
    finally:
        loop.call_soon_threadsafe(server.close)
        loop.call_soon_threadsafe(loop.stop)
        thread.join()
        loop.close()


class Delivery(unittest.TestCase):
    def deliver(self, server, *, recipient="support@example.com", subject="Help", purchases=(),
                opening=None, metadata=None):
        """The finished process of the user's program; the envelopes are in the server."""
        with listening(server) as port, tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            (folder / "bundle/StoreKit").mkdir(parents=True)
            (folder / "bundle/Info.plist").write_text(INFO, encoding="utf-8")
            (folder / "bundle/StoreKit/receipt").write_bytes(RECEIPT)
            (folder / "email").write_bytes(recipient.encode())
            (folder / "subject").write_bytes(subject.encode())
            (folder / "purchases").write_bytes("".join(p + "\n" for p in purchases).encode())
            for kind, text in (("opening", opening), ("metadata", metadata)):
                if text is not None:
                    (folder / kind).write_bytes(text.encode())
            config = folder / "msmtprc"
            config.write_text("account default\nhost 127.0.0.1\n"
                              f"port {port}\nauth off\ntls off\nfrom ada@example.com\n")
            config.chmod(0o600)
            done = subprocess.run(
                [PROGRAM, str(folder), "msmtp", "-C", str(config)], check=False, timeout=120,
                env={**os.environ, "LANGUAGE": "en_GB"}, stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL, text=True)
            self.drafts = list((folder / "data/drafts").iterdir())
            return done

    def delivered(self, **request):
        """The parsed message, which was sent without complaint."""
        server = Server()
        done = self.deliver(server, **request)
        self.assertEqual((done.returncode, done.stdout), (0, "onCompletion\n"))
        self.assertEqual(self.drafts, [])
        self.assertEqual(len(server.envelopes), 1)
        self.envelope = server.envelopes[0]
        message = email.message_from_bytes(self.envelope.content, policy=email.policy.SMTP)
        for part in message.walk():
            self.assertEqual(part.defects, [])
        return message

    def body(self, message):
        """The body's bytes. Line ends of the wire are line ends of the text, unless the body says
        its bytes in base64."""
        part = message.get_payload(0)
        payload = part.get_payload(decode=True)
        if part["Content-Transfer-Encoding"] == "base64":
            return payload
        return payload.replace(b"\r\n", b"\n")

    def test_every_field_arrives(self):
        message = self.delivered(subject="Help with Notes", metadata="User: 42",
                                 purchases=["pro_monthly", "remove_ads"])
        self.assertEqual(self.envelope.mail_from, "ada@example.com")
        self.assertEqual(self.envelope.rcpt_tos, ["support@example.com"])
        self.assertEqual(message["From"], "ada@example.com")
        self.assertEqual(message["To"], "support@example.com")
        self.assertEqual(message["Subject"], "Help with Notes")
        self.assertEqual(message["MIME-Version"], "1.0")
        self.assertRegex(message["Message-ID"], r"^<[0-9a-f-]{36}@[^ >]+>$")
        sent = email.utils.parsedate_to_datetime(message["Date"]).timestamp()
        self.assertLess(abs(time.time() - sent), 120)
        for name in ("From", "To", "Subject", "Date", "Message-ID"):
            self.assertEqual(len(message.get_all(name)), 1)
        self.assertEqual(message.get_content_type(), "multipart/mixed")
        self.assertEqual(len(message.get_payload()), 2)

        text, attachment = message.get_payload()
        self.assertEqual(text["Content-Type"], 'text/plain; charset="utf-8"')
        lines = self.body(message).decode().split("\n")
        self.assertEqual(lines[:10], ["Reason for contacting support:"] + [""] * 8 +
                         ["App ID: notesapp"])
        self.assertRegex(lines[10], r"^Device: \S.* os:  \S+ size: \d+\.\dx\d+\.\d locale: en-GB$")
        self.assertEqual(lines[11:], ["App version: 2.4.1(317)",
                                      "IAP: Yes pro_monthly, remove_ads", "User: 42"])

        raw = self.envelope.content.decode()
        self.assertIn("\r\nContent-Type: Text/XML; name=Receipt-Data.txt\r\n", raw)
        self.assertEqual(attachment.get_filename(), "Receipt-Data.txt")
        self.assertEqual(attachment.get_content_disposition(), "attachment")
        self.assertEqual(attachment["Content-Transfer-Encoding"], "base64")
        receipt = attachment.get_payload(decode=True)
        self.assertEqual(receipt, base64.b64encode(RECEIPT))

    def test_no_purchase_leaves_its_blank(self):
        self.assertTrue(self.body(self.delivered()).endswith(b"\nIAP: No \n"))

    def test_a_subject_beyond_ascii_arrives(self):
        subject = "Grüße aus Köln 📮, " + "naïve " * 40 + "end"
        self.assertEqual(self.delivered(subject=subject)["Subject"], subject)

    def test_an_opening_message_takes_the_place_of_the_usual_one(self):
        body = self.body(self.delivered(opening="Gruß"))
        self.assertTrue(body.startswith("Gruß\n\n\n\n\n\n\n\n\nApp ID: ".encode()))

    def check_metadata(self, metadata):
        body = self.body(self.delivered(metadata=metadata))
        start = body.index(b"\nIAP: No \n") + len(b"\nIAP: No \n")
        self.assertTrue(body[start:] == metadata.encode(), body[start:start + 200])

    def test_metadata_arrives_to_the_byte(self):
        self.check_metadata("a\rb\r\nc\n\rd \t\n.\nFrom x\n📮 ü \u2028 \u2029 \u00a0 = =3D\n\n")

    def test_metadata_without_carriage_returns_arrives_to_the_byte(self):
        self.check_metadata("\x00\x1b 📮 \n.\n..\nFrom x\n=3D \n\t\n\n")

    def test_a_megabyte_in_one_line_arrives(self):
        letters = random.Random(1).choices("abcdefghij =.ü📮", k=1_000_000)
        self.check_metadata("".join(letters))

    def test_a_megabyte_without_a_blank_arrives(self):
        self.check_metadata("x" * 1_000_000)

    def test_a_hundred_thousand_purchases_arrive(self):
        names = [f"purchase_{i}" for i in range(100_000)]
        body = self.body(self.delivered(purchases=names)).decode()
        self.assertTrue("\nIAP: Yes " + ", ".join(names) + "\n" in body)

    def test_several_recipients_all_get_it(self):
        self.delivered(recipient="a@example.com, b@example.com")
        self.assertEqual(self.envelope.rcpt_tos, ["a@example.com", "b@example.com"])

    def test_a_refusal_is_told_and_keeps_a_draft(self):
        server = Refusal()
        done = self.deliver(server)
        self.assertEqual(done.returncode, 1)
        self.assertIn("Not sent. The mail server refused the address or the message.",
                      done.stdout.replace("\u200b", ""))
        self.assertEqual(server.envelopes, [])
        self.assertEqual(len(self.drafts), 1)


if __name__ == "__main__":
    unittest.main()
