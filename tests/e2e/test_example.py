"""The example mailing: what arrives, and the whole log."""

import subprocess
import unittest
from email.utils import parsedate_to_datetime

from endtoend import SOURCES, EndToEnd
from server import Server

EXAMPLE = SOURCES / "examples" / "newsletter"
SUBJECT = "Spring walks – and cake at Zoë's café"
ATTACHMENT = "Walking programme – été.pdf"
HEADERS = ("From", "To", "Subject", "Date", "Message-ID", "X-Mailer", "MIME-Version")


def list_of_example():
    """Names and addresses of the recipients file, in its order."""
    lines = (EXAMPLE / "recipients.txt").read_text(encoding="utf-8").splitlines()
    return [(name, address.split("#")[0]) for name, address in (l.split(";") for l in lines)]


class Example(EndToEnd):
    """Each test sends it."""

    def setUp(self):
        super().setUp()
        server = Server()
        with server:
            self.project_file = self.folder / "newsletter.svk"
            subprocess.run(
                [SOURCES / "scripts" / "make-example", self.project_file, server.address],
                check=True,
            )
            self.send(self.project_file)
        self.server = server
        self.everybody = [(n, a) for n, a in list_of_example() if not n.startswith("Tom")]
        self.everybody.append(("Control Address", "secretary@larkhill.example"))

    def test_everybody_checked_and_the_control_address_get_one_message(self):
        self.assertEqual(self.server.recipients(), sorted(a for _, a in self.everybody))
        self.assertTrue(all(len(received.recipients) == 1 for received in self.server.received))

    def test_packets_are_connections(self):
        order = [received.connection for received in self.server.received]
        self.assertEqual(order, [1] * 5 + [2] * 5 + [3] * 2)

    def test_messages_read_back(self):
        names = {address: name for name, address in self.everybody}
        text = (EXAMPLE / "letter.txt").read_text(encoding="utf-8")
        html = (EXAMPLE / "letter.html").read_text(encoding="utf-8")
        for received in self.server.received:
            message = received.message
            name = names[received.recipients[0]]
            self.assertTrue(all(len(line) <= 998 for line in received.content.split(b"\r\n")))
            self.assertNotIn(b"\n", received.content.replace(b"\r\n", b""))
            for part in message.walk():
                self.assertEqual(part.defects, [])
            for header in HEADERS:
                self.assertEqual(len(message.get_all(header)), 1, header)
            self.assertEqual(message["From"], "Larkhill Walking Club <news@larkhill.example>")
            self.assertEqual(message["To"], received.recipients[0])
            self.assertEqual(message["Subject"], SUBJECT)
            self.assertEqual(message["X-Mailer"], "Sorvanta - www.calvessa.example")
            self.assertIsNotNone(parsedate_to_datetime(message["Date"]).tzinfo)
            self.assertRegex(message["Message-ID"], r"^<[0-9]+@[^<>@\s]+>$")
            self.assertNotIn("Disposition-Notification-To", message)
            self.assertEqual(received.sender, "news@larkhill.example")

            mixed = list(message.iter_parts())
            self.assertEqual(message.get_content_type(), "multipart/mixed")
            alternative, attachment = mixed
            plain, related = alternative.iter_parts()
            page, picture = related.iter_parts()
            self.assertEqual(plain.get_content().splitlines(), self.filled(text, name))
            reference = "cid:" + picture["Content-ID"].strip("<>")
            shown = page.get_content().replace(f'"{reference}"', '"hills.png"')
            self.assertEqual(shown.splitlines(), self.filled(html, name))
            self.assertEqual(picture.get_content_type(), "image/png")
            self.assertEqual(picture.get_content(), (EXAMPLE / "hills.png").read_bytes())
            self.assertEqual(attachment.get_content_type(), "application/pdf")
            self.assertEqual(attachment.get_filename(), ATTACHMENT)
            self.assertEqual(attachment.get_content(), (EXAMPLE / ATTACHMENT).read_bytes())

    @staticmethod
    def filled(text, name):
        """The lines of a letter to somebody."""
        return text.replace("*NOME*", name).splitlines()

    def test_identifiers_differ(self):
        identifiers = {received.message["Message-ID"] for received in self.server.received}
        self.assertEqual(len(identifiers), len(self.server.received))

    def test_whole_log(self):
        numbered = [
            (address, number)
            for number, (name, address) in enumerate(list_of_example(), 1)
            if not name.startswith("Tom")
        ]
        numbered.append(("secretary@larkhill.example", 13))
        lines = [
            "Program started...",
            f"Project file '{self.project_file}' loaded",
            f"Message file '{EXAMPLE}/letter.html' loaded",
            f"Message file '{EXAMPLE}/letter.html' loaded",
            f"Message file '{EXAMPLE}/letter.txt' loaded",
            f"Message file '{EXAMPLE}/letter.html' loaded",
            "User started sending messages",
        ]
        for packet in (numbered[:5], numbered[5:10], numbered[10:]):
            lines.append("Sending procedure started")
            for address, number in packet:
                lines.append(f"Sending message '{SUBJECT}' to '{address}' ({number})")
                lines.append(f"Message '{SUBJECT}' to '{address}' ({number}) sent.")
            lines.append("Waiting for next packet...")
        lines[-1:] = [
            "Sending ended without problems",
            "Sending procedure stopped",
            "Program ended...",
        ]
        self.assertEqual(self.program.log_lines(), lines)
        # Nothing else is in the file: a separator before the lines, and each line's end.
        log = self.program.logs().decode("cp1252")
        self.assertTrue(log.startswith("\r\n" + "-" * 50 + "\r\n"))
        self.assertTrue(log.endswith("Program ended...\r\n"))
        self.assertEqual(len(log.split("\r\n")), len(lines) + 3)

    def test_second_session_follows_in_the_same_log(self):
        first = self.program.logs()
        self.send(self.project_file, status=3)  # the server is gone
        both = self.program.logs()
        self.assertEqual(both[: len(first) - 1], first[:-1])
        self.assertEqual(both[len(first) - 1 :][: 2 + 50], b"\r\n" + b"-" * 50)

    def test_linked_pictures_do_not_stay_behind(self):
        staged = self.folder / "Temp"
        self.assertEqual(list(staged.rglob("*.*")), [])


if __name__ == "__main__":
    unittest.main()
