"""The same mailing through Postfix and Exim, read back from their Maildirs."""

import email
import os
import unittest
from email import policy

from endtoend import WORK, EndToEnd, rows
from exim import Exim
from mail_servers import DOMAIN
from postfix import Postfix

PACKAGES = WORK / "packages"


class Mailing:
    """What every server must show; the subclasses name the server."""

    server_class = None

    def setUp(self):
        super().setUp()
        folder = self.folder / "server"
        folder.mkdir()
        server = self.server_class(PACKAGES, folder)
        self.server = server.__enter__()
        self.addCleanup(server.__exit__)

    def messages(self, count):
        """The messages delivered, parsed."""
        return [
            email.message_from_bytes(content, policy=policy.default)
            for content in self.server.received(count)
        ]

    def test_letter_with_picture_and_attachment(self):
        picture = self.file("a.gif", b"GIF89a")
        attachment = self.file("perché.bin", os.urandom(200000))
        html = self.file("letter.html", '<img src="a.gif"><p>Città *NOME*</p>\n')
        project = self.project(
            self.server,
            rows(12, DOMAIN),
            packet=5,
            subject="Città – perché no",
            html=html,
            attachments=[attachment],
            control_address=f"control@{DOMAIN}",
        )
        self.send(project)
        messages = self.messages(13)
        everybody = {f"r{i}@{DOMAIN}" for i in range(1, 13)} | {f"control@{DOMAIN}"}
        self.assertEqual(len(messages), 13)
        self.assertEqual({message["To"] for message in messages}, everybody)
        for message in messages:
            self.assertEqual(message["Subject"], "Città – perché no")
            for header in ("From", "To", "Subject", "Date", "Message-ID", "MIME-Version"):
                self.assertEqual(len(message.get_all(header)), 1, header)
            alternative, sent = message.iter_parts()
            _, related = alternative.iter_parts()
            page, inline = related.iter_parts()
            self.assertIn("cid:" + inline["Content-ID"].strip("<>"), page.get_content())
            self.assertIn("<p>Città ", page.get_content())
            self.assertEqual(inline.get_content(), picture.read_bytes())
            self.assertEqual(sent.get_filename(), "perché.bin")
            self.assertEqual(sent.get_content(), attachment.read_bytes())

    def test_more_messages_than_a_server_takes_in_a_session(self):
        # Exim ends a session after a thousand.
        self.send(self.project(self.server, rows(1100, DOMAIN), packet=2000))
        messages = self.messages(1100)
        self.assertEqual(len({message["To"] for message in messages}), 1100)
        self.assertEqual(len(messages), 1100)

    def test_group(self):
        self.send(self.project(self.server, rows(3, DOMAIN), group=True))
        # A server may keep one copy for all, or one for each.
        messages = self.messages(1)
        self.assertNotEqual(messages, [])
        for message in messages:
            self.assertEqual(message["To"].groups[0].display_name, "undisclosed-recipients")
            self.assertEqual(message["To"].addresses, ())


class ThroughPostfix(Mailing, EndToEnd):
    """Offers PIPELINING and CHUNKING."""

    server_class = Postfix


class ThroughExim(Mailing, EndToEnd):
    """Offers PIPELINING and CHUNKING; answers 421 after so many messages."""

    server_class = Exim


if __name__ == "__main__":
    unittest.main()
